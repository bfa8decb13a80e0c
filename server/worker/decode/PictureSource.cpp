// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureSource.h"

#include "FileEnd.h"
#include "KeptPixels.h"
#include "LibraryLoader.h"
#include "Loader.h"
#include "MpfIndex.h"
#include "RawFile.h"
#include "TiffPages.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/pixels/CarriedFailure.h"
#include "server/worker/pixels/DamageText.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/VipsText.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <unistd.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

class FileDescriptor
{
public:
    explicit FileDescriptor(const QString& file)
        : value(OpenForReading(file))
    {
        if (value < 0) {
            throw DamagedFile(FileProblem(errno));
        }
        if (!IsRegularFile(value)) {
            close(value);
            throw DamagedFile(Phrase::English("it is not a regular file"));
        }
    }
    ~FileDescriptor() { close(value); }

    int Value() const { return value; }

private:
    Q_DISABLE_COPY(FileDescriptor)

    int value;
};

// The format of `file` by its first bytes and `extension`; null when the server reads no such files.
const FormatSchema* IdentifiedFormat(const QString& file, const QString& extension)
{
    const FileDescriptor descriptor(file);
    QFile head;
    head.open(descriptor.Value(), QIODevice::ReadOnly | QIODevice::Unbuffered);
    const QByteArray bytes = head.read(formatHeadSize);
    if (bytes.isEmpty()) {
        throw DamagedFile(head.error() == QFile::NoError ? Phrase::English("the file is empty") : head.errorString());
    }
    return FindReadableFormat(FormatOfFile(bytes, extension));
}

bool IsRaw(const FormatSchema& format)
{
    const Loader& loader = LoaderOf(format);
    return !loader.operation && !loader.read;
}

Picture Read(const QString& file, const Loader& loader, int shrink, const ServerLimits& limits, Warnings& warnings)
{
    const FileDescriptor descriptor(file);
    if (loader.read) {
        return loader.read(descriptor.Value(), shrink, limits, warnings);
    }
    return LoadWithLibrary(loader.operation, SourceOf(descriptor.Value()), loader.shrink, shrink);
}

} // namespace

PictureSource::PictureSource(const QString& file, const ServerLimits& limits, KeptPixels* kept)
    : file(file)
    , limits(limits)
    , kept(kept)
{
    format = IdentifiedFormat(file, QFileInfo(file).suffix());
    if (!format) {
        throw UnknownFormat(Phrase::English("no decoder knows this kind of file"));
    }
    if (IsRaw(*format)) {
        OpenRaw();
    }
    if (!raw) {
        OpenWithLoader();
    }
    const qint64 pixels = qint64(storedSize.width()) * storedSize.height();
    if (pixels > limits.pixels) {
        throw TooLarge(Phrase::English("%1 x %2 pixels are more than the limit of %3 megapixels")
                           .arg(storedSize.width())
                           .arg(storedSize.height())
                           .arg(limits.pixels / 1'000'000));
    }
}

PictureSource::~PictureSource() = default;

QDateTime PictureSource::Captured() const
{
    return raw ? raw->Captured() : QDateTime();
}

bool PictureSource::IsDeep() const
{
    return raw != nullptr || header.format() != VIPS_FORMAT_UCHAR;
}

bool PictureSource::HasAlpha() const
{
    return !raw && header.has_alpha();
}

int PictureSource::Pages() const
{
    switch (raw ? FormatPages::One : format->pages) {
    case FormatPages::One:
        return 1; // what the library calls pages of JPEG 2000 are its sizes
    case FormatPages::Listed:
        return CountViews(file);
    default:
        break;
    }
    const int pages = vips_image_get_n_pages(header.get_image());
    const bool hasSeveral = pages > 1;
    return hasSeveral && format->pages == FormatPages::Directories ? CountTiffPages(file, pages) : pages;
}

int PictureSource::PossibleShrink(double reduction) const
{
    if (raw) {
        // Each colour of the sensor has at most two of four pixels anyway.
        return reduction >= 2 ? 2 : 1;
    }
    if (LoaderOf(*format).shrink == LoaderShrink::None) {
        return 1;
    }
    // The scaling filter is better than the decoder's. It does the last factor of two, which hides what the decoder
    // did.
    constexpr double leftForFilter = 2.0;
    int shrink = 8;
    while (shrink > 1 && shrink * leftForFilter > reduction) {
        shrink /= 2;
    }
    return shrink;
}

Picture PictureSource::Load(int shrink)
{
    if (!kept || !format->isSlowToDecode) {
        return Decoded(shrink);
    }
    return kept->Get(shrink, raw ? KeptPixels::Place::InMemory : KeptPixels::Place::Flowing, warnings,
                     [this, shrink] { return Decoded(shrink); });
}

Picture PictureSource::Decoded(int shrink)
{
    if (raw) {
        // A decoder of its own: its memory is freed with the pixels.
        RawFile decoder(file, limits.workerMemory);
        return decoder.Develop(shrink > 1);
    }
    if (shrink == 1 && !isHeaderRead) {
        isHeaderRead = true;
        return WithColoursOfFile(header, colours, warnings);
    }
    return WithColoursOfFile(Read(file, LoaderOf(*format), shrink, limits, warnings), colours, warnings);
}

void PictureSource::OpenRaw()
{
    auto opened = std::make_unique<RawFile>(file, limits.workerMemory);
    if (opened->IsKnown()) {
        storedSize = opened->Size();
        orientation = opened->Orientation();
        raw = std::move(opened);
        return;
    }
    // Some files with the extension of camera files are plain TIFF files.
    format = IdentifiedFormat(file, {});
    if (!format || IsRaw(*format)) {
        throw UnknownFormat(Phrase::English("the decoder does not know this camera's files"));
    }
}

void PictureSource::OpenWithLoader()
{
    try {
        header = Read(file, LoaderOf(*format), 1, limits, warnings);
    } catch (const vips::VError& problem) {
        const QString text = TextOf(problem);
        throw Damage(text, {});
    }
    if (LoaderOf(*format).readColours) {
        colours = LoaderOf(*format).readColours(file);
    }
    storedSize = QSize(header.width(), header.height());
    orientation = OrientationOf(header);
}

PictureFailure PictureSource::Damage(const QString& libraryText, std::optional<int> percent) const
{
    if (const std::optional<PictureFailure> carried = TakeCarriedFailure()) {
        return *carried;
    }
    if (IsOutOfMemory(libraryText)) {
        return NotEnoughMemory(libraryText);
    }
    DamageKind kind = DamageKindOf(libraryText);
    if (kind == DamageKind::Damaged && IsCutOff(file)) {
        kind = DamageKind::CutOff;
    }
    return DamagedFile(percent ? DamageText(kind, *percent) : HeaderDamageText(kind), libraryText);
}

FormatNeeds NeedsOf(const PictureSource& source)
{
    return {source.IsDeep(), source.HasAlpha(), false, source.StoredSize()};
}

} // namespace BatchWorker
