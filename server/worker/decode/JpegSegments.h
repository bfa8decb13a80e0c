// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFile>
#include <QVector>

namespace BatchWorker {

/// A segment with a length, without marker and length.
struct JpegSegment
{
    uchar marker = 0; ///< its second byte, such as 0xe1 of APP1
    qint64 place = 0; ///< of the content in the file
    QByteArray content;
};

/// The segments before the pixels of the JPEG picture that begins at `place` of `file`.
QVector<JpegSegment> JpegSegmentsAt(QFile& file, qint64 place);

} // namespace BatchWorker
