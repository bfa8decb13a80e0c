// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTXmlWriter_p.h"

class ZTBatchInputOutline;
class ZTBatchOutputSettings;
class ZTStyle;

/// Writes the XML form of a job. The sections must be written in the order of the functions.
class ZTBatchJobWriter
{
public:
    explicit ZTBatchJobWriter(const QString& documentName);

    void WriteInput(const ZTBatchInputOutline& outline);
    void WriteStyle(const ZTStyle& style);
    void WriteOutput(const ZTBatchOutputSettings& settings);

    /// Returns the text of the job. The writer must not be used afterwards.
    QString TakeText();

private:
    Q_DISABLE_COPY(ZTBatchJobWriter)

    void WriteImageSize(const ZTBatchOutputSettings& settings);
    void WriteImageFormat(const ZTBatchOutputSettings& settings);
    void WriteNaming(const ZTBatchOutputSettings& settings);
    void WriteTransformation(const ZTBatchOutputSettings& settings);
    void WriteCrop(const ZTBatchOutputSettings& settings);

    ZTXmlWriter xml;
};
