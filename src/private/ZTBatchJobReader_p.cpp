// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchJobReader_p.h"

#include "ZTBatchXml_p.h"
#include "ZVApplication.h"

#include <QDomDocument>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Settings = ZTBatchOutputSettings;
using Node = TreeNode<BatchNodeData>;

/// The node after `node` in document order, below `ancestor`.
QDomNode NextNode(const QDomNode& node, const QDomNode& ancestor)
{
    QDomNode next = node.firstChild();
    for (QDomNode last = node; next.isNull() && last != ancestor; last = last.parentNode()) {
        next = last.nextSibling();
    }
    return next;
}

/// For each name the first element below `ancestor` in document order; null if there is none. Finds all of them in one
/// walk, since jobs can be large and each list of elements by name would take a walk of its own.
template<std::size_t count>
std::array<QDomElement, count> FirstElements(const QDomNode& ancestor, const std::array<QLatin1String, count>& names)
{
    std::array<QDomElement, count> found;
    std::size_t missing = count;
    for (QDomNode node = ancestor.firstChild(); missing > 0 && !node.isNull(); node = NextNode(node, ancestor)) {
        if (!node.isElement()) {
            continue;
        }
        const QString name = node.nodeName();
        const auto position = std::find(names.begin(), names.end(), name);
        if (position == names.end()) {
            continue;
        }
        QDomElement& element = found[static_cast<std::size_t>(position - names.begin())];
        if (element.isNull()) {
            element = node.toElement();
            --missing;
        }
    }
    return found;
}

QString Text(const QDomElement& element, QLatin1String name)
{
    return element.attribute(name);
}

/// 0 if the text is not a number.
int Integer(const QDomElement& element, QLatin1String name, int missing = 0)
{
    return element.hasAttribute(name) ? element.attribute(name).toInt() : missing;
}

/// As Integer(), for values that are written unsigned. Negative values survive, since the writer converts them
/// likewise.
int Unsigned(const QDomElement& element, QLatin1String name)
{
    return static_cast<int>(element.attribute(name).toUInt());
}

bool Boolean(const QDomElement& element, QLatin1String name)
{
    return Integer(element, name) != 0;
}

double Double(const QDomElement& element, QLatin1String name, double missing)
{
    return element.hasAttribute(name) ? element.attribute(name).toDouble() : missing;
}

QByteArray Bytes(const QDomElement& element, QLatin1String name)
{
    return QByteArray::fromHex(element.attribute(name).toLatin1());
}

QColor Color(const QDomElement& element, QLatin1String name)
{
    QColor color(Qt::black);
    if (element.hasAttribute(name)) {
        color.setNamedColor(element.attribute(name));
    }
    return color;
}

/// Numbers separated by white space. All values from the first missing or invalid one on are 0.
template<std::size_t count>
std::array<int, count> Integers(QString text)
{
    std::array<int, count> values{};
    QTextStream stream(&text, QIODevice::ReadOnly);
    for (int& value : values) {
        stream >> value;
    }
    return values;
}

/// Reads the input tree. The names are members because converting them for each lookup would be slow in large jobs.
class InputReader
{
public:
    std::unique_ptr<Node> Read(const QDomElement& input)
    {
        auto root = std::make_unique<Node>();
        // A queue that keeps the folders that were read.
        QVector<std::pair<QDomElement, Node*>> folders{{input, root.get()}};
        for (int i = 0; i < folders.size(); ++i) {
            const auto [element, folder] = folders.at(i);
            for (QDomElement child = element.firstChildElement(inputElement); !child.isNull();
                 child = child.nextSiblingElement(inputElement)) {
                Node* const node = ReadNode(child);
                if (folder == root.get()) {
                    SetBookmark(node->data);
                }
                if (node->data.type == Folder) {
                    folders.append({child, node});
                }
                folder->data.fileNodesCount += node->data.fileNodesCount;
                folder->insertChild(node);
            }
        }
        // So far each folder counts only its own files. In the list it comes after its parent.
        for (int i = folders.size() - 1; i > 0; --i) {
            const Node* const folder = folders.at(i).second;
            folder->parent->data.fileNodesCount += folder->data.fileNodesCount;
        }
        return root;
    }

private:
    Node* ReadNode(const QDomElement& element) const
    {
        auto* const node = new Node;
        node->data.enabled = true;
        node->data.inputText = element.attribute(inputText);
        node->data.inputInfo = element.attribute(inputInfo);
        node->data.fileName = element.attribute(fileName);
        node->data.lastModification = element.attribute(lastModification);
        node->data.type = element.attribute(type).toInt();
        node->data.fileNodesCount = node->data.type == Folder ? 0 : 1;
        return node;
    }

