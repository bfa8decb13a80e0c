// A host in its smallest form: describes a job of the pictures in the folders given as arguments, has the server beside
// it run the job, and prints what the session tells.

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchManager.h"
#include "ZTBatchMessage.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchSession.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

namespace {

void Print(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

std::unique_ptr<TreeNode<BatchNodeData>> MakeNode(const QFileInfo& place)
{
    auto node = std::make_unique<TreeNode<BatchNodeData>>();
    node->data.inputText = place.fileName();
    node->data.fileName = place.absoluteFilePath();
    node->data.lastModification = place.lastModified().toString(Qt::ISODate);
    node->data.type = place.isDir() ? Folder : File;
    node->data.enabled = true;
    node->data.fileNodesCount = place.isDir() ? 0 : 1;
    return node;
}

/// Puts the JPEG files of a folder into the job, as one branch.
void AddFolder(ZTBatchInputModel& input, const QDir& folder)
{
    std::unique_ptr<TreeNode<BatchNodeData>> branch = MakeNode(QFileInfo(folder.path()));
    const QStringList filter{QStringLiteral("*.jpg"), QStringLiteral("*.jpeg")};
    for (const QFileInfo& file : folder.entryInfoList(filter, QDir::Files, QDir::Name)) {
        branch->insertChild(MakeNode(file).release());
        ++branch->data.fileNodesCount;
    }
    input.InsertBranch(branch.release(), QModelIndex());
}

/// Runs a job and ends the application with its outcome.
class Run : public QObject
{
public:
    explicit Run(QString job)
        : job(std::move(job))
    {
        ZTBatchManager* manager = ZTBatchManager::Instance();
        connect(manager, &ZTBatchManager::ConnectionEstablished, this, &Run::Begin);
        connect(manager, &ZTBatchManager::ConnectionFailed, this, [] {
            Print(QStringLiteral("The server has gone."));
            QCoreApplication::exit(3);
        });
        manager->Start();
    }

private:
    void Begin()
    {
        Print(QStringLiteral("Connected to the server."));
        session.reset(ZTBatchManager::Instance()->CreateBatchSession());
        using Session = ZTBatchManager::ZTBatchSession;
        connect(session.get(), &Session::ProgressRange, this, [this](int, int maximum) { count = maximum; });
        connect(session.get(), &Session::Progress, this, [this](int value) { done = value; });
        connect(session.get(), &Session::LogMessage, this, [](const QString& text) { Print(text); });
        connect(session.get(), &Session::FileProcessed, this, [this](const QString& inputFileName) {
            Print(QStringLiteral("[%1/%2] %3").arg(done).arg(count).arg(QDir::toNativeSeparators(inputFileName)));
        });
        connect(session.get(), &Session::ProcessError, this,
                [this](const QString& inputFileName, const QString&, int, int error) {
                    ++failed;
                    Print(inputFileName + QStringLiteral(": ") +
                          ZTBatchMessage::ErrorDescription(static_cast<ZTBatchMessage::Error>(error)));
                });
        connect(session.get(), &Session::Finished, this, [this] { QCoreApplication::exit(failed == 0 ? 0 : 1); });
        session->Process(job);
    }

    QString job;
    std::unique_ptr<ZTBatchManager::ZTBatchSession> session;
    int count = 0;
    int done = 0;
    int failed = 0;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList folders = QCoreApplication::arguments().mid(1);
    if (folders.isEmpty()) {
        Print(QStringLiteral("Usage: measure-pictures FOLDER..."));
        return 2;
    }

    ZTBatchDocument document;
    document.SetDocumentName(QStringLiteral("Measure"));
    for (const QString& path : folders) {
        const QDir folder(path);
        if (!folder.exists()) {
            Print(QStringLiteral("There is no folder \"%1\".").arg(path));
            return 2;
        }
        AddFolder(*document.GetInputModel(), folder);
    }
    ZTBatchOutputSettings::Transformation framing;
    framing.state = true;
    framing.margins = QMargins(100, 100, 100, 300);
    document.GetOutputSettings()->SetTransformationSettings(framing);
    Print(QStringLiteral("A job of %1 pictures.").arg(document.GetInputModel()->GetFileNodesCount()));

    // The policies would be kept here from run to run.
    const QTemporaryDir settings;
    ZTBatchManager::InitInstance(settings.path());
    int result = 0;
    {
        const Run run(document.Serialize(nullptr));
        result = QCoreApplication::exec();
    }
    ZTBatchManager::ReleaseInstance();
    return result;
}
