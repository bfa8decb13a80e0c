// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "CookbookRecipes.h"
#include "PictureFiles.h"
#include "RawPicture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

constexpr int tasks = 59;

using Hashes = QMap<QString, QByteArray>;

/// The content of every file below `folder` by its relative path.
Hashes FilesBelow(const QString& folder)
{
    Hashes files;
    QDirIterator paths(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (paths.hasNext()) {
        QFile file(paths.next());
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(QDir(folder).relativeFilePath(file.fileName()),
                         QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha1));
        }
    }
    return files;
}

void Write(const QString& path, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray Exiftool(const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(QStringLiteral("exiftool"), arguments);
    return process.waitForFinished(60'000) && process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

/// Runs every task of the cookbook as a user would, and compares what it writes with what the cookbook says.
class tst_Cookbook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void hasAllTasks();
    void gives_data();
    void gives();

private:
    void WriteJpeg(const QString& name, int seed, int width, int height, const QStringList& tags) const;
    CliRun RunScript(const QByteArray& script) const;

    QVector<CookbookRecipe> recipes;
    std::unique_ptr<QTemporaryDir> originals;
    std::unique_ptr<QTemporaryDir> stage;
};

void tst_Cookbook::WriteJpeg(const QString& name, int seed, int width, int height, const QStringList& tags) const
{
    PictureFiles::WriteJpeg(originals->filePath(name), seed, width, height);
    const QStringList options{QStringLiteral("-q"), QStringLiteral("-overwrite_original")};
    QProcess process;
    process.start(QStringLiteral("exiftool"), options + tags + QStringList{originals->filePath(name)});
    QVERIFY(process.waitForFinished(60'000));
    QCOMPARE(process.exitCode(), 0);
}

void tst_Cookbook::initTestCase()
{
    originals = std::make_unique<QTemporaryDir>();
    const auto taken = [](const char* time) { return QStringLiteral("-DateTimeOriginal=") + QLatin1String(time); };
    WriteJpeg(QStringLiteral("photos/coast.jpg"), 1, 600, 400,
              {taken("2024:05:02 10:20:30"), QStringLiteral("-GPSLatitude=39.5"), QStringLiteral("-GPSLatitudeRef=N"),
               QStringLiteral("-GPSLongitude=2.7"), QStringLiteral("-GPSLongitudeRef=E"),
               QStringLiteral("-Copyright=Ann Example"), QStringLiteral("-Model=Camera 7")});
    WriteJpeg(QStringLiteral("photos/dunes.jpg"), 2, 400, 600, {taken("2024:05:01 08:00:00")});
    WriteJpeg(QStringLiteral("photos/trip/harbour.jpg"), 3, 600, 400, {taken("2024:04:30 18:30:00")});
    WriteJpeg(QStringLiteral("phone/coast.jpg"), 4, 600, 400, {taken("2024:05:02 10:20:31")});
    Write(originals->filePath(QStringLiteral("raw/IMG_0042.dng")), RawPicture::Dng());
    Write(originals->filePath(QStringLiteral("warm.cube")),
          "LUT_3D_SIZE 2\n0 0 0\n1 0.1 0\n0.1 1 0\n1 1 0\n0 0 0.8\n1 0 0.8\n0 1 0.8\n1 1 0.8\n");
    QImage night(300, 200, QImage::Format_ARGB32);
    night.fill(Qt::transparent);
    QPainter(&night).fillRect(50, 50, 200, 100, Qt::darkBlue);
    QVERIFY(night.save(originals->filePath(QStringLiteral("photos/trip/night.png"))));
    QImage letter(400, 300, QImage::Format_RGB32);
    letter.fill(Qt::white);
    QPainter(&letter).fillRect(50, 50, 300, 200, Qt::darkGreen);
    QVERIFY(QDir(originals->path()).mkpath(QStringLiteral("scans")));
    QVERIFY(letter.save(originals->filePath(QStringLiteral("scans/letter.png"))));
    QImage logo(120, 40, QImage::Format_ARGB32);
    logo.fill(Qt::red);
    QVERIFY(logo.save(originals->filePath(QStringLiteral("logo.png"))));
    for (const char* name : {"photos/coast.jpg", "photos/dunes.jpg", "photos/trip/night.png"}) {
        QFile file(originals->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const int day = name == QByteArray("photos/dunes.jpg") ? 1 : 3;
        QVERIFY(file.setFileTime(QDateTime(QDate(2024, 5, day), QTime(12, 0)), QFileDevice::FileModificationTime));
    }
    for (const char* name : {"photos/trip/harbour.jpg", "phone/coast.jpg"}) {
        QFile file(originals->filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2024, 4, 30), QTime(12, 0)), QFileDevice::FileModificationTime));
    }
    recipes = ReadCookbook(QStringLiteral(COOKBOOK));
}

void tst_Cookbook::hasAllTasks()
{
    QCOMPARE(recipes.size(), tasks);
    for (int i = 0; i < recipes.size(); ++i) {
        QVERIFY2(recipes.at(i).title.startsWith(QStringLiteral("%1. ").arg(i + 1)), qPrintable(recipes.at(i).title));
        QVERIFY2(recipes.at(i).SaysWhatHappens(), qPrintable(recipes.at(i).title));
    }
}

CliRun tst_Cookbook::RunScript(const QByteArray& script) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString programs = QFileInfo(QStringLiteral(VELKORA_BATCH)).path();
    environment.insert(QStringLiteral("PATH"), programs + QLatin1Char(':') + environment.value(QStringLiteral("PATH")));
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "TMPDIR"}) {
        const QString folder = stage->filePath(QStringLiteral("home/") + QLatin1String(variable));
        QDir().mkpath(folder);
        environment.insert(QLatin1String(variable), folder);
    }
    return CliRun::OfProgram(QStringLiteral("sh"), {QStringLiteral("-ec"), QString::fromUtf8(script)},
                             stage->filePath(QStringLiteral("work")), environment);
}