    /// Only for top-level nodes, which the user chose. The access covers everything below them.
    static void SetBookmark(BatchNodeData& data)
    {
        if (QFileInfo::exists(data.fileName)) {
            data.bookmark = ZVFileBookmark(data.fileName);
        }
    }

    const QString inputElement{ZTBatchXml::inputElement};
    const QString inputText{ZTBatchXml::inputText};
    const QString inputInfo{ZTBatchXml::inputInfo};
    const QString fileName{ZTBatchXml::fileName};
    const QString lastModification{ZTBatchXml::lastModification};
    const QString type{ZTBatchXml::type};
};

QVector<ZTBatchJob::Effect> ReadEffects(const QDomElement& style)
{
    QVector<ZTBatchJob::Effect> effects;
    const QString name{ZTBatchXml::effect};
    for (QDomElement element = style.firstChildElement(name); !element.isNull();
         element = element.nextSiblingElement(name)) {
        const QString uid = Text(element, ZTBatchXml::uid);
        if (!uid.isEmpty()) {
            effects.append({uid, Bytes(element, ZTBatchXml::data), Boolean(element, ZTBatchXml::enabled)});
        }
    }
    return effects;
}

Settings::ImageSize ReadImageSize(const QDomElement& element)
{
    Settings::ImageSize imageSize;
    imageSize.restriction = Integer(element, ZTBatchXml::restriction);
    if (imageSize.restriction != 0) {
        imageSize.size = Double(element, ZTBatchXml::size, 0.0);
        imageSize.side = Integer(element, ZTBatchXml::side);
        imageSize.unit = Integer(element, ZTBatchXml::unit);
    }
    imageSize.resolution = Integer(element, ZTBatchXml::resolution);
    return imageSize;
}

std::optional<Settings::NamingPart> NamingPartOf(const QString& name)
{
    if (name == ZTBatchXml::prefix) {
        return Settings::PartPrefix;
    }
    if (name == ZTBatchXml::middle) {
        return Settings::PartMiddle;
    }
    if (name == ZTBatchXml::suffix) {
        return Settings::PartSuffix;
    }
    return std::nullopt;
}

ZTBatchJob::Naming ReadNaming(const QDomElement& element)
{
    ZTBatchJob::Naming naming;
    naming.prefixSeparator = Text(element, ZTBatchXml::prefixSeparator);
    naming.suffixSeparator = Text(element, ZTBatchXml::suffixSeparator);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
        const auto part = NamingPartOf(child.tagName());
        if (!part) {
            continue;
        }
        naming.parts.append({*part, static_cast<Settings::NamingTemplate>(Integer(child, ZTBatchXml::type)),
                             Text(child, ZTBatchXml::name), Integer(child, ZTBatchXml::startAt),
                             Integer(child, ZTBatchXml::count)});
    }
    return naming;
}

