#include "FormatCatalog.h"

#include "ZTBatchOutputSettings.h"

#include <QJsonArray>

#include <algorithm>

namespace BatchJob {

namespace {

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

ParameterSchema Quality(int standard)
{
    return {Text("quality"), ParameterType::Integer, standard, Text("higher is better and larger"), 1, 100, {}, {}};
}

ParameterSchema Effort(int standard)
{
    return {Text("effort"), ParameterType::Integer, standard, Text("higher is slower and smaller"), 0, 9, {}, {}};
}

constexpr const char* keepsAll = "keep every pixel as it is";
constexpr const char* keepsAlmostAll = "keep every pixel, but for a last step of rounding";

ParameterSchema Lossless(const char* meaning)
{
    return {Text("lossless"), ParameterType::Truth, false, Text(meaning), 0, 0, {}, {}};
}

ParameterSchema Progressive()
{
    return {Text("progressive"), ParameterType::Truth, false, Text("shows coarse first while it loads"), 0, 0, {}, {}};
}

ParameterSchema ChromaSubsampling()
{
    return {Text("chromaSubsampling"),
            ParameterType::Choice,
            Text("auto"),
            Text("how fine colour is kept; auto is 4:4:4 from quality 90"),
            0,
            0,
            {},
            {Text("4:4:4"), Text("4:2:0"), Text("auto")}};
}

ParameterSchema BitDepth(const QStringList& depths)
{
    return {Text("bitDepth"),
            ParameterType::Integer,
            QJsonValue(QJsonValue::Undefined),
            Text("bits a channel; without it those of the input, as far as the format goes: ") +
                depths.join(QStringLiteral(", ")),
            8,
            16,
            Text("bits"),
            {}};
}

// What every format takes.
QVector<ParameterSchema> WithCommonOptions(QVector<ParameterSchema> options)
{
    const QStringList kinds{Text("exif"), Text("gps"), Text("iptc"), Text("xmp"), Text("icc")};
    options.append({Text("keep"),
                    ParameterType::ChoiceList,
                    QJsonArray::fromStringList(kinds),
                    Text("which metadata are taken over"),
                    0,
                    0,
                    {},
                    kinds});
    options.append({Text("background"),
                    ParameterType::Colour,
                    Text("#ffffff"),
                    Text("stands under transparency that the format cannot hold"),
                    0,
                    0,
                    {},
                    {}});
    options.append({Text("keepFileTime"),
                    ParameterType::Truth,
                    false,
                    Text("gives the result the input's modification time"),
                    0,
                    0,
                    {},
                    {}});
    return options;
}

QVector<FormatSchema> MakeFormats()
{
    const ParameterSchema compressionLevel{
        Text("compressionLevel"), ParameterType::Integer, 6, Text("higher is slower and smaller"), 0, 9, {}, {}};
    const ParameterSchema compression{Text("compression"),
                                      ParameterType::Choice,
                                      Text("lzw"),
                                      Text("how the pixels are packed"),
                                      0,
                                      0,
                                      {},
                                      {Text("none"), Text("lzw"), Text("deflate"), Text("zstd"), Text("jpeg")}};
    return {
        {Text("JPEG"),
         {Text("jpg"), Text("jpeg"), Text("jpe"), Text("jfif")},
         false,
         true,
         {8},
         65'500,
         WithCommonOptions({Quality(85), Progressive(), ChromaSubsampling()})},
        {Text("PNG"),
         {Text("png")},
         true,
         false,
         {8, 16},
         1'000'000,
         WithCommonOptions({compressionLevel, Progressive(), BitDepth({Text("8"), Text("16")})})},
        {Text("TIFF"),
         {Text("tif"), Text("tiff")},
         true,
         true,
         {8, 16},
         10'000'000,
         WithCommonOptions({compression, Quality(85), BitDepth({Text("8"), Text("16")})})},
        {Text("WebP"),
         {Text("webp")},
         true,
         false,
         {8},
         16'383,
         WithCommonOptions({Quality(80), Lossless("keep every pixel that can be seen"), Effort(4)})},
        {Text("HEIF"),
         {Text("heic"), Text("heif")},
         true,
         false,
         {8, 10, 12},
         16'384,
         WithCommonOptions({Quality(80), Lossless(keepsAlmostAll), ChromaSubsampling(),
                            BitDepth({Text("8"), Text("10"), Text("12")})})},
        {Text("AVIF"),
         {Text("avif")},
         true,
         false,
         {8, 10, 12},
         16'384,
         WithCommonOptions({Quality(65), Lossless(keepsAlmostAll), Effort(4), ChromaSubsampling(),
                            BitDepth({Text("8"), Text("10"), Text("12")})})},
        {Text("JPEG XL"),
         {Text("jxl")},
         true,
         false,
         {8, 16},
         1'000'000,
         WithCommonOptions({Quality(85), Lossless(keepsAll), Effort(7), BitDepth({Text("8"), Text("16")})})},
        {Text("JPEG 2000"),
         {Text("jp2"), Text("j2k"), Text("jpx")},
         true,
         false,
         {8, 16},
         1'000'000,
         WithCommonOptions({Quality(85), Lossless(keepsAll), ChromaSubsampling(), BitDepth({Text("8"), Text("16")})})},
        {Text("GIF"), {Text("gif")}, true, false, {8}, 65'535, WithCommonOptions({Effort(7)})},
    };
}

// For jobs that keep each input's format: an option that is not given gets the default of that format later.
QVector<ParameterSchema> OptionsOfAllFormats()
{
    QVector<ParameterSchema> options;
    for (const FormatSchema& format : Formats()) {
        for (const ParameterSchema& option : format.options) {
            const auto isThere = std::any_of(options.begin(), options.end(), [&option](const ParameterSchema& known) {
                return known.name == option.name;
            });
            if (!isThere) {
                options.append(option);
                options.last().defaultValue = QJsonValue(QJsonValue::Undefined);
            }
        }
    }
    return options;
}

QString DepthError(const FormatSchema& format, int depth)
{
    QStringList depths;
    for (const int known : format.bitDepths) {
        depths.append(QString::number(known));
    }
    return QStringLiteral("\"bitDepth\" is %1; %2 takes %3")
        .arg(depth)
        .arg(format.name, depths.join(QStringLiteral(", ")));
}

bool HasTiffHeader(const QByteArray& head)
{
    return head.startsWith("II*") || head.startsWith("MM") || head.startsWith("II+");
}

// The brand of an ISO base media file, which says what it holds.
QString FormatOfBrand(const QByteArray& brand)
{
    if (brand == "avif" || brand == "avis") {
        return Text("AVIF");
    }
    if (brand == "crx ") {
        return Text("RAW");
    }
    const QVector<QByteArray> heif{"heic", "heix", "hevc", "hevx", "heim", "heis", "mif1", "msf1"};
    return heif.contains(brand) ? Text("HEIF") : QString();
}

const QStringList& RawExtensions()
{
    static const QStringList extensions{Text("3fr"), Text("ari"), Text("arw"), Text("cr2"), Text("cr3"), Text("crw"),
                                        Text("dcr"), Text("dng"), Text("erf"), Text("fff"), Text("iiq"), Text("k25"),
                                        Text("kdc"), Text("mef"), Text("mos"), Text("mrw"), Text("nef"), Text("nrw"),
                                        Text("orf"), Text("pef"), Text("raf"), Text("raw"), Text("rw2"), Text("rwl"),
                                        Text("sr2"), Text("srf"), Text("srw"), Text("x3f")};
    return extensions;
}

} // namespace

const QVector<FormatSchema>& Formats()
{
    static const QVector<FormatSchema> formats = MakeFormats();
    return formats;
}

const FormatSchema* FindFormat(const QString& name)
{
    const QVector<FormatSchema>& formats = Formats();
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&name](const FormatSchema& format) { return format.name == name; });
    return found == formats.end() ? nullptr : &*found;
}

