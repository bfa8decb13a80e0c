#include "ZTGuardedDom_p.h"

#include <QDomDocument>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

// Deprecated as they are, these are the classes that QDomDocument parses strings with. Only they take and refuse the
// same texts as always.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace {

/// Passes the events of elements on to the DOM, and stops the parser at an element that stands too deep.
class DepthLimit : public QXmlContentHandler
{
public:
    void SetTarget(QXmlContentHandler* handler) { target = handler; }

    bool startElement(const QString& namespaceUri, const QString& localName, const QString& qualifiedName,
                      const QXmlAttributes& attributes) override
    {
        ++depth;
        return depth <= ZTGuardedDom::maximumDepth &&
               target->startElement(namespaceUri, localName, qualifiedName, attributes);
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
    /// The DOM would keep a node for it, and in the wrong place when it stands in an attribute.
    bool skippedEntity(const QString&) override { return true; }
    QString errorString() const override { return target->errorString(); }

private:
    QXmlContentHandler* target = nullptr;
    int depth = 0;
};

/// Passes declarations on to the DOM, and stops the parser at an entity with a text. A job never has one, and a few
/// that stand in each other, or one that is long and used often, are enough to take all memory.
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

/// QDomDocument gives its handlers to the reader that it is told to use; this one puts the guards before them.
class GuardedReader : public QXmlSimpleReader
{
public:
    GuardedReader()
    {
        // The settings of QDomDocument::setContent() without namespaces.
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        setFeature(QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), false);
    }

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

/// The reader goes down a level of its own stack with each parenthesis in the declaration of an element, before it
/// tells anybody. Where such a declaration may be, all parentheses of the text are counted: the text of a job has no
/// declarations, and to find out where they end would take a second reader that has to agree with the first.
bool MayHaveDeepContentModel(const QString& text)
{
    return text.contains(QLatin1String("<!ELEMENT")) && text.count(QLatin1Char('(')) > ZTGuardedDom::maximumDepth;
}

} // namespace

bool ZTGuardedDom::Parse(const QString& text, QDomDocument& document)
{
    if (MayHaveDeepContentModel(text)) {
        return false;
    }
    QXmlInputSource source;
    source.setData(text);
    GuardedReader reader;
    return document.setContent(&source, &reader);
}

QT_WARNING_POP
