#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

/// Writes elements with attributes as text, in the form in which QDomDocument prints them: four spaces a level, one
/// element a line, childless elements closed at once, the same characters as references.
///
/// QDomDocument itself would do, but it needs the whole document in memory first, prints by recursion and shuffles
/// attributes by a seed of the process, so that one job never gives the same text twice.
class ZTXmlWriter
{
public:
    explicit ZTXmlWriter(QLatin1String documentType);

    void StartElement(QLatin1String name);

    /// Adds an attribute to the element started last, before any child. Characters that no XML text can hold are
    /// written as U+FFFD.
    void WriteAttribute(QLatin1String name, const QString& value);
    void WriteAttribute(QLatin1String name, int value);
    void WriteAttribute(QLatin1String name, uint value);
    void WriteAttribute(QLatin1String name, bool value);
    void WriteAttribute(QLatin1String name, double value); ///< with the digits that give the same double again

    /// Bytes as hexadecimal digits, two a byte, lower case.
    void WriteAttribute(QLatin1String name, const QByteArray& bytes);

    /// Any other conversion to one of the types above would be a mistake.
    template<typename T>
    void WriteAttribute(QLatin1String name, T value) = delete;

    /// Ends the element started last that is still open.
    void EndElement();

    /// The text. The writer is used up.
    QString TakeText();

private:
    Q_DISABLE_COPY(ZTXmlWriter)

    void StartLine();
    void AppendEscaped(const QString& value);

    QString text;
    QVector<QLatin1String> openElements;
    bool isStartTagOpen = false;
};
