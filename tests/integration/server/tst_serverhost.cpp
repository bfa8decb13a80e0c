// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HostLog.h"
#include "PrivateTempDir.h"
#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchSession.h"

#include <QImage>
#include <QtTest>

using Settings = ZTBatchOutputSettings;

/// The server as hosts use it: the library's manager starts, controls and ends it. Real pictures.
class tst_ServerHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void runsAJob();
    void questionsReachTheHost();
    void cancelled();
    void releasedInTheMiddle();
    void endedByKillExistingBatchProcess();
    void startedAgainAfterItsDeath();

private:
    bool Begin();
    QString Job(int count);
    int Results() const;

    std::unique_ptr<PrivateTempDir> folder;
    std::unique_ptr<HostLog> log;
    ZTBatchManager::ZTBatchSession* session = nullptr;
};

namespace {

constexpr int patience = 60000; // ms

bool Eventually(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patience);
}

} // namespace

void tst_ServerHost::init()
{
    folder = std::make_unique<PrivateTempDir>();
    log = std::make_unique<HostLog>();
    ZTBatchManager::InitInstance(folder->FilePath(QStringLiteral("settings")));
    log->Watch(ZTBatchManager::Instance());
}

void tst_ServerHost::cleanup()
{
    ZTBatchManager::ReleaseInstance();
    // No pipe and no unfinished file is left behind.
    QVERIFY(!folder->Entries().join(QLatin1Char(' ')).contains(QStringLiteral("pipe")));
    const QDir out(folder->FilePath(QStringLiteral("out")));
    QCOMPARE(out.entryList({QStringLiteral(".velkora*")}, QDir::Files | QDir::Hidden), QStringList());
    for (const QFileInfo& result : out.entryInfoList(QDir::Files)) {
        QVERIFY2(!QImage(result.filePath()).isNull(), qPrintable(result.fileName()));
    }
    log.reset();
    folder.reset();
}

/// Starts the server and creates a session.
bool tst_ServerHost::Begin()
{
    ZTBatchManager::Instance()->Start();
    if (!Eventually([this] { return log->connections > 0; })) {
        return false;
    }
    session = ZTBatchManager::Instance()->CreateBatchSession();
    log->Watch(session);
    return session != nullptr;
}

QString tst_ServerHost::Job(int count)
{
    ZTBatchDocument job;
    Settings& settings = *job.GetOutputSettings();
    settings.SetPath(folder->FilePath(QStringLiteral("out")));
    settings.SetFormat(QStringLiteral("JPEG"), {});
    settings.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateOriginalName);
    settings.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    QImage picture(400, 300, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
        }
    }
    for (int i = 0; i < count; ++i) {
        auto* const node = new TreeNode<BatchNodeData>;
        node->data.inputText = QStringLiteral("%1.png").arg(i, 3, 10, QLatin1Char('0'));
        node->data.fileName = folder->FilePath(node->data.inputText);
        node->data.type = File;
        node->data.fileNodesCount = 1;
        if (i == 0) {
            picture.save(node->data.fileName);
        } else {
            QFile::copy(folder->FilePath(QStringLiteral("000.png")), node->data.fileName);
        }
        job.GetInputModel()->InsertBranch(node, QModelIndex());
    }
    return job.Serialize(nullptr);
}

int tst_ServerHost::Results() const
{
    return QDir(folder->FilePath(QStringLiteral("out"))).entryList(QDir::Files).size();
}

void tst_ServerHost::runsAJob()
{
    QVERIFY2(Begin(), qPrintable(log->lines.join(QLatin1Char('\n'))));
    session->Process(Job(10));
    QVERIFY2(Eventually([this] { return log->Count(QStringLiteral("finished")) > 0; }),
             qPrintable(log->lines.join(QLatin1Char('\n'))));
    QCOMPARE(log->Count(QStringLiteral("range 0 10")), 1);
    QCOMPARE(log->Count(QStringLiteral("progress 10")), 1);
    QCOMPARE(log->Count(QStringLiteral("log [Finished: 10 written, 0 skipped, 0 failed.]")), 1);
    QCOMPARE(Results(), 10);

    // The next session of the same server.
    delete session;
    QVERIFY(ZTBatchManager::Instance()->IsAllowToCreateSession());
    session = ZTBatchManager::Instance()->CreateBatchSession();
    log->Watch(session);
    ZTBatchManager::Instance()->SetNamingPolicy(ZTBatchManager::NamingRename);
    session->Process(Job(10));
    QVERIFY(Eventually([this] { return log->Count(QStringLiteral("finished")) == 2; }));
    QCOMPARE(Results(), 20);
    delete session;
}

