// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "server/worker/pixels/DamageText.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QtEndian>
#include <QtTest>

using namespace BatchProtocol;
using namespace BatchWorker;
using BatchJob::PolicyKind;

namespace {

/// Pixels that no encoder can make small: a place in the file is the same place in the picture.
Picture Grain(int width, int height)
{
    return Noise({3, 8, false}, width, height);
}

/// A value of one entry of a TIFF directory.
struct Field
{
    quint16 tag;
    quint16 type;
    quint32 value;
};

/// A grey TIFF file of 4 x 4 pixels with `more` fields behind those that it needs.
QByteArray SmallTiff(const QVector<Field>& more)
{
    constexpr quint16 shortType = 3;
    constexpr quint16 longType = 4;
    constexpr int header = 8;
    constexpr int pixels = 16;
    const QVector<Field> fields = QVector<Field>{{256, shortType, 4}, {257, shortType, 4}, {258, shortType, 8},
                                                 {259, shortType, 1}, {262, shortType, 1}, {273, longType, header},
                                                 {277, shortType, 1}, {278, shortType, 4}, {279, longType, pixels}} +
                                  more;
    QByteArray bytes("II*\0", 4);
    const auto append = [&bytes](auto number) {
        char raw[sizeof(number)];
        qToLittleEndian(number, raw);
        bytes.append(raw, sizeof(number));
    };
    append(quint32(header + pixels));
    bytes.append(QByteArray(pixels, 'x'));
    append(quint16(fields.size()));
    for (const Field& field : fields) {
        append(field.tag);
        append(field.type);
        append(quint32(1));
        append(field.value);
    }
    append(quint32(0));
    return bytes;
}

} // namespace

/// What a worker says of files that it cannot read: in words, of this file alone, and what the library says apart.
class tst_WorkerMessagesOfDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { bench.reset(); }
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void messagesStayWithTheirPicture_data();
    void messagesStayWithTheirPicture();
    void saysHowMuchIsThere_data();
    void saysHowMuchIsThere();
    void privateFieldsAreNoWarnings_data();
    void privateFieldsAreNoWarnings();
    void effectsNameTheirFile();
    void knowsMessagesOfLibraries_data();
    void knowsMessagesOfLibraries();

private:
    /// Writes "broken.EXTENSION": a picture whose bytes from `at`, a part of the whole, are missing or damaged.
    void WriteBroken(const QString& extension, double at, bool isCut, const char* options = "") const;
    QString NameIn(const QString& extension) const { return Text("broken.") + extension; }
    static void AddBrokenFiles();

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerMessagesOfDamage::initTestCase()
{
    StartPictures();
}

void tst_WorkerMessagesOfDamage::init()
{
    bench = std::make_unique<WorkerBench>();
}

void tst_WorkerMessagesOfDamage::WriteBroken(const QString& extension, double at, bool isCut, const char* options) const
{
    constexpr int damaged = 40;
    const QString whole = Text("whole.") + extension;
    WritePicture(Grain(100, 800), bench->Path(whole), options);
    QByteArray bytes = bench->Bytes(whole);
    const int place = int(bytes.size() * at);
    if (isCut) {
        bytes.truncate(place);
    } else {
        for (int i = 0; i < damaged; ++i) {
            bytes[place + i] = char(~bytes[place + i]);
        }
    }
    bench->WriteBytes(NameIn(extension), bytes);
}

void tst_WorkerMessagesOfDamage::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<double>("at");
    QTest::addColumn<bool>("isCut");
    QTest::addColumn<QString>("reason");
    const QString endsEarly = Text("the file ends before the picture is complete");
    const QString noHeader = Text("the file is damaged; its header cannot be read");
    QTest::newRow("PNG ends early") << "png" << 0.5 << true << "the file ends after NN % of the picture";
    QTest::newRow("PNG ends in its header") << "png" << 0.0001 << true << endsEarly;
    QTest::newRow("PNG is damaged") << "png" << 0.5 << false << "the file is damaged after NN % of the picture";
    QTest::newRow("JPEG ends early") << "jpg" << 0.5 << true << "the file ends after NN % of the picture";
    QTest::newRow("JPEG ends in its header") << "jpg" << 0.001 << true << "the file ends before its picture begins";
    QTest::newRow("TIFF ends early") << "tif" << 0.5 << true << endsEarly; // The directory is at the end.
    QTest::newRow("GIF ends early") << "gif" << 0.5 << true << endsEarly;
    QTest::newRow("WebP ends early") << "webp" << 0.5 << true << endsEarly;
    QTest::newRow("HEIF ends early") << "heic" << 0.5 << true << endsEarly;
    QTest::newRow("AVIF ends early") << "avif" << 0.5 << true << endsEarly;
    QTest::newRow("PNG with a damaged header") << "png" << 0.0 << false << noHeader;
}

