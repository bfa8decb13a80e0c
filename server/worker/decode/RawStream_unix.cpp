// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawStream.h"

#include <QFile>

namespace BatchWorker {

RawStream::RawStream(const QString& file)
    : LibRaw_bigfile_datastream(QFile::encodeName(file).constData())
{
}

} // namespace BatchWorker
