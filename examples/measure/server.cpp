// A server in its smallest form, in the place of the one that processes pictures: it speaks the protocol, reads the
// job, and tells of each picture how large it is and where the job's framing would put it. It writes no file.

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTBatchPayload.h"
#include "ZTPipeSession.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QLocalServer>
#include <QLocalSocket>

#include <cstdio>
#include <memory>

namespace {

class Server : public QObject
{
public:
    bool Listen(const QString& pipeName)
    {
        QLocalServer::removeServer(pipeName);
        connect(&listener, &QLocalServer::newConnection, this, &Server::Accept);
        return listener.listen(pipeName);
    }

private:
    void Accept()
    {
        pipe = std::make_unique<ZTPipeSession>(listener.nextPendingConnection(), nullptr);
        connect(pipe.get(), &ZTPipeSession::IncomingMessage, this, &Server::Handle);
        connect(pipe.get(), &ZTPipeSession::SessionDown, qApp, &QCoreApplication::quit);
    }

    void Handle(const QString& name, const QByteArray& payload)
    {
        switch (ZTBatchMessage::FromName(name)) {
        case ZTBatchMessage::MsgProcess:
            Process(ZTBatchPayload::Unpack<ZTBatchPayload::ToServer<ZTBatchMessage::MsgProcess>>(payload));
            break;
        case ZTBatchMessage::MsgCloseServer:
            QCoreApplication::quit();
            break;
        default:
            break;
        }
    }

    void Process(const ZTBatchPayload::Process& order)
    {
        const QString id = order.sessionId;
        ZTBatchDocument document;
        if (!document.Deserialize(order.document)) {
            Tell<ZTBatchMessage::MsgError>({id, {}, {}, 2, ZTBatchMessage::EmptyBatchDocument});
            Tell<ZTBatchMessage::MsgFinished>({id});
            return;
        }
        const QStringList files = Files(*document.GetInputModel());
        Tell<ZTBatchMessage::MsgProgressRange>({id, 0, files.size()});
        for (int i = 0; i < files.size(); ++i) {
            Tell<ZTBatchMessage::MsgFileInProgress>({id, files[i]});
            const QSize size = QImageReader(files[i]).size();
            Tell<ZTBatchMessage::MsgProgress>({id, i + 1});
            if (size.isValid()) {
                Tell<ZTBatchMessage::MsgFileProcessed>({id, files[i], {}});
                Tell<ZTBatchMessage::MsgLog>({id, Measure(files[i], size, *document.GetOutputSettings())});
            } else {
                Tell<ZTBatchMessage::MsgError>({id, files[i], {}, 1, ZTBatchMessage::ReadFileError});
            }
        }
        Tell<ZTBatchMessage::MsgFinished>({id});
    }

    static QStringList Files(const ZTBatchInputModel& input)
    {
        QStringList files;
        QModelIndexList folders{QModelIndex()};
        while (!folders.isEmpty()) {
            const QModelIndex folder = folders.takeFirst();
            for (int row = 0; row < input.rowCount(folder); ++row) {
                const QModelIndex index = input.index(row, 0, folder);
                const BatchNodeData* node = input.getNodeData(index);
                if (node->type == Folder) {
                    folders.append(index);
                } else {
                    files.append(node->fileName);
                }
            }
        }
        return files;
    }

    static QString Measure(const QString& file, const QSize& size, const ZTBatchOutputSettings& settings)
    {
        const ZTBatchOutputSettings::Transformation framing = settings.GetTransformationSettings();
        QSize framed;
        ZTBatchOutputSettings::CalculateOutputTransformation(size, framing.angle, framing.margins, &framed);
        return QStringLiteral("        %1 x %2 pixels, %3 KiB; within the margins %4 x %5")
            .arg(size.width())
            .arg(size.height())
            .arg(QFileInfo(file).size() / 1024)
            .arg(framed.width())
            .arg(framed.height());
    }

    template<ZTBatchMessage::Message message>
    void Tell(const ZTBatchPayload::FromServer<message>& payload)
    {
        pipe->Send(ZTBatchMessage::Name(message), ZTBatchPayload::Pack(payload));
    }

    QLocalServer listener;
    std::unique_ptr<ZTPipeSession> pipe;
};

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Server server;
    const QString pipeName = QCoreApplication::arguments().value(1);
    if (pipeName.isEmpty() || !server.Listen(pipeName)) {
        std::fprintf(stderr, "Usage: VelkoraBatchProcessing PIPE, the name of a pipe that can be opened.\n");
        return 2;
    }
    return QCoreApplication::exec();
}
