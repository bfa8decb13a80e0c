#include "Encoder.h"

#include "ResultTarget.h"

#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QColor>
#include <QHash>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

using namespace BatchJob;

namespace BatchWorker {

namespace {

using Options = vips::VOption;

int Integer(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toInt();
}

bool Truth(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toBool();
}

QString Choice(const QJsonObject& options, const char* name)
{
    return options[QLatin1String(name)].toString();
}

bool KeepsColourFine(const QJsonObject& options)
{
    constexpr int fineFrom = 90;
    const QString wanted = Choice(options, "chromaSubsampling");
    return wanted == QLatin1String("4:4:4") ||
           (wanted == QLatin1String("auto") && (Integer(options, "quality") >= fineFrom || Truth(options, "lossless")));
}

VipsForeignSubsample Subsampling(const QJsonObject& options)
{
    return KeepsColourFine(options) ? VIPS_FOREIGN_SUBSAMPLE_OFF : VIPS_FOREIGN_SUBSAMPLE_ON;
}

// The efforts of the options, 0 to 9, on the scale of an encoder.
int Effort(const QJsonObject& options, int least, int most)
{
    return least + int(std::lround(Integer(options, "effort") * (most - least) / 9.0));
}

VipsForeignTiffCompression TiffCompression(const QJsonObject& options)
{
    static const QHash<QString, VipsForeignTiffCompression> compressions{
        {QStringLiteral("none"), VIPS_FOREIGN_TIFF_COMPRESSION_NONE},
        {QStringLiteral("lzw"), VIPS_FOREIGN_TIFF_COMPRESSION_LZW},
        {QStringLiteral("deflate"), VIPS_FOREIGN_TIFF_COMPRESSION_DEFLATE},
        {QStringLiteral("zstd"), VIPS_FOREIGN_TIFF_COMPRESSION_ZSTD},
        {QStringLiteral("jpeg"), VIPS_FOREIGN_TIFF_COMPRESSION_JPEG},
    };
    return compressions.value(Choice(options, "compression"), VIPS_FOREIGN_TIFF_COMPRESSION_LZW);
}

void SetJpegOptions(Options* set, const QJsonObject& options, const Picture&)
{
    set->set("Q", Integer(options, "quality"))
        ->set("interlace", Truth(options, "progressive"))
        ->set("subsample_mode", Subsampling(options));
}

void SetPngOptions(Options* set, const QJsonObject& options, const Picture&)
{
    set->set("compression", Integer(options, "compressionLevel"))->set("interlace", Truth(options, "progressive"));
}

void SetTiffOptions(Options* set, const QJsonObject& options, const Picture& picture)
{
    constexpr guint64 largestClassic = guint64(3) << 30; // offsets of 32 bits, with room for what packing may add
    set->set("compression", TiffCompression(options))
        ->set("Q", Integer(options, "quality"))
        ->set("resunit", VIPS_FOREIGN_TIFF_RESUNIT_INCH)
        ->set("bigtiff", VIPS_IMAGE_SIZEOF_IMAGE(picture.get_image()) > largestClassic);
}

void SetWebpOptions(Options* set, const QJsonObject& options, const Picture&)
{
    set->set("Q", Integer(options, "quality"))
        ->set("lossless", Truth(options, "lossless"))
        ->set("effort", Effort(options, 0, 6));
}

int DeepHeifBits(const QJsonObject& options)
{
    constexpr int most = 12;
    return options[QLatin1String("bitDepth")].toInt(most);
}

void SetHeifOptions(Options* set, const QJsonObject& options, const Picture& picture)
{
    set->set("Q", Integer(options, "quality"))
        ->set("lossless", Truth(options, "lossless"))
        ->set("bitdepth", HasSixteenBits(picture) ? DeepHeifBits(options) : 8)
        ->set("subsample_mode", Subsampling(options))
        ->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_HEVC);
}

void SetAvifOptions(Options* set, const QJsonObject& options, const Picture& picture)
{
    SetHeifOptions(set, options, picture);
    set->set("compression", VIPS_FOREIGN_HEIF_COMPRESSION_AV1)->set("effort", Effort(options, 0, 9));
}

void SetJxlOptions(Options* set, const QJsonObject& options, const Picture&)
{
    set->set("Q", Integer(options, "quality"))
        ->set("lossless", Truth(options, "lossless"))
        ->set("effort", Effort(options, 3, 9));
}

void SetJp2Options(Options* set, const QJsonObject& options, const Picture& picture)
{
    // The library ends the process over anything but three bands to be subsampled.
    const bool isColourOnly = picture.bands() == 3;
    set->set("Q", Integer(options, "quality"))
        ->set("lossless", Truth(options, "lossless"))
        ->set("subsample_mode", isColourOnly ? Subsampling(options) : VIPS_FOREIGN_SUBSAMPLE_OFF);
}

void SetGifOptions(Options* set, const QJsonObject& options, const Picture&)
{
    set->set("effort", Effort(options, 1, 10));
}

struct Saver
{
    const char* operation;
    void (*setOptions)(Options*, const QJsonObject&, const Picture&);
};

const Saver& SaverOf(const FormatSchema& format)
{
    static const QHash<QString, Saver> savers{
        {QStringLiteral("JPEG"), {"jpegsave_target", SetJpegOptions}},
        {QStringLiteral("PNG"), {"pngsave_target", SetPngOptions}},
        {QStringLiteral("TIFF"), {"tiffsave_target", SetTiffOptions}},
        {QStringLiteral("WebP"), {"webpsave_target", SetWebpOptions}},
        {QStringLiteral("HEIF"), {"heifsave_target", SetHeifOptions}},
        {QStringLiteral("AVIF"), {"heifsave_target", SetAvifOptions}},
        {QStringLiteral("JPEG XL"), {"jxlsave_target", SetJxlOptions}},
        {QStringLiteral("JPEG 2000"), {"jp2ksave_target", SetJp2Options}},
        {QStringLiteral("GIF"), {"gifsave_target", SetGifOptions}},
    };
    const auto found = savers.constFind(format.name);
    Q_ASSERT(found != savers.constEnd());
    return *found;
}

int DepthFor(const FormatSchema& format, const QJsonObject& options, bool isDeepPicture)
{
    const bool isPackedAsJpeg = Choice(options, "compression") == QLatin1String("jpeg");
    if (format.bitDepths.last() == 8 || isPackedAsJpeg) {
        return 8;
    }
    const QJsonValue wanted = options[QLatin1String("bitDepth")];
    const bool isDeep = wanted.isDouble() ? wanted.toInt() > 8 : isDeepPicture;
    return isDeep ? 16 : 8;
}

// A library that is there may still lack the codec behind it; writing a few pixels tells.
bool TryToWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    try {
        const Picture black = Picture::black(64, 64, Picture::option()->set("bands", 3))
                                  .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
        const Picture ready = WithDepth(black, isDeep ? 16 : 8);
        Options* set = Picture::option()->set("in", ready)->set("target", vips::VTarget::new_to_memory());
        SaverOf(format).setOptions(set, options, ready);
        Picture::call(SaverOf(format).operation, set);
        return true;
    } catch (const vips::VError&) {
        vips_error_clear();
        return false;
    }
}

