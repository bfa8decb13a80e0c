// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTStyle.h"
#include "ZTStyleGroup.h"

#include <QtTest>

class tst_ZTStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshStyleIsEmpty();
    void nameDescriptionAndGroup();
    void diesWithItsParent();
    void effectsKeepTheirOrderAndBytes();
    void indexesOutsideGiveNothing_data();
    void indexesOutsideGiveNothing();
    void copyAppendsToTheTarget();
    void copyIntoItselfDoubles();
    void clearRemovesEverything();
};

void tst_ZTStyle::freshStyleIsEmpty()
{
    const ZTStyle style(QString(), QString(), nullptr, nullptr);
    QCOMPARE(style.GetEffectCount(), 0);
    QVERIFY(style.Name().isEmpty());
    QVERIFY(style.Description().isEmpty());
    QVERIFY(!style.Group());
}

void tst_ZTStyle::nameDescriptionAndGroup()
{
    auto group = std::make_unique<ZTStyleGroup>(QStringLiteral("Black and white"));
    QCOMPARE(group->Name(), QStringLiteral("Black and white"));

    const ZTStyle style(QStringLiteral("Noir"), QStringLiteral("High contrast"), group.get(), nullptr);
    QCOMPARE(style.Name(), QStringLiteral("Noir"));
    QCOMPARE(style.Description(), QStringLiteral("High contrast"));
    QCOMPARE(style.Group(), group.get());

    group.reset();
    QVERIFY(!style.Group());
}

void tst_ZTStyle::diesWithItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<ZTStyle> style = new ZTStyle(QString(), QString(), nullptr, parent.get());
    parent.reset();
    QVERIFY(style.isNull());
}

void tst_ZTStyle::effectsKeepTheirOrderAndBytes()
{
    QByteArray allBytes;
    for (int byte = 0; byte < 256; ++byte) {
        allBytes.append(static_cast<char>(byte));
    }

    ZTStyle style(QString(), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("blur"), allBytes, true);
    style.AppendEffect(QStringLiteral("sepia"), QByteArray(), false);
    style.AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("{}"), true);

    QCOMPARE(style.GetEffectCount(), 3);
    QCOMPARE(style.EffectAt(0), QStringLiteral("blur"));
    QCOMPARE(style.DataAt(0), allBytes);
    QCOMPARE(style.IsEnabled(0), true);
    QCOMPARE(style.EffectAt(1), QStringLiteral("sepia"));
    QCOMPARE(style.DataAt(1), QByteArray());
    QCOMPARE(style.IsEnabled(1), false);
    QCOMPARE(style.EffectAt(2), QStringLiteral("blur"));
    QCOMPARE(style.DataAt(2), QByteArrayLiteral("{}"));
    QCOMPARE(style.IsEnabled(2), true);
}

void tst_ZTStyle::indexesOutsideGiveNothing_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("negative") << -1;
    QTest::newRow("count") << 1;
    QTest::newRow("far") << 1000000;
}

void tst_ZTStyle::indexesOutsideGiveNothing()
{
    QFETCH(int, index);

    ZTStyle style(QString(), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("{}"), true);
    QVERIFY(style.EffectAt(index).isNull());
    QVERIFY(style.DataAt(index).isNull());
    QVERIFY(!style.IsEnabled(index));
}

void tst_ZTStyle::copyAppendsToTheTarget()
{
    ZTStyle source(QString(), QString(), nullptr, nullptr);
    source.AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("1"), true);
    source.AppendEffect(QStringLiteral("hue"), QByteArrayLiteral("2"), false);
    ZTStyle target(QString(), QString(), nullptr, nullptr);
    target.AppendEffect(QStringLiteral("invert"), QByteArray(), true);

    source.CopyEffects(target);

    QCOMPARE(source.GetEffectCount(), 2);
    QCOMPARE(target.GetEffectCount(), 3);
    QCOMPARE(target.EffectAt(0), QStringLiteral("invert"));
    QCOMPARE(target.EffectAt(1), QStringLiteral("blur"));
    QCOMPARE(target.EffectAt(2), QStringLiteral("hue"));
    QCOMPARE(target.DataAt(2), QByteArrayLiteral("2"));
    QCOMPARE(target.IsEnabled(2), false);
}

void tst_ZTStyle::copyIntoItselfDoubles()
{
    ZTStyle style(QString(), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("blur"), QByteArray(), true);
    style.AppendEffect(QStringLiteral("hue"), QByteArray(), true);
    style.CopyEffects(style);
    QCOMPARE(style.GetEffectCount(), 4);
    QCOMPARE(style.EffectAt(2), QStringLiteral("blur"));
    QCOMPARE(style.EffectAt(3), QStringLiteral("hue"));
}

void tst_ZTStyle::clearRemovesEverything()
{
    ZTStyle style(QString(), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("blur"), QByteArray(), true);
    style.Clear();
    QCOMPARE(style.GetEffectCount(), 0);
    QVERIFY(style.EffectAt(0).isNull());
}

QTEST_GUILESS_MAIN(tst_ZTStyle)
#include "tst_ztstyle.moc"
