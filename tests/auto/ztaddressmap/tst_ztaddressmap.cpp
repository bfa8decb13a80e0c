// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTAddressMap_p.h"

#include <QtTest>

#include <map>
#include <random>

class tst_ZTAddressMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsEmpty();
    void keepsNumbers_data();
    void keepsNumbers();
    void lastNumberStays();
    void neighboursHaveNoNumber();
    void clears();
    void randomAddresses();
};

namespace {

/// An address that nobody looks at.
const void* Address(quintptr value)
{
    return reinterpret_cast<const void*>(value);
}

} // namespace

void tst_ZTAddressMap::beginsEmpty()
{
    const ZTAddressMap map;
    QVERIFY(map.IsEmpty());
    QCOMPARE(map.Value(Address(0)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(Address(4096)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(&map), int(ZTAddressMap::none));
}

void tst_ZTAddressMap::keepsNumbers_data()
{
    QTest::addColumn<int>("distance");

    QTest::newRow("the smallest objects") << int(ZTAddressMap::minimumObjectSize);
    QTest::newRow("out of step with the pages") << 88;
    QTest::newRow("one to a page") << 4096;
    QTest::newRow("far away") << 1000000;
}

void tst_ZTAddressMap::keepsNumbers()
{
    QFETCH(int, distance);

    constexpr int count = 10000;
    ZTAddressMap map;
    for (int i = count; i-- > 0;) {
        map.Insert(Address(quintptr(8 + i * qint64(distance))), i);
    }
    QVERIFY(!map.IsEmpty());
    for (int i = 0; i < count; ++i) {
        QCOMPARE(map.Value(Address(quintptr(8 + i * qint64(distance)))), i);
    }
}

void tst_ZTAddressMap::lastNumberStays()
{
    ZTAddressMap map;
    map.Insert(Address(64), 1);
    map.Insert(Address(64), 0);
    QCOMPARE(map.Value(Address(64)), 0);
}

void tst_ZTAddressMap::neighboursHaveNoNumber()
{
    ZTAddressMap map;
    map.Insert(Address(8192), 5);
    QCOMPARE(map.Value(Address(8192 - ZTAddressMap::minimumObjectSize)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(Address(8192 + ZTAddressMap::minimumObjectSize)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(Address(8192 + 4096)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(Address(8192)), 5);
}

void tst_ZTAddressMap::clears()
{
    ZTAddressMap map;
    map.Insert(Address(64), 1);
    map.Clear();
    QVERIFY(map.IsEmpty());
    QCOMPARE(map.Value(Address(64)), int(ZTAddressMap::none));
    map.Insert(Address(96), 2);
    QCOMPARE(map.Value(Address(64)), int(ZTAddressMap::none));
    QCOMPARE(map.Value(Address(96)), 2);
}

void tst_ZTAddressMap::randomAddresses()
{
    std::mt19937 random(1);
    ZTAddressMap map;
    std::map<quintptr, int> plain;
    for (int i = 0; i < 20000; ++i) {
        // Objects of 32 bytes, close together in some places and alone in others.
        const quintptr address = 32 * (random() % 500 + 100000 * (random() % 20));
        if (random() % 2 == 0) {
            map.Insert(Address(address), i);
            plain[address] = i;
        } else {
            const auto known = plain.find(address);
            QCOMPARE(map.Value(Address(address)), known == plain.end() ? int(ZTAddressMap::none) : known->second);
        }
    }
}

QTEST_GUILESS_MAIN(tst_ZTAddressMap)
#include "tst_ztaddressmap.moc"
