// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OwnFolder.h"
#include "ServerStage.h"
#include "WindowStage.h"

#include "hosts/desktop/run/RunTexts.h"

#include <QCheckBox>
#include <QUrl>

using namespace BatchDesktop;
using namespace BatchJob;

/// Each of the five questions, asked by a scripted server and answered from the bar of the main window.
class tst_WindowQuestions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyAnswerReachesTheServer_data();
    void everyAnswerReachesTheServer();
    void aServerThatDiesOverItsQuestion();
    void serversThatCannotStart();

private:
    QString Field(const QString& path) const
    {
        return QStringLiteral("s:") + QString::fromLatin1(QUrl::toPercentEncoding(path));
    }
    QString Question(int message, int errorCode) const;

    std::unique_ptr<ServerStage> server;
    std::unique_ptr<WindowStage> stage;
};

void tst_WindowQuestions::init()
{
    server = std::make_unique<ServerStage>();
    stage = std::make_unique<WindowStage>();
    stage->MakePhotos(2);
    QVERIFY(stage->Open());
    QVERIFY(stage->Add(2));
    stage->SetOutput(true);
}

void tst_WindowQuestions::cleanup()
{
    stage.reset();
    server.reset();
}

/// The error that is only reported, and the question about it.
QString tst_WindowQuestions::Question(int message, int errorCode) const
{
    const QString first = Field(stage->Photo(1));
    return QStringLiteral("send 8 id %1; send 15 id %1 %2 i:0 i:%3; send %4 id")
        .arg(first, Field(stage->Result(1)), QString::number(errorCode), QString::number(message));
}

void tst_WindowQuestions::everyAnswerReachesTheServer_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("errorCode");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isForTheRest");

    const auto rows = [](const char* name, PolicyKind kind, int errorCode) {
        for (int answer = 0; answer < PolicyWords(kind).size(); ++answer) {
            if (answer != AskingPolicy(kind)) {
                const bool isForTheRest = answer % 2 == 0;
                QTest::addRow("%s: %s%s", name, qPrintable(PolicyWord(kind, answer)),
                              isForTheRest ? " for the rest" : "")
                    << int(kind) << errorCode << answer << isForTheRest;
            }
        }
    };
    rows("input", PolicyKind::Input, 2);
    rows("output", PolicyKind::Output, 3);
    rows("processing", PolicyKind::Processing, 4);
    rows("name", PolicyKind::Naming, 11);
    rows("format", PolicyKind::WriteToFormat, 5);
}

void tst_WindowQuestions::everyAnswerReachesTheServer()
{
    QFETCH(int, kind);
    QFETCH(int, errorCode);
    QFETCH(int, answer);
    QFETCH(bool, isForTheRest);
    constexpr int firstQuestion = 16;
    const int message = firstQuestion + kind;
    const QString answered = QStringLiteral("message %1").arg(message);
    const QString written =
        QStringLiteral("send 9 id %1 %2; send 9 id %3 %4; send 6 id")
            .arg(Field(stage->Photo(1)), Field(stage->Result(1)), Field(stage->Photo(2)), Field(stage->Result(2)));
    server->SetRules({QStringLiteral("start: open"), QStringLiteral("5: ") + Question(message, errorCode),
                      QStringLiteral("%1: %2").arg(QString::number(message), written)});
    stage->Click("start");
    QVERIFY(stage->WaitForQuestion());
    QCOMPARE(int(stage->Runner().OpenQuestion()->kind), kind);
    QVERIFY(stage->Text("questionText").contains(QStringLiteral("1.jpg")));
    QTest::keyClick(&stage->Window(), Qt::Key_Escape);
    QCOMPARE(server->Count(answered), 0);
    qobject_cast<QCheckBox*>(stage->Part("answerForTheRest"))->setChecked(isForTheRest);
    stage->Click(qPrintable(QStringLiteral("answer_") + PolicyWord(PolicyKind(kind), answer)));
    QVERIFY(!stage->IsVisible("questionBar"));
    QVERIFY(stage->WaitForEnd());
    QCOMPARE(server->Count(answered), 1);
    QCOMPARE(stage->Runner().LastEnd()->written, 2);
    // The last fields of the message: the answer, and whether it holds for the rest.
    const QByteArray fields = server->Received();
    QByteArray expected;
    QDataStream stream(&expected, QIODevice::WriteOnly);
    stream << qint32(answer) << isForTheRest;
    QVERIFY2(fields.contains(expected), fields.toHex().constData());
}

void tst_WindowQuestions::aServerThatDiesOverItsQuestion()
{
    constexpr int inputQuestion = 16;
    server->SetRules({QStringLiteral("start: open"), QStringLiteral("5: %1; crash").arg(Question(inputQuestion, 2))});
    stage->Click("start");
    QVERIFY(stage->WaitForEnd());
    QVERIFY(!stage->IsVisible("questionBar"));
    QVERIFY(stage->Runner().LastEnd()->isServerLost);
    QVERIFY2(stage->Text().contains(QStringLiteral("server was lost")), qPrintable(stage->Text()));
    QVERIFY(stage->IsVisible("resume"));
    QVERIFY(stage->Part("start")->isEnabled());
}

void tst_WindowQuestions::serversThatCannotStart()
{
    server->HideServer();
    stage->Click("start");
    QVERIFY(stage->WaitForEnd());
    server->ShowServer();
    QVERIFY(stage->Runner().LastEnd()->isServerLost);
    QVERIFY2(stage->Text().contains(QStringLiteral("server was lost")), qPrintable(stage->Text()));
    QVERIFY(stage->Part("start")->isEnabled());
}

int main(int argc, char** argv)
{
    return RunInOwnFolder(argc, argv, [](int testArgc, char** testArgv) {
        QApplication application(testArgc, testArgv);
        tst_WindowQuestions test;
        return QTest::qExec(&test, testArgc, testArgv);
    });
}
#include "tst_windowquestions.moc"
