// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "UnknownParts.h"

#include "job/values/Phrase.h"

#include <QHash>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>

#include <initializer_list>

namespace BatchJob {

namespace {

/// What an element may have.
struct KnownElement
{
    QSet<QString> children;
    QSet<QString> attributes;
};

QSet<QString> Names(std::initializer_list<const char*> names)
{
    QSet<QString> set;
    for (const char* name : names) {
        set.insert(QString::fromLatin1(name));
    }
    return set;
}

/// The elements by their names, which say everything: no name means two things in two places.
const QHash<QString, KnownElement>& KnownElements()
{
    static const QHash<QString, KnownElement> elements = [] {
        QHash<QString, KnownElement> all;
        const auto add = [&all](const char* name, std::initializer_list<const char*> children,
                                std::initializer_list<const char*> attributes) {
            all.insert(QString::fromLatin1(name), {Names(children), Names(attributes)});
        };
        add("root", {"input", "style", "output"}, {"name"});
        add("input", {"inputElement"}, {});
        add("inputElement", {"inputElement"}, {"inputText", "inputInfo", "fileName", "type", "lastModification"});
        add("style", {"effect"}, {});
        add("effect", {}, {"UID", "data", "enabled"});
        add("output",
            {"imageSize", "imageFormat", "folder", "folderStructure", "naming", "transformation", "crop",
             "advancedOutput"},
            {});
        add("imageSize", {}, {"restriction", "size", "side", "unit", "resolution"});
        add("imageFormat", {}, {"format", "data"});
        add("folder", {}, {"fileName"});
        add("folderStructure", {}, {"type"});
        add("naming", {"prefix", "middle", "suffix"}, {"prefixSeparator", "suffixSeparator"});
        add("prefix", {}, {"type", "name", "startAt", "count"});
        add("middle", {}, {"type", "name", "startAt", "count"});
        add("suffix", {}, {"type", "name", "startAt", "count"});
        add("transformation", {},
            {"transformationState",
             "transformationAngle",
             "transformationBlending",
             "transformationOpacity",
             "transformationMargins",
             "transformationShadowEnabled",
             "transformationShadowMode",
             "transformationShadowOpacity",
             "transformationShadowAngle",
             "transformationShadowDistance",
             "transformationShadowSize",
             "transformationShadowColor",
             "transformationBackgroundType",
             "transformationBackgroundColor",
             "transformationBackgroundPattern",
             "transformationBackgroundImage",
             "transformationBackgroundOpacity",
             "transformationBackgroundCustomOutput",
             "transformationBackgroundCustomWidth",
             "transformationBackgroundCustomHeight"});
        add("crop", {}, {"cropAlignment", "cropWidth", "cropHeight", "cropType", "cropEnabled"});
        add("advancedOutput", {}, {"ICCProfile"});
        return all;
    }();
    return elements;
}

/// Collects each kind of part once.
class Search
{
public:
    explicit Search(const QString& text)
        : reader(text)
    {
        reader.setNamespaceProcessing(false);
    }

    QVector<UnknownPart> Parts()
    {
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement()) {
                EnterElement();
            } else if (reader.isEndElement()) {
                path.removeLast();
            }
        }
        return parts;
    }

private:
    void EnterElement()
    {
        // Readers take the outermost element whatever its name is.
        const QString name = path.isEmpty() ? QStringLiteral("root") : reader.qualifiedName().toString();
        const bool isKnown = path.isEmpty() || KnownElements().value(path.last()).children.contains(name);
        if (!isKnown) {
            Add(name, path.last(), false);
            reader.skipCurrentElement();
            return;
        }
        path.append(name);
        const QSet<QString> known = KnownElements().value(name).attributes;
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            const QString attributeName = attribute.qualifiedName().toString();
            if (!known.contains(attributeName)) {
                Add(attributeName, name, true);
            }
        }
    }

    void Add(const QString& name, const QString& place, bool isAttribute)
    {
        const QPair<QString, bool> kind(place + QLatin1Char('/') + name, isAttribute);
        if (!seen.contains(kind)) {
            seen.insert(kind);
            parts.append({int(reader.lineNumber()), name, place, isAttribute});
        }
    }

    QXmlStreamReader reader;
    QStringList path;
    QSet<QPair<QString, bool>> seen;
    QVector<UnknownPart> parts;
};

} // namespace

QString UnknownPart::Text() const
{
    return isAttribute ? Phrase::English("the attribute \"%1\" of \"%2\"").arg(name, place)
                       : Phrase::English("the element \"%1\" in \"%2\"").arg(name, place);
}

QVector<UnknownPart> UnknownParts(const QString& text)
{
    return Search(text).Parts();
}

} // namespace BatchJob
