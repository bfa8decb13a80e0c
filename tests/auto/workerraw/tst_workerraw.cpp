#include "BatchValues.h"
#include "Colour.h"
#include "ColourProfile.h"
#include "WorkerBench.h"

#include <QDateTime>
#include <QTest>
#include <QtEndian>

#include <cmath>

using namespace BatchServer;

namespace {

QString Text(const char* text)
{
    return QString::fromLatin1(text);
}

template<typename Number>
QByteArray Little(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// Makes a TIFF directory with its values behind it.
class Directory
{
public:
    void Add(quint16 tag, quint16 type, quint32 count, const QByteArray& value)
    {
        entries.insert(tag, {type, count, value});
    }
    void AddShort(quint16 tag, quint16 value) { Add(tag, 3, 1, Little(value)); }
    void AddLong(quint16 tag, quint32 value) { Add(tag, 4, 1, Little(value)); }
    void AddText(quint16 tag, const QByteArray& text) { Add(tag, 2, quint32(text.size() + 1), text + '\0'); }
    void AddFractions(quint16 tag, quint16 type, const QVector<double>& values)
    {
        constexpr int denominator = 10'000;
        QByteArray bytes;
        for (const double value : values) {
            bytes += Little(qint32(std::lround(value * denominator))) + Little(qint32(denominator));
        }
        Add(tag, type, quint32(values.size()), bytes);
    }

    /// `start`: where the directory stands in the file.
    QByteArray Bytes(quint32 start) const
    {
        QByteArray directory = Little(quint16(entries.size()));
        QByteArray values;
        const quint32 valuesStart = start + 2 + quint32(entries.size()) * 12 + 4;
        for (auto it = entries.begin(); it != entries.end(); ++it) {
            const Entry& entry = it.value();
            directory += Little(it.key()) + Little(entry.type) + Little(entry.count);
            if (entry.value.size() <= 4) {
                directory += entry.value.leftJustified(4, '\0');
            } else {
                directory += Little(valuesStart + quint32(values.size()));
                values += entry.value + QByteArray(entry.value.size() % 2, '\0');
            }
        }
        return directory + Little(quint32(0)) + values;
    }

private:
    struct Entry
    {
        quint16 type = 0;
        quint32 count = 0;
        QByteArray value;
    };
    QMap<quint16, Entry> entries;
};

constexpr int width = 96;
constexpr int height = 64;

// Four patches, in light: what the sensor would see without any filter or balance.
const QVector<QVector<double>> patches{{0.20, 0.20, 0.20}, {0.60, 0.10, 0.10}, {0.05, 0.50, 0.10}, {0.02, 0.05, 0.70}};

int PatchAt(int x, int y)
{
    return (x >= width / 2 ? 1 : 0) + (y >= height / 2 ? 2 : 0);
}

// A camera whose filters are those of sRGB, and which sees red and blue `neutral` times as strong as they are.
QByteArray Dng(int orientation, const QVector<double>& neutral)
{
    Directory directory;
    directory.AddLong(254, 0);
    directory.AddLong(256, width);
    directory.AddLong(257, height);
    directory.AddShort(258, 16);
    directory.AddShort(259, 1);
    directory.AddShort(262, 32803); // colour filters
    directory.AddText(271, "Maker");
    directory.AddText(272, "Camera");
    constexpr quint32 header = 8;
    directory.AddLong(273, header);
    directory.AddShort(274, quint16(orientation));
    directory.AddShort(277, 1);
    directory.AddLong(278, height);
    directory.AddLong(279, width * height * 2);
    directory.AddShort(284, 1);
    directory.Add(33421, 3, 2, Little(quint16(2)) + Little(quint16(2)));
    directory.Add(33422, 1, 4, QByteArray("\0\1\1\2", 4));
    directory.Add(50706, 1, 4, QByteArray("\1\4\0\0", 4));
    directory.Add(50707, 1, 4, QByteArray("\1\1\0\0", 4));
    directory.AddText(50708, "Maker Camera");
    directory.AddShort(50714, 0);
    directory.AddLong(50717, 65'535);
    directory.AddFractions(50721, 10, {3.2404, -1.5371, -0.4985, -0.9693, 1.8760, 0.0416, 0.0556, -0.2040, 1.0572});
    directory.AddFractions(50728, 5, neutral);
    directory.AddShort(50778, 21); // daylight
    QByteArray pixels;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int channel = (y % 2) + (x % 2);
            const double light = patches[PatchAt(x, y)][channel] * neutral[channel];
            pixels += Little(quint16(std::lround(light * 65'535)));
        }
    }
    const quint32 start = header + quint32(pixels.size());
    return QByteArray("II*\0", 4) + Little(start) + pixels + directory.Bytes(start);
}

double Encoded(double light)
{
    return 255 * (light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055);
}

} // namespace

/// Camera RAW files, which the test makes itself.
class WorkerRawTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void developsPictures_data();
    void developsPictures();
    void turnsPicturesUpright();
    void keepsTheDepth();
    void reportsDamage();
    void readsPlainTiffFilesUnderTheName();
    void probes();
};

void WorkerRawTest::initTestCase()
{
    StartPictures();
}

void WorkerRawTest::developsPictures_data()
{
    QTest::addColumn<QVector<double>>("neutral");
    QTest::addColumn<int>("longSide");
    const QVector<double> even{1, 1, 1};
    const QVector<double> lamp{0.5, 1, 0.25};
    QTest::newRow("daylight") << even << width;
    QTest::newRow("under a lamp") << lamp << width;
    QTest::newRow("half the size, which needs half the decoding") << even << width / 2;
    QTest::newRow("a quarter, under a lamp") << lamp << width / 4;
}

void WorkerRawTest::developsPictures()
{
    QFETCH(const QVector<double>, neutral);
    QFETCH(const int, longSide);

    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, neutral));
    const auto edit = [longSide](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(BatchValues::SizeRestriction::Fit);
        size.size = longSide;
        output.SetImageSizeSettings(size);
    };
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG"), {{Text("bitDepth"), 8}}, edit).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(result.width(), longSide);
    QCOMPARE(result.height(), longSide * height / width);
    for (int patch = 0; patch < patches.size(); ++patch) {
        const int x = result.width() * ((patch % 2) * 2 + 1) / 4;
        const int y = result.height() * ((patch / 2) * 2 + 1) / 4;
        const std::vector<double> pixel = result.getpoint(x, y);
        for (int channel = 0; channel < 3; ++channel) {
            const double expected = Encoded(patches[patch][channel]);
            QVERIFY2(std::abs(pixel[std::size_t(channel)] - expected) <= 2.0,
                     qPrintable(QStringLiteral("patch %1, channel %2: %3 instead of %4")
                                    .arg(patch)
                                    .arg(channel)
                                    .arg(pixel[std::size_t(channel)])
                                    .arg(expected)));
        }
    }
}