const FormatSchema* FindFormatByExtension(const QString& extension)
{
    const QVector<FormatSchema>& formats = Formats();
    const QString wanted = extension.toLower();
    const auto found = std::find_if(formats.begin(), formats.end(), [&wanted](const FormatSchema& format) {
        return format.extensions.contains(wanted);
    });
    return found == formats.end() ? nullptr : &*found;
}

CheckedParameters CheckFormatOptions(const QString& format, const QByteArray& options)
{
    if (format == ZTBatchOutputSettings::GetOriginalFormat()) {
        CheckedParameters checked = CheckParameters(OptionsOfAllFormats(), options);
        const QJsonValue depth = checked.values.value(Text("bitDepth"));
        const QVector<int> depths{8, 10, 12, 16};
        if (depth.isDouble() && !depths.contains(depth.toInt())) {
            return {{}, QStringLiteral("\"bitDepth\" is %1; it must be 8, 10, 12 or 16").arg(depth.toInt())};
        }
        return checked;
    }
    const FormatSchema* schema = FindFormat(format);
    if (!schema) {
        return {{}, QStringLiteral("the format \"%1\" is unknown").arg(format)};
    }
    CheckedParameters checked = CheckParameters(schema->options, options);
    const QJsonValue depth = checked.values.value(Text("bitDepth"));
    if (depth.isDouble() && !schema->bitDepths.contains(depth.toInt())) {
        return {{}, DepthError(*schema, depth.toInt())};
    }
    if (checked.values.value(Text("compression")) == Text("jpeg") && depth.isDouble() && depth.toInt() != 8) {
        return {{}, QStringLiteral("\"bitDepth\" is %1; \"compression\" jpeg takes 8").arg(depth.toInt())};
    }
    return checked;
}

