// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QString>
#include <QVector>

/// Writes elements with attributes as XML text, in the form in which QDomDocument prints them: four spaces a level, one
/// element a line, empty elements as one tag, the same characters escaped.
///
/// QDomDocument itself is no alternative: it needs the whole document in memory first, prints recursively, and orders
/// attributes by a random seed of the process, so that the text of one job differs between runs.
class ZTXmlWriter
{
public:
    explicit ZTXmlWriter(QLatin1String documentType);

    void StartElement(QLatin1String name);

    /// Adds an attribute to the element that was started last, before any child. As in the DOM, control characters and
    /// lone surrogates are written unchanged, although XML does not allow them, since the DOM reads them back. Only
    /// U+FFFE and U+FFFF, which its parser refuses, become U+FFFD.
    void WriteAttribute(QLatin1String name, const QString& value);
    void WriteAttribute(QLatin1String name, int value);
    void WriteAttribute(QLatin1String name, uint value);
    void WriteAttribute(QLatin1String name, bool value);

    /// Enough digits to read the same double back; -0 is written as "0".
    void WriteAttribute(QLatin1String name, double value);

    /// Two lower-case hexadecimal digits a byte.
    void WriteAttribute(QLatin1String name, const QByteArray& bytes);

    /// No implicit conversions.
    template<typename T>
    void WriteAttribute(QLatin1String name, T value) = delete;

    /// Ends the innermost open element.
    void EndElement();

    /// Returns the text. All elements must have ended; the writer must not be used afterwards.
    QString TakeText();

private:
    Q_DISABLE_COPY(ZTXmlWriter)

    void StartLine();
    void AppendEscaped(const QString& value);

    QString text;
    QVector<QLatin1String> openElements;
    bool isStartTagOpen = false;
};
