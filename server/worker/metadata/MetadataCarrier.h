#pragma once

#include "Metadata.h"

#include "job/formats/FormatCatalog.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QStringList>

/// How metadata come into files of the formats that results are written in.
namespace BatchWorker {

/// Whether files of `format` can carry an ICC profile.
bool HoldsProfile(const BatchJob::FormatSchema& format);

/// `picture` with nothing but its profile and what the encoder of `format` writes of `metadata`. What the format has no
/// place for is told in `warnings`; IPTC becomes XMP where there is a place for that alone.
Picture WithMetadata(const Picture& picture, const BatchJob::FormatSchema& format, Metadata& metadata,
                     QStringList& warnings);

/// What has to stand before the data that the encoder of `format` writes; mostly nothing.
QByteArray BytesBefore(const BatchJob::FormatSchema& format, const Metadata& metadata);

/// Completes the written file `fileName` with what its encoder leaves out. `profile` is that of the picture.
void CompleteFile(const QString& fileName, const BatchJob::FormatSchema& format, const Metadata& metadata,
                  const QByteArray& profile, QStringList& warnings);

} // namespace BatchWorker
