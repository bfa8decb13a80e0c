// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/PrivateTempFolder.h"

#include <QDir>
#include <QTemporaryDir>

#include <QtTest>

using BatchHost::PrivateTempFolder;

class tst_PrivateTempFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEnvironmentIsAsBefore_data();
    void theEnvironmentIsAsBefore();
};

void tst_PrivateTempFolder::theEnvironmentIsAsBefore_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::newRow("set") << true;
    QTest::newRow("not set") << false;
}

void tst_PrivateTempFolder::theEnvironmentIsAsBefore()
{
    QFETCH(bool, isSet);
    const QTemporaryDir parent(QDir(QStringLiteral("/tmp")).exists() ? QStringLiteral("/tmp/XXXXXX") : QString());
    const QByteArray before = isSet ? QFile::encodeName(parent.path()) : QByteArray();
    if (isSet) {
        qputenv("TMPDIR", before);
    } else {
        qunsetenv("TMPDIR");
    }
    QByteArray own;
    {
        const PrivateTempFolder folder;
        QCOMPARE(folder.Error(), QString());
        own = qgetenv("TMPDIR");
        QVERIFY(QFileInfo(QFile::decodeName(own)).isDir());
        QVERIFY(own != before);
    }
    QVERIFY(!QFileInfo::exists(QFile::decodeName(own)));
    QCOMPARE(qgetenv("TMPDIR"), before);
    QCOMPARE(qEnvironmentVariableIsSet("TMPDIR"), isSet);
    qunsetenv("TMPDIR");
}

QTEST_GUILESS_MAIN(tst_PrivateTempFolder)
#include "tst_privatetempfolder.moc"