void tst_Cookbook::gives_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < recipes.size(); ++i) {
        QTest::newRow(recipes.at(i).title.toUtf8()) << i;
    }
}

void tst_Cookbook::gives()
{
    QFETCH(int, index);
    const CookbookRecipe& recipe = recipes.at(index);
    stage = std::make_unique<QTemporaryDir>();
    const QString work = stage->filePath(QStringLiteral("work"));
    QCOMPARE(QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-a"), originals->path(), work}), 0);
    const Hashes before = FilesBelow(work);

    const CliRun run = RunScript(recipe.script);
    QVERIFY2(run.exitCode == 0, run.err + run.out);

    QStringList changed;
    const Hashes after = FilesBelow(work);
    for (auto it = after.begin(); it != after.end(); ++it) {
        if (before.value(it.key()) != *it) {
            changed.append(it.key());
        }
    }
    for (auto it = before.begin(); it != before.end(); ++it) {
        QVERIFY2(after.contains(it.key()), qPrintable(it.key()));
    }
    QStringList expected = recipe.files.keys();
    expected.sort();
    changed.sort();
    QCOMPARE(changed, expected);
    for (auto it = recipe.files.begin(); it != recipe.files.end(); ++it) {
        if (!it->isEmpty()) {
            const QByteArray size =
                Exiftool({QStringLiteral("-s3"), QStringLiteral("-ImageSize"), it.key()}, work).trimmed();
            QVERIFY2(QString::fromUtf8(size) == *it, it.key().toUtf8() + ": " + size);
        }
    }
    const QByteArray output = run.out + run.err;
    for (const QString& text : recipe.printed) {
        QVERIFY2(output.contains(text.toUtf8()), output);
    }
    if (recipe.isSilent) {
        QCOMPARE(output, QByteArray());
    }
}

QTEST_MAIN(tst_Cookbook)
#include "tst_cookbook.moc"
