// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Metadata.h"

#include "job/values/Phrase.h"

#include "CaptureTime.h"
#include "Copyright.h"
#include "MetadataEncoder.h"
#include "MetadataFile.h"
#include "MetadataTexts.h"
#include "Places.h"
#include "RemoveEntries.h"
#include "SourceTraces.h"
#include "TextsOfPicture.h"

#include "server/worker/decode/PictureSource.h"

#include <QFileInfo>

#include <exception>
#include <exiv2/exiv2.hpp>

namespace BatchWorker {

struct Metadata::Private : MetadataBlocks
{
    bool keepsExif = true;
    QString problem; ///< why everything was left out; empty if it was not

    // Calls `change`. What it leaves half done when the metadata library fails must not reach a result.
    template<typename Change>
    void OrNothing(const Change& change)
    {
        try {
            change();
        } catch (const std::exception& failure) {
            problem = QString::fromUtf8(failure.what());
            exif.clear();
            iptc.clear();
            xmp.clear();
        }
    }
};

namespace {

void StartExiv2()
{
    static const bool isStarted = [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        Exiv2::enableBMFF(); // for camera RAW that is built of boxes
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(isStarted)
}

const Exiv2::byte* Data(const QByteArray& bytes)
{
    return reinterpret_cast<const Exiv2::byte*>(bytes.constData());
}

void DescribePixels(Exiv2::ExifData& exif, const QSize& size, int dotsPerInch, bool isSrgb)
{
    constexpr std::uint16_t inches = 2;
    constexpr std::uint16_t srgb = 1;
    constexpr std::uint16_t otherColours = 0xffff;
    exif["Exif.Image.Orientation"] = std::uint16_t(1);
    exif["Exif.Image.XResolution"] = Exiv2::URational(std::uint32_t(dotsPerInch), 1);
    exif["Exif.Image.YResolution"] = Exiv2::URational(std::uint32_t(dotsPerInch), 1);
    exif["Exif.Image.ResolutionUnit"] = inches;
    exif["Exif.Photo.PixelXDimension"] = std::uint32_t(size.width());
    exif["Exif.Photo.PixelYDimension"] = std::uint32_t(size.height());
    exif["Exif.Photo.ColorSpace"] = isSrgb ? srgb : otherColours;
}

QString LostNoticeText(const CopyrightNotice& notice)
{
    constexpr int longest = 100;
    const bool isShort = notice.text.size() <= longest;
    const QString text = isShort ? notice.text : notice.text.left(longest) + QStringLiteral("...");
    if (notice.groups.size() == 1) {
        return BatchJob::Phrase::English(
                   "the copyright notice \"%1\" is only in %2, which is not kept; keep=copyright keeps "
                   "it")
            .arg(text, notice.groups.first());
    }
    QStringList others = notice.groups;
    const QString last = others.takeLast();
    return BatchJob::Phrase::English(
               "the copyright notice \"%1\" is only in %2 and %3, which are not kept; keep=copyright "
               "keeps it")
        .arg(text, others.join(QStringLiteral(", ")), last);
}

} // namespace

Metadata::Metadata()
    : d(std::make_unique<Private>())
{
    StartExiv2();
}

Metadata::~Metadata() = default;
Metadata::Metadata(Metadata&& other) noexcept = default;
Metadata& Metadata::operator=(Metadata&& other) noexcept = default;

Metadata Metadata::Of(const QString& file, const PictureSource& source, BatchJob::Warnings& warnings)
{
    Metadata metadata;
    static_cast<MetadataBlocks&>(*metadata.d) = ReadMetadata(file, source, warnings);
    return metadata;
}

QByteArray Metadata::Profile() const
{
    return d->profile;
}

std::optional<int> Metadata::Orientation() const
{
    const auto found = d->exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    const long orientation = found == d->exif.end() || found->count() == 0 ? 0 : found->toLong();
    return orientation >= 1 && orientation <= 8 ? std::optional<int>(int(orientation)) : std::nullopt;
}

QDateTime Metadata::Captured() const
{
    return CaptureTime(*d);
}

BatchJob::PictureTexts Metadata::Texts() const
{
    return TextsOf(*d);
}

void Metadata::KeepOnly(const QStringList& kinds, BatchJob::Warnings& warnings)
{
    const bool keepsPlaces = kinds.contains(QLatin1String("gps"));
    const bool keepsCopyright = kinds.contains(QLatin1String("copyright"));
    d->keepsExif = kinds.contains(QLatin1String("exif"));
    d->OrNothing([&] {
        const CopyrightNotice notice = NoticeIn(*d);
        if (!d->keepsExif) {
            RemoveIf(d->exif, [&](const Exiv2::Exifdatum& entry) {
                return !IsPosition(entry) && !(keepsCopyright && IsOfCopyright(entry));
            });
        }
        if (!kinds.contains(QLatin1String("iptc"))) {
            keepsCopyright ? KeepCopyright(d->iptc) : d->iptc.clear();
        }
        if (!kinds.contains(QLatin1String("xmp"))) {
            keepsCopyright ? KeepCopyright(d->xmp) : d->xmp.clear();
        }
        if (!keepsPlaces) {
            RemovePlaces(d->exif);
            RemovePlaces(d->iptc);
            RemovePlaces(d->xmp);
        }
        // Who keeps nothing has said so.
        if (!kinds.isEmpty() && !notice.groups.isEmpty() && NoticeIn(*d).groups.isEmpty()) {
            warnings.append({BatchJob::WarningKind::MetadataLost, LostNoticeText(notice)});
        }
    });
}

void Metadata::Set(const MetadataTexts& texts)
{
    d->OrNothing([&] { SetTexts(*d, texts); });
}

bool Metadata::GoWithoutExif() const
{
    return !d->keepsExif && d->exif.empty();
}

void Metadata::DescribeResult(const QSize& size, int dotsPerInch, bool isSrgb)
{
    d->OrNothing([&] {
        RemoveSourceTraces(d->exif);
        RemoveSourceTraces(d->iptc);
        RemoveSourceTraces(d->xmp);
        if (!d->exif.empty()) {
            DescribePixels(d->exif, size, dotsPerInch, isSrgb);
        }
    });
}

void Metadata::MoveIptcToXmp()
{
    d->OrNothing([this] {
        Exiv2::XmpData fromIptc;
        Exiv2::copyIptcToXmp(d->iptc, fromIptc);
        for (const Exiv2::Xmpdatum& entry : fromIptc) {
            if (d->xmp.findKey(Exiv2::XmpKey(entry.key())) == d->xmp.end()) {
                d->xmp.add(entry);
            }
        }
        d->iptc.clear();
    });
}

void Metadata::RemoveUnwritable(BatchJob::Warnings& warnings)
{
    if (!d->problem.isEmpty()) {
        warnings.append({BatchJob::WarningKind::MetadataLost,
                         BatchJob::Phrase::English("metadata is left out: %1").arg(d->problem)});
    }
    BatchWorker::RemoveUnwritable(*d, warnings);
}

QByteArray Metadata::Exif(int longest) const
{
    const QByteArray all = Encoded(d->exif);
    if (longest <= 0 || all.size() <= longest) {
        return all;
    }
    Exiv2::ExifData shorter = d->exif;
    RemoveIf(shorter, IsMakerNote);
    return Encoded(shorter);
}

QByteArray Metadata::Iptc() const
{
    return Encoded(d->iptc);
}

QByteArray Metadata::Xmp(bool withWrapper) const
{
    return Encoded(d->xmp, withWrapper);
}

void Metadata::WriteInto(const QString& file, bool withProfile, const QByteArray& profile) const
{
    MetadataFile opened(file, MetadataFile::Use::Writing);
    Exiv2::Image& image = opened.Image();
    image.readMetadata();
    for (const Exiv2::Exifdatum& entry : d->exif) {
        image.exifData()[entry.key()] = entry.value();
    }
    image.setIptcData(d->iptc);
    image.setXmpData(d->xmp);
    if (withProfile) {
        Exiv2::DataBuf bytes(Data(profile), long(profile.size()));
        image.setIccProfile(bytes);
    }
    opened.Write();
}

bool Metadata::IsEmpty() const
{
    return d->exif.empty() && d->iptc.empty() && d->xmp.empty();
}

QDateTime CapturedOrChanged(const Metadata& metadata, const QString& file)
{
    const QDateTime captured = metadata.Captured();
    return captured.isValid() ? captured : QFileInfo(file).lastModified();
}

void OrientBy(const Metadata& metadata, PictureSource& source)
{
    if (!source.Format().metadata.isOrientationInDecoder) {
        source.SetOrientation(metadata.Orientation().value_or(source.Orientation()));
    }
}

} // namespace BatchWorker
