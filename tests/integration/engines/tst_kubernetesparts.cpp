// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartsStage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <memory>
#include <vector>

namespace {

constexpr int patience = 600'000; // ms

QJsonValue At(const QJsonObject& object, const QString& path)
{
    QJsonValue value = object;
    const QStringList names = path.split(QLatin1Char('.'));
    for (const QString& name : names) {
        value = value.isArray() ? value.toArray().at(name.toInt()) : value.toObject().value(name);
    }
    return value;
}

} // namespace

/// The guide's indexed job: its command as the container of each index would run it, with one killed on the way. There
/// is no cluster here: whether Kubernetes takes the file, and how it counts failures, is not tested.
class tst_KubernetesParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isAnIndexedJob();
    void likeOneRun();

private:
    std::unique_ptr<QProcess> Start(int index) const;

    std::unique_ptr<PartsStage> stage;
    QJsonObject job;
};

void tst_KubernetesParts::initTestCase()
{
    const CliRun read = CliRun::OfProgram(QStringLiteral(PYTHON),
                                          {QStringLiteral("-c"),
                                           QStringLiteral("import sys\n"
                                                          "try:\n"
                                                          "    import json, yaml\n"
                                                          "except ImportError:\n"
                                                          "    sys.exit(77)\n"
                                                          "json.dump(yaml.safe_load(open(sys.argv[1])), sys.stdout)\n"),
                                           QStringLiteral(GUIDE_SCRIPTS "/web-job.yaml")},
                                          QString(), QProcessEnvironment::systemEnvironment());
    if (read.exitCode == 77) {
        QSKIP("Nothing here reads YAML: the package python3-yaml is missing.");
    }
    QVERIFY2(read.exitCode == 0, read.err);
    job = QJsonDocument::fromJson(read.out).object();
    stage = std::make_unique<PartsStage>();
    const QString problem = stage->Prepare();
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
}

/// What has to be there for each index to run once, and again after a failure.
void tst_KubernetesParts::isAnIndexedJob()
{
    QCOMPARE(At(job, QStringLiteral("apiVersion")).toString(), QStringLiteral("batch/v1"));
    QCOMPARE(At(job, QStringLiteral("kind")).toString(), QStringLiteral("Job"));
    QVERIFY(!At(job, QStringLiteral("metadata.name")).toString().isEmpty());
    QCOMPARE(At(job, QStringLiteral("spec.completionMode")).toString(), QStringLiteral("Indexed"));
    QCOMPARE(At(job, QStringLiteral("spec.completions")).toInt(), PartsStage::partCount);
    // A limit for each index, and rules for failures, are only allowed with pods that are not restarted.
    QVERIFY(At(job, QStringLiteral("spec.backoffLimitPerIndex")).toInt() > 0);
    QCOMPARE(At(job, QStringLiteral("spec.template.spec.restartPolicy")).toString(), QStringLiteral("Never"));
    // Journals count for the user who has written them.
    QVERIFY(At(job, QStringLiteral("spec.template.spec.securityContext.runAsUser")).toInt() > 0);
    // What is mounted is there.
    QCOMPARE(At(job, QStringLiteral("spec.template.spec.containers.0.volumeMounts.0.name")),
             At(job, QStringLiteral("spec.template.spec.volumes.0.name")));
    QCOMPARE(At(job, QStringLiteral("spec.template.spec.containers.0.volumeMounts.0.mountPath")).toString(),
             QStringLiteral("/shared"));
}

std::unique_ptr<QProcess> tst_KubernetesParts::Start(int index) const
{
    QStringList command;
    const QJsonArray words = At(job, QStringLiteral("spec.template.spec.containers.0.command")).toArray();
    for (const QJsonValue& word : words) {
        command.append(word.toString().replace(QLatin1String("/shared/"), stage->Path(QString()) + QLatin1Char('/')));
    }
    QProcessEnvironment environment = stage->Environment();
    environment.insert(QStringLiteral("JOB_COMPLETION_INDEX"), QString::number(index));
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral("env"), command); // Looks in that PATH.
    return process;
}

void tst_KubernetesParts::likeOneRun()
{
    const CliRun split = stage->Split();
    QVERIFY2(split.exitCode == 0, split.err);
    const int atOnce = At(job, QStringLiteral("spec.parallelism")).toInt();
    QVERIFY(atOnce > 1);
    const std::unique_ptr<QProcess> killed = Start(0);
    QVERIFY2(stage->HoldOnTheWay(1, QStringLiteral("JOB_COMPLETION_INDEX=0")), killed->readAllStandardError());
    killed->kill();
    QVERIFY(killed->waitForFinished());
    stage->Continue(QStringLiteral("JOB_COMPLETION_INDEX=0"));

    for (int first = 0; first < PartsStage::partCount; first += atOnce) {
        std::vector<std::unique_ptr<QProcess>> pods;
        for (int index = first; index < qMin(first + atOnce, int(PartsStage::partCount)); ++index) {
            pods.push_back(Start(index));
        }
        for (const std::unique_ptr<QProcess>& pod : pods) {
            QVERIFY(pod->waitForFinished(patience));
            QVERIFY2(pod->exitStatus() == QProcess::NormalExit && pod->exitCode() == 0, pod->readAllStandardError());
        }
    }
    QCOMPARE(stage->DifferenceFromOneRun(), QString());
}

QTEST_GUILESS_MAIN(tst_KubernetesParts)
#include "tst_kubernetesparts.moc"
