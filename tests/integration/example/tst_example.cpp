#include "PrivateTempDir.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QtTest>

/// The example host and its server, two processes on a real pipe, with real pictures.
class tst_Example : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void measuresEveryPicture();
    void reportsADamagedPicture();
    void wrongArguments_data();
    void wrongArguments();

private:
    QString Run(const QStringList& arguments);
    void WritePicture(const QString& name, int width, int height);

    std::unique_ptr<PrivateTempDir> tempDir;
    int exitCode = -1;
};

void tst_Example::init()
{
    tempDir = std::make_unique<PrivateTempDir>();
    QVERIFY(QDir().mkdir(tempDir->FilePath(QStringLiteral("photos"))));
}

void tst_Example::cleanup()
{
    // Neither the pipe nor the settings of a run stay behind.
    QCOMPARE(tempDir->Entries(), QStringList{QStringLiteral("photos")});
    tempDir.reset();
}

QString tst_Example::Run(const QStringList& arguments)
{
    QProcess host;
    host.start(QStringLiteral(MEASURE_PICTURES), arguments);
    if (!host.waitForFinished()) {
        host.kill();
        host.waitForFinished();
    }
    exitCode = host.exitStatus() == QProcess::NormalExit ? host.exitCode() : -1;
    return QString::fromUtf8(host.readAllStandardOutput());
}

void tst_Example::WritePicture(const QString& name, int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(tempDir->FilePath(QStringLiteral("photos/") + name), "JPEG"));
}

void tst_Example::measuresEveryPicture()
{
    WritePicture(QStringLiteral("b.jpg"), 800, 600);
    WritePicture(QStringLiteral("a.jpg"), 1000, 1000);
    const QString folder = tempDir->FilePath(QStringLiteral("photos"));
    const QString output = Run({folder});
    QVERIFY2(exitCode == 0, qPrintable(output));

    const QStringList lines = output.split(QLatin1Char('\n'));
    QCOMPARE(lines.at(0), QStringLiteral("A job of 2 pictures."));
    QCOMPARE(lines.at(1), QStringLiteral("Connected to the server."));
    QCOMPARE(lines.at(2), QStringLiteral("[1/2] %1/a.jpg").arg(folder));
    QVERIFY2(lines.at(3).contains(QStringLiteral("1000 x 1000 pixels")), qPrintable(lines.at(3)));
    // 600 pixels of height are left between margins of 100 and 300.
    QVERIFY2(lines.at(3).endsWith(QStringLiteral("within the margins 600 x 600")), qPrintable(lines.at(3)));
    QCOMPARE(lines.at(4), QStringLiteral("[2/2] %1/b.jpg").arg(folder));
    QVERIFY2(lines.at(5).contains(QStringLiteral("800 x 600 pixels")), qPrintable(lines.at(5)));
}

void tst_Example::reportsADamagedPicture()
{
    WritePicture(QStringLiteral("good.jpg"), 800, 600);
    QFile damaged(tempDir->FilePath(QStringLiteral("photos/damaged.jpg")));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("no picture");
    damaged.close();

    const QString output = Run({tempDir->FilePath(QStringLiteral("photos"))});
    QVERIFY2(exitCode == 1, qPrintable(output));
    QVERIFY2(output.contains(damaged.fileName() + QStringLiteral(": Error reading file.")), qPrintable(output));
    QVERIFY2(output.contains(QStringLiteral("/good.jpg")), qPrintable(output));
}

void tst_Example::wrongArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("firstLine");
    QTest::newRow("none") << QStringList() << QStringLiteral("Usage: measure-pictures FOLDER...");
    QTest::newRow("no folder") << QStringList{QStringLiteral("/nowhere")}
                               << QStringLiteral("There is no folder \"/nowhere\".");
}

void tst_Example::wrongArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, firstLine);
    QCOMPARE(Run(arguments).section(QLatin1Char('\n'), 0, 0), firstLine);
    QCOMPARE(exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_Example)
#include "tst_example.moc"
