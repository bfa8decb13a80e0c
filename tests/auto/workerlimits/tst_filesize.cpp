// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerBench.h"

#include "server/worker/encode/ResultTarget.h"
#include "server/worker/pixels/FileCalls.h"

#include <QTemporaryFile>
#include <QTest>

#include <cerrno>

using namespace BatchWorker;

/// Where the system cannot limit the size of files, the writing of results does.
class tst_FileSize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void resultsEndAtTheLimit();
    void placesCountToo();

private:
    QTemporaryFile file;
};

constexpr int limit = 1000;

void tst_FileSize::initTestCase()
{
    StartPictures();
    QVERIFY(file.open());
    LimitFileSize(limit);
}

void tst_FileSize::init()
{
    QVERIFY(file.resize(0));
    QCOMPARE(MoveTo(file.handle(), 0, SEEK_SET), qint64(0));
}

void tst_FileSize::resultsEndAtTheLimit()
{
    const ResultTarget result(file.handle(), {});
    VipsTarget* const target = result.Target().get_target();
    const QByteArray bytes(limit, 'x');
    QCOMPARE(vips_target_write(target, bytes.constData(), std::size_t(limit)), 0);
    QCOMPARE(vips_target_end(target), 0);
    QCOMPARE(result.Problem(), 0);
    QCOMPARE(SizeOfFile(file.handle()), qint64(limit));

    const ResultTarget longer(file.handle(), {});
    vips_target_write(longer.Target().get_target(), "y", 1);
    vips_target_end(longer.Target().get_target());
    QCOMPARE(longer.Problem(), EFBIG);
    QCOMPARE(SizeOfFile(file.handle()), qint64(limit));
}

void tst_FileSize::placesCountToo()
{
    QCOMPARE(MoveTo(file.handle(), limit - 1, SEEK_SET), qint64(limit - 1));
    QCOMPARE(WriteSome(file.handle(), "xy", 2), qint64(-1));
    QCOMPARE(errno, EFBIG);
    QCOMPARE(WriteSome(file.handle(), "x", 1), qint64(1));
}

QTEST_GUILESS_MAIN(tst_FileSize)
#include "tst_filesize.moc"
