// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// A small host, explained step by step in docs/guide/host-tutorial.md:
//
//     host-tutorial FOLDER PICTURE...
//
// makes copies of the pictures in FOLDER, at most 800 pixels long, with darker corners.

#include <ZTBatchDocument.h>
#include <ZTBatchInputModel.h>
#include <ZTBatchManager.h>
#include <ZTBatchMessage.h>
#include <ZTBatchOutputSettings.h>
#include <ZTBatchSession.h>
#include <ZTBatchValues.h>
#include <ZTStyle.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <iostream>
#include <memory>
#include <string>

namespace {

using Session = ZTBatchManager::ZTBatchSession;
using ZTBatchValues::Action;

void AddPicture(ZTBatchInputModel& inputs, const QString& path)
{
    auto node = std::make_unique<TreeNode<BatchNodeData>>();
    node->data.inputText = QFileInfo(path).fileName();
    node->data.fileName = QFileInfo(path).absoluteFilePath();
    node->data.type = File;
    node->data.enabled = true;
    node->data.fileNodesCount = 1;
    inputs.InsertBranch(node.release(), QModelIndex());
}

QString MakeJob(const QString& folder, const QStringList& pictures)
{
    const ZTBatchDocument job;
    for (const QString& picture : pictures) {
        AddPicture(*job.GetInputModel(), picture);
    }

    job.GetStyle()->AppendEffect(QStringLiteral("vignette"), R"({"amount": -30})", true);

    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    output.SetPath(QDir(folder).absolutePath());
    output.SetFormat(QStringLiteral("JPEG"), R"({"quality": 88})");
    output.SetNamingTemplate(ZTBatchOutputSettings::PartMiddle, ZTBatchOutputSettings::TemplateOriginalName);
    output.SetNamingTemplate(ZTBatchOutputSettings::PartSuffix, ZTBatchOutputSettings::TemplateNothing);
    ZTBatchOutputSettings::ImageSize size;
    size.restriction = int(ZTBatchValues::SizeRestriction::ReduceOnly);
    size.side = int(ZTBatchValues::SizeSide::LongSide);
    size.unit = int(ZTBatchValues::SizeUnit::Pixels);
    size.size = 800;
    output.SetImageSizeSettings(size);

    return job.Serialize(nullptr);
}

class Host : public QObject
{
public:
    explicit Host(const QString& job)
        : job(job)
        , manager(ZTBatchManager::Instance())
    {
        connect(manager, &ZTBatchManager::ConnectionEstablished, this, &Host::StartRun);
        connect(manager, &ZTBatchManager::ConnectionFailed, this, [this] {
            std::printf("The server could not be started, or has ended.\n");
            End(3);
        });
        manager->SetInputPolicy(ZTBatchManager::InputSkip);
        manager->SetOutputPolicy(ZTBatchManager::OutputStop);
        manager->SetProcessingPolicy(ZTBatchManager::ProcessingSkip);
        manager->SetNamingPolicy(ZTBatchManager::NamingAsk);
        manager->SetWriteToFormatPolicy(ZTBatchManager::WriteToFormatNearest);
        QTimer::singleShot(0, manager, &ZTBatchManager::Start);
    }

private:
    void StartRun()
    {
        if (session) {
            return; // The connection was lost and is back.
        }
        session = manager->CreateBatchSession();
        if (!session) {
            return; // It was lost again; ConnectionEstablished() or ConnectionFailed() follows.
        }
        connect(session, &Session::ProgressRange, this, [this](int, int maximum) { files = maximum; });
        connect(session, &Session::Progress, this, [this](int done) { std::printf("%d of %d\n", done, files); });
        connect(session, &Session::FileProcessed, this, [this](const QString& input, const QString& output) {
            ++written;
            std::printf("%s -> %s\n", qUtf8Printable(input), qUtf8Printable(output));
        });
        connect(session, &Session::LogMessage, this,
                [](const QString& line) { std::printf("log: %s\n", qUtf8Printable(line)); });
        connect(session, &Session::ProcessError, this, &Host::OnError);
        connect(session, &Session::NamingQuestion, this, &Host::AskAboutName);
        connect(session, &Session::Finished, this, [this] { End(files > 0 && written == files ? 0 : 1); });
        connect(session, &Session::Cancelled, this, [this] { End(4); });
        connect(session, &Session::Aborted, this, [this] { End(3); });
        session->Process(job);
    }

    void OnError(const QString& input, const QString& output, int action, int errorCode)
    {
        const QString text = ZTBatchMessage::ErrorDescription(ZTBatchMessage::Error(errorCode));
        if (input.isEmpty()) {
            std::printf("The run has ended: %s\n", qUtf8Printable(text));
        } else if (action == int(Action::ReportedOnly)) {
            questionText = QStringLiteral("%1: %2").arg(output, text);
        } else if (action == int(Action::FileSkipped) || action == int(Action::RunStopped)) {
            std::printf("%s: %s\n", qUtf8Printable(input), qUtf8Printable(text));
        }
    }

    void AskAboutName()
    {
        std::printf("%s\nskip, overwrite, rename, cancel? ", qUtf8Printable(questionText));
        std::fflush(stdout);
        std::string answer;
        std::getline(std::cin, answer);
        if (answer == "skip") {
            session->NamingRespond(ZTBatchManager::NamingSkip, false);
        } else if (answer == "overwrite") {
            session->NamingRespond(ZTBatchManager::NamingOverwrite, false);
        } else if (answer == "rename") {
            session->NamingRespond(ZTBatchManager::NamingRename, true); // and all that follow
        } else {
            session->Cancel();
        }
    }

    void End(int exitCode)
    {
        delete session;
        QCoreApplication::exit(exitCode);
    }

    const QString job;
    ZTBatchManager* const manager;
    QPointer<Session> session;
    QString questionText;
    int files = 0;
    int written = 0;
};

int RunHost(const QStringList& arguments)
{
    const QTemporaryDir pipeFolder;
    qputenv("TMPDIR", QFile::encodeName(pipeFolder.path()));

    ZTBatchManager::InitInstance(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    int exitCode = 0;
    {
        const Host host(MakeJob(arguments.at(1), arguments.mid(2)));
        exitCode = QCoreApplication::exec();
    }
    ZTBatchManager::ReleaseInstance();
    return exitCode;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "Usage: host-tutorial FOLDER PICTURE...\n");
        return 2;
    }
    return RunHost(QCoreApplication::arguments());
}