QJsonObject OptionsFor(const FormatSchema& format, const QJsonObject& accepted)
{
    QJsonObject own;
    for (const ParameterSchema& option : format.options) {
        const auto found = accepted.constFind(option.name);
        if (found != accepted.constEnd()) {
            own.insert(option.name, *found);
        }
    }
    const auto depth = own.find(Text("bitDepth"));
    if (depth != own.end()) {
        const int wanted = depth->toInt();
        const auto above = std::upper_bound(format.bitDepths.begin(), format.bitDepths.end(), wanted);
        *depth = above == format.bitDepths.begin() ? format.bitDepths.first() : *std::prev(above);
    }
    return CheckParameters(format.options, own).values;
}

QString FormatOfFile(const QByteArray& head, const QString& extension)
{
    if (head.startsWith("\xFF\xD8\xFF")) {
        return Text("JPEG");
    }
    if (head.startsWith("\x89PNG\r\n\x1A\n")) {
        return Text("PNG");
    }
    if (head.startsWith("GIF87a") || head.startsWith("GIF89a")) {
        return Text("GIF");
    }
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WEBP") {
        return Text("WebP");
    }
    if (head.startsWith("\xFF\x0A") || head.mid(4, 8) == "JXL \r\n\x87\n") {
        return Text("JPEG XL");
    }
    if (head.mid(4, 8) == "jP  \r\n\x87\n" || head.startsWith("\xFF\x4F\xFF\x51")) {
        return Text("JPEG 2000");
    }
    if (head.mid(4, 4) == "ftyp") {
        return FormatOfBrand(head.mid(8, 4));
    }
    const bool isRawByBytes = head.startsWith("FUJIFILMCCD-RAW") || head.startsWith("IIRO") ||
                              head.startsWith("IIRS") || head.startsWith("IIU") || head.startsWith("FOVb") ||
                              head.mid(8, 2) == "CR" || head.mid(6, 8) == "HEAPCCDR";
    if (isRawByBytes || (HasTiffHeader(head) && RawExtensions().contains(extension.toLower()))) {
        return Text("RAW");
    }
    return HasTiffHeader(head) ? Text("TIFF") : QString();
}

const QStringList& ReadableExtensions()
{
    static const QStringList extensions = [] {
        QStringList all = RawExtensions();
        for (const FormatSchema& format : Formats()) {
            all.append(format.extensions);
        }
        all.sort();
        return all;
    }();
    return extensions;
}

} // namespace BatchJob