// The same for a deep picture in a process of its own, for encoders that are known to fall over instead of failing.
bool TryToWriteElsewhere(const FormatSchema& format, const QJsonObject& options)
{
    constexpr int longest = 20; // seconds
    const pid_t child = fork();
    if (child == 0) {
        alarm(longest);
        close(STDERR_FILENO);
        _exit(TryToWrite(format, options, true) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    const bool hasEnded = child > 0 && waitpid(child, &status, 0) == child;
    return hasEnded && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// By the name of a format and the bits of a channel.
using KnownEncoders = QHash<QPair<QString, int>, bool>;

// All at once, and before the first of them is used: their libraries keep threads, which a copy of the process lacks
// and would wait for.
void LearnDeepHeif(KnownEncoders& known)
{
    for (const QString& name : {QStringLiteral("HEIF"), QStringLiteral("AVIF")}) {
        const FormatSchema& format = *FindFormat(name);
        for (const int bits : {10, 12}) {
            const QJsonObject options = OptionsFor(format, {{QStringLiteral("bitDepth"), bits}});
            known.insert({name, bits}, TryToWriteElsewhere(format, options));
        }
    }
}

bool CarriesBlocks(const Picture& picture)
{
    return picture.get_typeof(VIPS_META_ICC_NAME) != 0 || picture.get_typeof(VIPS_META_XMP_NAME) != 0;
}

// These encoders make EXIF up where there is none, unless they leave out everything. To a JPEG file the rest can be
// added later.
bool IsStripped(const Saver& saver, const Picture& picture, bool withoutExif)
{
    const bool isJpeg = saver.setOptions == SetJpegOptions;
    const bool isHeif = saver.operation == QByteArray("heifsave_target");
    return withoutExif && (isJpeg || (isHeif && !CarriesBlocks(picture)));
}

} // namespace

bool CanWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    const bool isHeif = SaverOf(format).operation == QByteArray("heifsave_target");
    const bool isDeepHeif = isHeif && DepthFor(format, options, isDeep) > 8;
    const int depth = isDeepHeif ? DeepHeifBits(options) : 8;
    static KnownEncoders known;
    const QPair<QString, int> key(format.name, depth);
    if (isHeif && !known.contains({format.name, DeepHeifBits({})})) {
        LearnDeepHeif(known);
    }
    if (!known.contains(key)) {
        known.insert(key, TryToWrite(format, OptionsFor(format, {}), false));
    }
    return known.value(key);
}

Picture ReadyFor(const FormatSchema& format, const QJsonObject& options, const Picture& picture)
{
    Picture ready = picture;
    if (!format.holdsTransparency) {
        constexpr int opaqueColour = 7; // "#rrggbb"; what lies under everything has no use for an alpha
        ready = Flattened(ready, QColor(Choice(options, "background").left(opaqueColour)));
    }
    return WithDepth(ready, DepthFor(format, options, HasSixteenBits(ready)));
}

void Encode(const Picture& picture, const FormatSchema& format, const QJsonObject& options, const QByteArray& before,
            bool withoutExif, int descriptor)
{
    const Saver& saver = SaverOf(format);
    const ResultTarget result(descriptor, before);
    Options* set = Picture::option()->set("in", picture)->set("target", result.Target());
    saver.setOptions(set, options, picture);
    if (IsStripped(saver, picture, withoutExif)) {
        set->set("strip", true);
    }
    const auto checkFile = [&result] {
        if (result.Problem() != 0) {
            vips_error_clear();
            throw OutputFailed(qt_error_string(result.Problem()));
        }
    };
    try {
        Picture::call(saver.operation, set);
    } catch (const vips::VError&) {
        checkFile();
        throw;
    }
    checkFile();
}

} // namespace BatchWorker
