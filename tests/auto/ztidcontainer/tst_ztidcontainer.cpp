// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTIDContainer.h"

#include <QSet>
#include <QtTest>

class tst_ZTIDContainer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void idsAreUniqueWhileRegistered();
    void unregisteredOnce();
    void containersDoNotRepeatEachOther();
    void idsAreRandom();
};

void tst_ZTIDContainer::idsAreUniqueWhileRegistered()
{
    ZTIDContainer container;
    QSet<QString> ids;
    for (int i = 0; i < 10000; ++i) {
        const QString id = container.CreateAndRegisterID();
        QVERIFY(!id.isEmpty());
        QVERIFY(container.IsRegistered(id));
        QVERIFY(!ids.contains(id));
        ids.insert(id);
    }
}

void tst_ZTIDContainer::unregisteredOnce()
{
    ZTIDContainer container;
    const QString id = container.CreateAndRegisterID();
    const QString other = container.CreateAndRegisterID();
    QVERIFY(container.UnregisterID(id));
    QVERIFY(!container.IsRegistered(id));
    QVERIFY(container.IsRegistered(other));
    QVERIFY(!container.UnregisterID(id));
    QVERIFY(!container.UnregisterID(QString()));
    QVERIFY(!container.UnregisterID(QStringLiteral("never issued")));
}

void tst_ZTIDContainer::containersDoNotRepeatEachOther()
{
    ZTIDContainer first;
    ZTIDContainer second;
    QVERIFY(first.CreateAndRegisterID() != second.CreateAndRegisterID());
}

void tst_ZTIDContainer::idsAreRandom()
{
    // Identifiers that can be guessed have most of their text in common. In random UUIDs only the separators and the
    // version are constant; among 64 of them every other place has at least 4 different digits, with a probability of
    // error below 1e-20.
    ZTIDContainer container;
    QStringList ids;
    for (int i = 0; i < 64; ++i) {
        ids.append(container.CreateAndRegisterID());
    }
    int places = 0;
    for (int place = 0; place < ids.first().size(); ++place) {
        QSet<QChar> seen;
        for (const QString& id : ids) {
            seen.insert(id.at(place));
        }
        places += seen.size() >= 4 ? 1 : 0;
    }
    QVERIFY2(places >= 30, qPrintable(QString::number(places)));
}

QTEST_GUILESS_MAIN(tst_ZTIDContainer)
#include "tst_ztidcontainer.moc"