void tst_WorkerMessagesOfDamage::saysWhatIsWrong()
{
    QFETCH(const QString, extension);
    QFETCH(const double, at);
    QFETCH(const bool, isCut);
    QFETCH(const QString, reason);
    SKIP_WHERE(MissingEncoder(extension));
    if (at == 0.0) {
        bench->WriteBytes(NameIn(extension), QByteArray("\x89PNG\r\n\x1A\n") + QByteArray(100, '\0'));
    } else if (at == 0.0001) {
        bench->WriteBytes(NameIn(extension), QByteArray("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR\0\0", 18));
    } else {
        WriteBroken(extension, at, isCut);
    }
    const Report report = bench->Make(NameIn(extension), Text("out.png"), Text("PNG"));
    QCOMPARE(report.failure, PolicyKind::Input);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ReadFileError));
    const QString said = QString(report.reason).replace(QRegularExpression(Text("[0-9]+ %")), Text("NN %"));
    QCOMPARE(said, reason);
    const bool isFoundByWorker = extension == Text("jpg"); // No library says more.
    QCOMPARE(report.detail.isEmpty(), isFoundByWorker);
    QVERIFY2(!bench->Names().contains(Text("out.png")), "There must be no result.");
}

void tst_WorkerMessagesOfDamage::AddBrokenFiles()
{
    QTest::addColumn<QString>("extension");
    for (const char* extension : {"png", "jpg", "tif", "gif", "webp"}) {
        QTest::newRow(extension) << QString::fromLatin1(extension);
    }
}

void tst_WorkerMessagesOfDamage::messagesStayWithTheirPicture_data()
{
    AddBrokenFiles();
}

// Libraries collect their messages until somebody clears them, also those of pictures that could be read nevertheless.
void tst_WorkerMessagesOfDamage::messagesStayWithTheirPicture()
{
    QFETCH(const QString, extension);
    WriteBroken(extension, 0.5, true);
    const Report alone = bench->Make(NameIn(extension), Text("out.png"), Text("PNG"));
    QVERIFY(alone.failure == PolicyKind::Input);
    // A profile that is cut off: the picture is written, and the library complains.
    Picture odd = Grain(64, 64).copy();
    const QByteArray profile(100, 'p');
    odd.set(VIPS_META_ICC_NAME, nullptr, const_cast<char*>(profile.constData()), size_t(profile.size()));
    for (const char* before : {"odd.webp", "odd.jpg", "odd.tif", "odd.png"}) {
        WritePicture(odd, bench->Path(Text(before)));
        bench->Make(Text(before), Text("before.tif"), Text("TIFF"));
    }
    for (const char* other : {"png", "jpg", "tif", "gif", "webp"}) {
        const Report again = bench->Make(NameIn(extension), Text("out.png"), Text("PNG"));
        QCOMPARE(again.reason, alone.reason);
        QCOMPARE(again.detail, alone.detail);
        if (Text(other) != extension) {
            WriteBroken(Text(other), 0.5, true);
            QVERIFY(bench->Make(NameIn(Text(other)), Text("out.png"), Text("PNG")).failure == PolicyKind::Input);
        }
    }
}

void tst_WorkerMessagesOfDamage::saysHowMuchIsThere_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QByteArray>("options");
    for (const char* extension : {"jpg", "png"}) {
        QTest::newRow(extension) << QString::fromLatin1(extension) << QByteArray();
    }
}