/// The values of missing attributes differ from the defaults of a new record: jobs that predate an attribute were
/// processed with these.
Settings::Transformation ReadTransformation(const QDomElement& element)
{
    using namespace ZTBatchXml;
    Settings::Transformation record;
    record.state = Boolean(element, transformationState);
    record.angle = Integer(element, transformationAngle);
    record.blending = Unsigned(element, transformationBlending);
    record.opacity = Double(element, transformationOpacity, 1.0);
    const auto margins = Integers<4>(Text(element, transformationMargins));
    record.margins = QMargins(margins[0], margins[1], margins[2], margins[3]);
    record.shadowEnabled = Boolean(element, transformationShadowEnabled);
    record.shadowMode = Unsigned(element, transformationShadowMode);
    record.shadowOpacity = Double(element, transformationShadowOpacity, 1.0);
    record.shadowAngle = Integer(element, transformationShadowAngle);
    record.shadowDistance = Integer(element, transformationShadowDistance, 5);
    record.shadowSize = Integer(element, transformationShadowSize, 5);
    record.shadowColor = Color(element, transformationShadowColor);
    record.backgroundType = Integer(element, transformationBackgroundType);
    record.backgroundColor = Color(element, transformationBackgroundColor);
    record.backgroundPattern = Integers<3>(element.hasAttribute(transformationBackgroundPattern)
                                               ? Text(element, transformationBackgroundPattern)
                                               : QString::number(ZVApplication::GetTexturePatternIndex()));
    record.backgroundImage = Text(element, transformationBackgroundImage);
    record.backgroundOpacity = Double(element, transformationBackgroundOpacity, 1.0);
    record.backgroundCustomOutput = Boolean(element, transformationBackgroundCustomOutput);
    record.backgroundCustomSize = QSize(Integer(element, transformationBackgroundCustomWidth, 800),
                                        Integer(element, transformationBackgroundCustomHeight, 600));
    return record;
}

/// For a job without the section: no transformation, no margins, no shadow.
Settings::Transformation MissingTransformation()
{
    Settings::Transformation record;
    record.margins = QMargins();
    record.shadowEnabled = false;
    return record;
}

Settings::Crop ReadCrop(const QDomElement& element)
{
    // Older jobs only know whether there is a crop; it is the exact one of today.
    constexpr int typeOfOlderJobs = 5;

    Settings::Crop crop;
    crop.type = Boolean(element, ZTBatchXml::cropEnabled) ? typeOfOlderJobs : Integer(element, ZTBatchXml::cropType);
    crop.alignment = Integer(element, ZTBatchXml::cropAlignment, Qt::AlignCenter);
    crop.size = QSize(Integer(element, ZTBatchXml::cropWidth, 800), Integer(element, ZTBatchXml::cropHeight, 600));
    return crop;
}

ZTBatchJob::Output ReadOutput(const QDomElement& output)
{
    const auto [imageSize, imageFormat, folder, folderStructure, naming, transformation, crop, advancedOutput] =
        FirstElements(output, std::array<QLatin1String, 8>{ZTBatchXml::imageSize, ZTBatchXml::imageFormat,
                                                           ZTBatchXml::folder, ZTBatchXml::folderStructure,
                                                           ZTBatchXml::naming, ZTBatchXml::transformation,
                                                           ZTBatchXml::crop, ZTBatchXml::advancedOutput});
    ZTBatchJob::Output job;
    if (!imageSize.isNull()) {
        job.imageSize = ReadImageSize(imageSize);
    }
    if (!imageFormat.isNull()) {
        job.format = ZTBatchJob::Format{Text(imageFormat, ZTBatchXml::format), Bytes(imageFormat, ZTBatchXml::data)};
    }
    if (!folder.isNull()) {
        job.folder = Text(folder, ZTBatchXml::fileName);
    }
    if (!folderStructure.isNull()) {
        job.folderStructure = static_cast<Settings::FolderStructure>(Integer(folderStructure, ZTBatchXml::type));
    }
    if (!naming.isNull()) {
        job.naming = ReadNaming(naming);
    }
    job.transformation = transformation.isNull() ? MissingTransformation() : ReadTransformation(transformation);
    if (!crop.isNull()) {
        job.crop = ReadCrop(crop);
    }
    if (!advancedOutput.isNull()) {
        job.iccProfile = Bytes(advancedOutput, ZTBatchXml::iccProfile);
    }
    return job;
}

} // namespace

ZTBatchJob ZTBatchJobReader::Read(const QDomDocument& document)
{
    const auto [input, style, output] =
        FirstElements(document, std::array<QLatin1String, 3>{ZTBatchXml::input, ZTBatchXml::style, ZTBatchXml::output});
    ZTBatchJob job;
    if (!input.isNull()) {
        job.input = InputReader().Read(input);
    }
    if (!style.isNull()) {
        job.effects = ReadEffects(style);
    }
    if (!output.isNull()) {
        job.output = ReadOutput(output);
    }
    return job;
}
