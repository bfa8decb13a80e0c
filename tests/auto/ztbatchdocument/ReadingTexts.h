// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class ZTBatchDocument;

/// The text of a job whose root element has this content.
QString Job(const QString& content);

/// The same with an output section of this content.
QString OutputJob(const QString& content);

QString Repeated(const char* text, int count);

/// Sets everything in a new document to something other than its default.
void Fill(ZTBatchDocument& document);

/// The lines of ElementLines() from the output section on.
QStringList OutputOf(const ZTBatchDocument& document);

/// The document's effects, one line each: identifier, data in hexadecimal digits, "on" or "off".
QStringList EffectsOf(const ZTBatchDocument& document);