void tst_ServerHost::questionsReachTheHost()
{
    QVERIFY(Begin());
    const QString job = Job(6);
    QVERIFY(QFile::remove(folder->FilePath(QStringLiteral("002.png"))));
    QVERIFY(QDir().mkpath(folder->FilePath(QStringLiteral("out"))));
    for (const char* name : {"000.jpg", "004.jpg", "005.jpg"}) {
        QImage(8, 8, QImage::Format_RGB32).save(folder->FilePath(QStringLiteral("out/") + QLatin1String(name)), "JPEG");
    }
    using Session = ZTBatchManager::ZTBatchSession;
    connect(session, &Session::InputQuestion, this,
            [this] { session->InputRespond(ZTBatchManager::InputSkip, false); });
    connect(session, &Session::NamingQuestion, this, [this] {
        session->NamingRespond(ZTBatchManager::NamingRename, log->Count(QStringLiteral("naming question")) == 2);
    });
    session->Process(job);
    QVERIFY2(Eventually([this] { return log->Count(QStringLiteral("finished")) > 0; }),
             qPrintable(log->lines.join(QLatin1Char('\n'))));
    QCOMPARE(log->Count(QStringLiteral("naming question")), 2);
    QCOMPARE(log->Count(QStringLiteral("input question")), 1);
    QCOMPARE(log->Count(QStringLiteral("log [Finished: 5 written, 0 skipped, 1 failed.]")), 1);
    QCOMPARE(Results(), 3 + 5);
    delete session;
}

void tst_ServerHost::cancelled()
{
    QVERIFY(Begin());
    using Session = ZTBatchManager::ZTBatchSession;
    connect(session, &Session::FileProcessed, this, [this] { session->Cancel(); });
    session->Process(Job(200));
    QVERIFY2(Eventually([this] { return log->Count(QStringLiteral("cancelled")) > 0; }),
             qPrintable(log->lines.join(QLatin1Char('\n'))));
    QVERIFY(Results() < 200);
    QCOMPARE(log->Count(QStringLiteral("finished")), 0);
    delete session;
}

void tst_ServerHost::releasedInTheMiddle()
{
    QVERIFY(Begin());
    session->Process(Job(200));
    QVERIFY(Eventually([this] { return Results() > 0; }));
    QElapsedTimer time;
    time.start();
    ZTBatchManager::ReleaseInstance();
    // The manager waits 30 seconds for a server that does not end by itself.
    QVERIFY2(time.elapsed() < 20000, qPrintable(QString::number(time.elapsed())));
    QVERIFY(Results() < 200);
}

void tst_ServerHost::endedByKillExistingBatchProcess()
{
    QVERIFY(Begin());
    session->Process(Job(200));
    QVERIFY(Eventually([this] { return Results() > 0; }));
    ZTBatchManager::KillExistingBatchProcess(true);
    // If nobody asked the manager to end the server, its end counts as the end of the run.
    QVERIFY(Eventually([this] { return log->Count(QStringLiteral("failed")) == 1; }));
    QCOMPARE(log->Count(QStringLiteral("finished")), 1);
    delete session;
}

void tst_ServerHost::startedAgainAfterItsDeath()
{
    QVERIFY(Begin());
    const QString job = Job(100);
    session->Process(job);
    QVERIFY(Eventually([this] { return Results() > 0; }));
    ZTBatchManager::Instance()->Stop(); // Kills it.
    QVERIFY(Eventually([this] { return log->Count(QStringLiteral("failed")) == 1; }));
    QCOMPARE(log->Count(QStringLiteral("aborted")), 1);
    ZTBatchManager::ReleaseInstance();
    ZTBatchManager::InitInstance(folder->FilePath(QStringLiteral("settings")));
    log->connections = 0;
    log->Watch(ZTBatchManager::Instance());
    ZTBatchManager::Instance()->SetNamingPolicy(ZTBatchManager::NamingSkip);
    QVERIFY(Begin());
    session->Process(job);
    QVERIFY2(Eventually([this] { return log->Count(QStringLiteral("finished")) == 1; }),
             qPrintable(log->lines.join(QLatin1Char('\n'))));
    QCOMPARE(Results(), 100);
    delete session;
}

QTEST_GUILESS_MAIN(tst_ServerHost)
#include "tst_serverhost.moc"