void tst_WorkerMessagesOfDamage::saysHowMuchIsThere()
{
    QFETCH(const QString, extension);
    QFETCH(const QByteArray, options);
    constexpr int blocks = 5; // Decoders read lines in blocks, and some blocks ahead.
    for (const int percent : {25, 60, 90}) {
        WriteBroken(extension, percent / 100.0, true, options.constData());
        const Report report = bench->Make(NameIn(extension), Text("out.png"), Text("PNG"));
        const QRegularExpression number(Text("^the file ends after ([0-9]+) % of the picture$"));
        const int said = number.match(report.reason).captured(1).toInt();
        QVERIFY2(said <= percent + 2 && said >= percent - blocks,
                 qPrintable(Text("%1 %: ").arg(percent) + report.reason));
    }
}

void tst_WorkerMessagesOfDamage::privateFieldsAreNoWarnings_data()
{
    QTest::addColumn<QVector<int>>("tags");
    QTest::newRow("none") << QVector<int>();
    QTest::newRow("one private field") << QVector<int>{65'000};
    QTest::newRow("many private fields") << QVector<int>{50'900, 60'001, 60'002, 60'003, 65'001, 65'002, 65'003};
    QTest::newRow("not in order") << QVector<int>{65'000, 305};
}

void tst_WorkerMessagesOfDamage::privateFieldsAreNoWarnings()
{
    QFETCH(const QVector<int>, tags);
    QVector<Field> fields;
    for (const int tag : tags) {
        fields.append({quint16(tag), quint16(tag == 305 ? 2 : 4), 7});
    }
    bench->WriteBytes(Text("in.tif"), SmallTiff(fields));
    const Report report = bench->Make(Text("in.tif"), Text("out.png"), Text("PNG"));
    QCOMPARE(report.reason, QString());
    QCOMPARE(BatchJob::TextsOf(report.warnings), QStringList());
}

void tst_WorkerMessagesOfDamage::effectsNameTheirFile()
{
    WritePicture(Grain(64, 64), bench->Path(Text("in.png")));
    WriteBroken(Text("png"), 0.01, true);
    const QString logo = bench->Path(NameIn(Text("png")));
    const Job job = JobOf([&logo](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(Text("PNG"), {});
        document.GetStyle()->AppendEffect(Text("watermark-image"), Text("{\"file\":\"%1\"}").arg(logo).toUtf8(), true);
    });
    const Report report = bench->Make(Text("in.png"), Text("out.png"), Text("PNG"), job);
    QVERIFY2(report.failure == PolicyKind::Processing, qPrintable(report.reason));
    QVERIFY2(report.reason.contains(logo), qPrintable(report.reason));
    QVERIFY2(report.reason.contains(Text("the file ends before the picture is complete")), qPrintable(report.reason));
    QVERIFY(!report.detail.isEmpty());
}

void tst_WorkerMessagesOfDamage::knowsMessagesOfLibraries_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    const auto add = [](const char* text, DamageKind kind) { QTest::newRow(text) << Text(text) << int(kind); };
    add("heif: Unsupported feature: Unsupported codec (4.3000)", DamageKind::NotSupported);
    add("VipsJpeg: Backing store not supported", DamageKind::NotSupported);
    add("VipsJpeg: CCIR601 sampling not implemented yet", DamageKind::NotSupported);
    add("VipsJpeg: Premature end of JPEG file", DamageKind::CutOff);
    add("gifload_source: Unexpected end of GIF source data", DamageKind::CutOff);
    add("heif: Invalid input: Extent in iloc box references data outside of file bounds", DamageKind::CutOff);
    add("source: bad seek to 4711", DamageKind::CutOff);
    add("picture: Seek error accessing TIFF directory", DamageKind::CutOff);
    add("picture: Can not read TIFF directory count", DamageKind::CutOff);
    add("VipsPng: libpng read error", DamageKind::Damaged);
}

void tst_WorkerMessagesOfDamage::knowsMessagesOfLibraries()
{
    QFETCH(const QString, text);
    QFETCH(const int, kind);
    QCOMPARE(int(DamageKindOf(text)), kind);
}

QTEST_GUILESS_MAIN(tst_WorkerMessagesOfDamage)
#include "tst_workermessagesofdamage.moc"