void WorkerRawTest::turnsPicturesUpright()
{
    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(6, {1, 1, 1}));
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.png"), Text("PNG"), {{Text("bitDepth"), 8}}).reason, QString());
    const Picture result = ReadPicture(bench.Path(Text("out.png")));
    QCOMPARE(result.width(), height);
    QCOMPARE(result.height(), width);
    // By a quarter to the right: what was at the bottom left is at the top left now.
    QVERIFY(std::abs(result.getpoint(height / 4, width / 4)[1] - Encoded(patches[2][1])) <= 2.0);
}

void WorkerRawTest::keepsTheDepth()
{
    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, {1, 1, 1}));
    QCOMPARE(bench.Make(Text("in.dng"), Text("out.tif"), Text("TIFF")).reason, QString());
    QCOMPARE(ReadPicture(bench.Path(Text("out.tif"))).format(), VIPS_FORMAT_USHORT);
}

void WorkerRawTest::reportsDamage()
{
    WorkerBench bench;
    QByteArray dng = Dng(1, {1, 1, 1});
    // The directory in front, as cameras have it, so that the pixels are what is missing.
    bench.WriteBytes(Text("in.dng"), dng.left(dng.size() - 200));
    const Report cut = bench.Make(Text("in.dng"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(cut.failure, Case::Input);
    bench.WriteBytes(Text("in.cr2"), QByteArray("II*\0\x10\0\0\0CR\2\0", 12) + QByteArray(2000, 'x'));
    const Report nonsense = bench.Make(Text("in.cr2"), Text("out.tif"), Text("TIFF"));
    QCOMPARE(nonsense.failure, Case::Input);
    QVERIFY(!nonsense.reason.isEmpty());
    QVERIFY(!QFile::exists(bench.Path(Text("out.tif"))));
}

void WorkerRawTest::readsPlainTiffFilesUnderTheName()
{
    WorkerBench bench;
    WritePicture(Chart(60, 40), bench.Path(Text("plain.tif")));
    QVERIFY(QFile::rename(bench.Path(Text("plain.tif")), bench.Path(Text("plain.dng"))));
    QCOMPARE(bench.Make(Text("plain.dng"), Text("out.png"), Text("PNG")).reason, QString());
    QCOMPARE(LargestDifference(ReadPicture(bench.Path(Text("out.png"))), Chart(60, 40)), 0.0);
}

void WorkerRawTest::probes()
{
    WorkerBench bench;
    bench.WriteBytes(Text("in.dng"), Dng(1, {1, 1, 1}));
    const Report probe = bench.Worker().Do(ProbeTask{1, bench.Path(Text("in.dng"))});
    QCOMPARE(probe.reason, QString());
    QCOMPARE(probe.inputFormat, Text("RAW"));
    QCOMPARE(probe.nearestFormat, Text("TIFF"));
    QVERIFY(probe.captured.isValid());
}

QTEST_GUILESS_MAIN(WorkerRawTest)
#include "tst_workerraw.moc"
