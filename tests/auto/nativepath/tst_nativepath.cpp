// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/values/NativePath_windows.h"

#include <QTest>

/// Paths for Windows' own functions. Wine takes long ones without the prefix too, so that only this test shows it.
class tst_NativePath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void longPathsGetThePrefix_data();
    void longPathsGetThePrefix();
};

void tst_NativePath::longPathsGetThePrefix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("native");
    const QString part(230, QLatin1Char('a'));
    const auto row = [](const char* title, const QString& path, const QString& native) {
        QTest::newRow(title) << path << native;
    };
    row("short", QStringLiteral("C:/pictures/1.jpg"), QStringLiteral("C:\\pictures\\1.jpg"));
    row("as a folder may be", QStringLiteral("C:/%1/12345678901234").arg(part.left(229)),
        QStringLiteral("C:\\%1\\12345678901234").arg(part.left(229)));
    row("longer by one", QStringLiteral("C:/%1/12345678901234").arg(part),
        QStringLiteral("\\\\?\\C:\\%1\\12345678901234").arg(part));
    row("with dots", QStringLiteral("C:/%1/./b/../1234567890123456789").arg(part),
        QStringLiteral("\\\\?\\C:\\%1\\1234567890123456789").arg(part));
    row("on another machine", QStringLiteral("//machine/share/%1/1.jpg").arg(part),
        QStringLiteral("\\\\?\\UNC\\machine\\share\\%1\\1.jpg").arg(part));
    row("with the prefix", QStringLiteral("\\\\?\\C:\\%1\\12345678901234").arg(part),
        QStringLiteral("\\\\?\\C:\\%1\\12345678901234").arg(part));
}

void tst_NativePath::longPathsGetThePrefix()
{
    QFETCH(const QString, path);
    QFETCH(const QString, native);

    QCOMPARE(QString::fromStdWString(BatchJob::NativePath(path)), native);
}

QTEST_GUILESS_MAIN(tst_NativePath)
#include "tst_nativepath.moc"
