// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTGuardedDom_p.h"

#include <QThread>
#include <QVector>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

#include <limits>
#include <memory>

// Deprecated as they are, these are the classes with which QDomDocument parses strings. No other parser accepts exactly
// the same texts.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace {

/// The parser takes 340 bytes of stack for each level on x86-64 Linux; other compilers may take more.
constexpr uint stackPerLevel = 2048;

/// Passes the events of elements on to the DOM, and stops the parser at an element that is too deep.
class DepthLimit : public QXmlContentHandler
{
public:
    explicit DepthLimit(int maximum)
        : maximum(maximum)
    {
    }

    void SetTarget(QXmlContentHandler* handler) { target = handler; }
    bool IsExceeded() const { return depth > maximum; }

    bool startElement(const QString& namespaceUri, const QString& localName, const QString& qualifiedName,
                      const QXmlAttributes& attributes) override
    {
        ++depth;
        return !IsExceeded() && target->startElement(namespaceUri, localName, qualifiedName, attributes);
    }
    bool endElement(const QString& namespaceUri, const QString& localName, const QString& qualifiedName) override
    {
        --depth;
        return target->endElement(namespaceUri, localName, qualifiedName);
    }
    void setDocumentLocator(QXmlLocator* locator) override { target->setDocumentLocator(locator); }
    bool startDocument() override { return target->startDocument(); }
    bool endDocument() override { return target->endDocument(); }
    bool startPrefixMapping(const QString& prefix, const QString& uri) override
    {
        return target->startPrefixMapping(prefix, uri);
    }
    bool endPrefixMapping(const QString& prefix) override { return target->endPrefixMapping(prefix); }
    bool characters(const QString& text) override { return target->characters(text); }
    bool ignorableWhitespace(const QString& text) override { return target->ignorableWhitespace(text); }
    bool processingInstruction(const QString& name, const QString& data) override
    {
        return target->processingInstruction(name, data);
    }
    /// The DOM would make a node of it, and in the wrong place when the reference is in an attribute.
    bool skippedEntity(const QString&) override { return true; }
    QString errorString() const override { return target->errorString(); }

private:
    const int maximum;
    QXmlContentHandler* target = nullptr;
    int depth = 0;
};

/// Passes declarations on to the DOM, and stops the parser at an entity with a text. No job has one, and a few nested
/// ones, or a long one that is used often, can exhaust the memory.
class EntityRefusal : public QXmlDeclHandler
{
public:
    void SetTarget(QXmlDeclHandler* handler) { target = handler; }

    bool internalEntityDecl(const QString&, const QString&) override { return false; }
    bool attributeDecl(const QString& elementName, const QString& attributeName, const QString& type,
                       const QString& defaultType, const QString& defaultValue) override
    {
        return target->attributeDecl(elementName, attributeName, type, defaultType, defaultValue);
    }
    bool externalEntityDecl(const QString& name, const QString& publicId, const QString& systemId) override
    {
        return target->externalEntityDecl(name, publicId, systemId);
    }
    QString errorString() const override { return target->errorString(); }

private:
    QXmlDeclHandler* target = nullptr;
};

/// QDomDocument installs its handlers in the reader that it is given; this one puts the guards in front of them.
class GuardedReader : public QXmlSimpleReader
{
public:
    explicit GuardedReader(int maximumDepth)
        : depthLimit(maximumDepth)
    {
        // The settings of QDomDocument::setContent() without namespaces.
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        setFeature(QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), false);
    }

    bool IsTooDeep() const { return depthLimit.IsExceeded(); }

    void setContentHandler(QXmlContentHandler* handler) override
    {
        depthLimit.SetTarget(handler);
        QXmlSimpleReader::setContentHandler(&depthLimit);
    }
    void setDeclHandler(QXmlDeclHandler* handler) override
    {
        entityRefusal.SetTarget(handler);
        QXmlSimpleReader::setDeclHandler(&entityRefusal);
    }

private:
    DepthLimit depthLimit;
    EntityRefusal entityRefusal;
};

/// The reader recurses at each parenthesis in the declaration of an element, before it reports anything. Where there
/// may be such a declaration, all parentheses of the text count: no job has declarations, and to find out where they
/// end would take a second parser that has to agree with the first.
bool MayHaveDeepContentModel(const QString& text, int limit)
{
    return text.contains(QLatin1String("<!ELEMENT")) && text.count(QLatin1Char('(')) > limit;
}

enum class Result { Parsed, Refused, TooDeep };

Result ParseWithin(const QString& text, int maximumDepth, QDomDocument& document)
{
    QXmlInputSource source;
    source.setData(text);
    GuardedReader reader(maximumDepth);
    if (document.setContent(&source, &reader)) {
        return Result::Parsed;
    }
    return reader.IsTooDeep() ? Result::TooDeep : Result::Refused;
}

/// Whether the guards let `text` pass. Without a DOM that takes linear time.
bool IsAcceptable(const QString& text, int maximumDepth)
{
    QXmlInputSource source;
    source.setData(text);
    QXmlDefaultHandler nothing;
    GuardedReader reader(maximumDepth);
    reader.setContentHandler(&nothing);
    reader.setDeclHandler(&nothing);
    return reader.parse(source);
}

bool ParseOnLargeStack(const QString& text, int maximumDepth, QDomDocument& document)
{
    bool isParsed = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        // The DOM visits the ancestors of each node that it adds. Texts that are refused anyway do not cost that time.
        isParsed = IsAcceptable(text, maximumDepth) && ParseWithin(text, maximumDepth, document) == Result::Parsed;
    }));
    thread->setStackSize(stackPerLevel * static_cast<uint>(maximumDepth));
    thread->start();
    thread->wait();
    return isParsed;
}

/// Takes a tree apart without recursion. From the root down, since the DOM goes up to the first node without a parent
/// whenever it removes one.
void Dismantle(const QDomNode& root)
{
    QVector<QDomNode> nodes{root};
    while (!nodes.isEmpty()) {
        QDomNode node = nodes.takeLast();
        while (node.hasChildNodes()) {
            nodes.append(node.removeChild(node.lastChild()));
        }
    }
}

} // namespace

// The four blanks of indentation that the start and the end of each level of a chain have add up to this.
static_assert(4LL * ZTGuardedDom::maximumDepth * ZTGuardedDom::maximumDepth >=
                  std::numeric_limits<int>::max() / static_cast<int>(sizeof(QChar)),
              "Serialize() could write a text that is not read");

ZTGuardedDom::~ZTGuardedDom()
{
    if (mayBeDeep) {
        Dismantle(document.documentElement());
    }
}

bool ZTGuardedDom::Parse(const QString& text)
{
    if (MayHaveDeepContentModel(text, shallowDepth)) {
        return false;
    }
    const Result result = ParseWithin(text, shallowDepth, document);
    if (result != Result::TooDeep) {
        return result == Result::Parsed;
    }
    mayBeDeep = true;
    document = QDomDocument();
    return ParseOnLargeStack(text, maximumDepth, document);
}

QT_WARNING_POP
