// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/settings/JobBundle.h"

#include <QtTest>

using namespace BatchJob;

/// The text of several jobs of one run.
class tst_JobBundle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReadBack_data();
    void textsAreReadBack();
    void jobsAreNoBundles_data();
    void jobsAreNoBundles();
    void damageIsNamed_data();
    void damageIsNamed();
    void foldersWithinOthers_data();
    void foldersWithinOthers();
};

namespace {

const QString web = QStringLiteral("<Job name=\"web\" folder=\"/out/web\">a</Job>");

QString Bundle(const QString& content, const QString& folder = QStringLiteral("/out"))
{
    return QStringLiteral("<BatchJobs folder=\"%1\">%2</BatchJobs>").arg(folder, content);
}

} // namespace

void tst_JobBundle::textsAreReadBack_data()
{
    QTest::addColumn<QString>("document");
    QTest::newRow("a job") << QStringLiteral("<!DOCTYPE batch>\n<root name=\"a &amp; b\">\n    <input/>\n</root>\n");
    QTest::newRow("empty") << QString();
    QTest::newRow("the end of a CDATA section") << QStringLiteral("<a b=\"]]>\"/>]]>]]]]>>");
    QTest::newRow("characters of two units") << QStringLiteral("<a b=\"\U0001F4F7\u00e9\"/>");
    QTest::newRow("references to control characters") << QStringLiteral("<a b=\"&#x1;&#xd;\"/>");
}

void tst_JobBundle::textsAreReadBack()
{
    QFETCH(const QString, document);
    JobBundle bundle;
    bundle.folder = QStringLiteral("/out & in");
    bundle.parts = {{QStringLiteral("a \"b\" <c>"), document, QStringLiteral("/out & in/a")},
                    {QStringLiteral("d"), QStringLiteral("other"), QStringLiteral("/out & in")}};
    const QString text = bundle.Text();
    QVERIFY(JobBundle::IsIn(text));
    QString problem;
    const JobBundle read = JobBundle::Read(text, problem);
    QCOMPARE(problem, QString());
    QCOMPARE(read.folder, bundle.folder);
    QCOMPARE(read.parts.size(), 2);
    QCOMPARE(read.parts.at(0).name, bundle.parts.at(0).name);
    QCOMPARE(read.parts.at(0).document, document);
    QCOMPARE(read.parts.at(0).outputFolder, bundle.parts.at(0).outputFolder);
    QCOMPARE(read.parts.at(1).document, bundle.parts.at(1).document);
    QCOMPARE(read.Text(), text);
}

void tst_JobBundle::jobsAreNoBundles_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a job") << QStringLiteral("<!DOCTYPE batch>\n<root><BatchJobs/></root>");
    QTest::newRow("nothing") << QString();
    QTest::newRow("no XML") << QStringLiteral("BatchJobs");
}

void tst_JobBundle::jobsAreNoBundles()
{
    QFETCH(const QString, text);
    QVERIFY(!JobBundle::IsIn(text));
    QString problem;
    QVERIFY(JobBundle::Read(text, problem).IsEmpty());
    QVERIFY(!problem.isEmpty());
}

void tst_JobBundle::damageIsNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const QString& text, const char* problem) {
        QTest::newRow(name) << text << QString::fromUtf8(problem);
    };
    row("no jobs", Bundle({}), "it holds no job");
    row("unknown elements alone", Bundle(QStringLiteral("<Other><Job/></Other>")), "it holds no job");
    row("cut off", Bundle(web).chopped(5), "line 1, column ");
    row("text after the end", Bundle(web) + QStringLiteral("<more/>"), "line 1, column ");
    row("an element in a job", Bundle(QStringLiteral("<Job name=\"a\" folder=\"/out\"><b/></Job>")), "line 1, column ");
    row("no folder", Bundle(web, {}), "its output folder is \"\"");
    row("a relative folder", Bundle(web, QStringLiteral("out")), "its output folder is \"out\"");
    row("no name", Bundle(QStringLiteral("<Job folder=\"/out/web\">a</Job>")), "a job has no name");
    row("a name twice", Bundle(web + web), "two jobs have the name \"web\"");
    row("a folder elsewhere", Bundle(QStringLiteral("<Job name=\"a\" folder=\"/other\">a</Job>")),
        "the job \"a\" writes to \"/other\", which is not in the output folder, \"/out\"");
    row("a folder that leads out", Bundle(QStringLiteral("<Job name=\"a\" folder=\"/out/../etc\">a</Job>")),
        "the job \"a\" writes to \"/out/../etc\"");
    QString many;
    for (int i = 0; i <= JobBundle::mostParts; ++i) {
        many += QStringLiteral("<Job name=\"%1\" folder=\"/out/%1\"/>").arg(i);
    }
    row("too many jobs", Bundle(many), "it holds more than 100 jobs");
}

void tst_JobBundle::damageIsNamed()
{
    QFETCH(const QString, text);
    QFETCH(const QString, problem);
    QString found;
    QVERIFY(JobBundle::Read(text, found).IsEmpty());
    QVERIFY2(found.startsWith(problem), qPrintable(found));
}

void tst_JobBundle::foldersWithinOthers_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("root");
    QTest::addColumn<bool>("isWithin");
    const auto row = [](const char* folder, const char* root, bool isWithin) {
        QTest::addRow("%s in %s", folder, root) << QString::fromLatin1(folder) << QString::fromLatin1(root) << isWithin;
    };
    row("/out", "/out", true);
    row("/out/web", "/out", true);
    row("/out/web/", "/out/", true);
    row("/out", "/", true);
    row("/outer", "/out", false);
    row("/", "/out", false);
    row("/out/../other", "/out", false);
}

void tst_JobBundle::foldersWithinOthers()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, root);
    QFETCH(const bool, isWithin);
    QCOMPARE(IsWithin(folder, root), isWithin);
}

QTEST_APPLESS_MAIN(tst_JobBundle)
#include "tst_jobbundle.moc"
