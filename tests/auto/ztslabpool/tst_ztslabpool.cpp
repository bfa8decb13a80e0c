// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchInputModel.h"
#include "ZTSlabPool_p.h"

#include <QtTest>

#include <algorithm>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

class tst_ZTSlabPool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithoutMemory();
    void slotsStandSideBySide();
    void slotsAreApart_data();
    void slotsAreApart();
    void slotsAreTakenAgain();
    void slabsGoBack();
    void emptySlabIsTakenInOrderAgain();
    void randomUse();
    void manyThreads();
    void nodesComeFromManyThreads();
    void derivedNodes();
};

namespace {

constexpr std::size_t objectSize = 88;

quintptr AddressOf(void* slot)
{
    return reinterpret_cast<quintptr>(slot);
}

std::vector<void*> AllocateMany(ZTSlabPool& pool, int count)
{
    std::vector<void*> taken;
    for (int i = 0; i < count; ++i) {
        taken.push_back(pool.Allocate());
    }
    return taken;
}

void FreeAll(ZTSlabPool& pool, const std::vector<void*>& taken)
{
    for (void* const slot : taken) {
        pool.Free(slot);
    }
}

/// More than one slab holds.
constexpr int many = 5000;

} // namespace

void tst_ZTSlabPool::beginsWithoutMemory()
{
    const ZTSlabPool pool(objectSize);
    QCOMPARE(pool.SlabCount(), 0);
}

void tst_ZTSlabPool::slotsStandSideBySide()
{
    ZTSlabPool pool(objectSize);
    const std::vector<void*> taken = AllocateMany(pool, many);
    int breaks = 0;
    for (std::size_t i = 1; i < taken.size(); ++i) {
        breaks += AddressOf(taken[i]) - AddressOf(taken[i - 1]) == objectSize ? 0 : 1;
    }
    QVERIFY(pool.SlabCount() > 1);
    QCOMPARE(breaks, pool.SlabCount() - 1);
    FreeAll(pool, taken);
}

void tst_ZTSlabPool::slotsAreApart_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {1, 8, 9, 88, 100, 1024}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void tst_ZTSlabPool::slotsAreApart()
{
    QFETCH(int, size);

    ZTSlabPool pool{std::size_t(size)};
    std::vector<void*> taken = AllocateMany(pool, many);
    for (void* const slot : taken) {
        QCOMPARE(AddressOf(slot) % alignof(void*), quintptr(0));
        // Every byte belongs to the object.
        std::memset(slot, 0xAA, std::size_t(size));
    }
    std::sort(taken.begin(), taken.end());
    for (std::size_t i = 1; i < taken.size(); ++i) {
        QVERIFY(AddressOf(taken[i]) - AddressOf(taken[i - 1]) >= quintptr(size));
    }
    FreeAll(pool, taken);
    QCOMPARE(pool.SlabCount(), 1);
}

void tst_ZTSlabPool::slotsAreTakenAgain()
{
    ZTSlabPool pool(objectSize);
    std::vector<void*> taken = AllocateMany(pool, many);
    const int slabCount = pool.SlabCount();
    // Every third slot, in all slabs.
    std::vector<void*> free;
    for (std::size_t i = 0; i < taken.size(); i += 3) {
        free.push_back(taken[i]);
        pool.Free(taken[i]);
    }
    std::vector<void*> again = AllocateMany(pool, int(free.size()));
    QCOMPARE(pool.SlabCount(), slabCount);
    // Some may be at the end of the last slab, which is not full.
    std::sort(free.begin(), free.end());
    std::sort(again.begin(), again.end());
    std::vector<void*> common;
    std::set_intersection(free.begin(), free.end(), again.begin(), again.end(), std::back_inserter(common));
    QVERIFY(common.size() * 2 > free.size());

    for (std::size_t i = 0; i < taken.size(); ++i) {
        if (i % 3 != 0) {
            pool.Free(taken[i]);
        }
    }
    FreeAll(pool, again);
    QCOMPARE(pool.SlabCount(), 1);
}

void tst_ZTSlabPool::slabsGoBack()
{
    ZTSlabPool pool(objectSize);
    for (int round = 0; round < 3; ++round) {
        const std::vector<void*> taken = AllocateMany(pool, many);
        const int slabCount = pool.SlabCount();
        QVERIFY(slabCount > 2);
        void* const last = taken.back();
        FreeAll(pool, {taken.begin(), taken.end() - 1});
        // The slab of the slot that is still taken, and a spare one.
        QCOMPARE(pool.SlabCount(), 2);
        pool.Free(last);
        QCOMPARE(pool.SlabCount(), 1);
    }
}

void tst_ZTSlabPool::emptySlabIsTakenInOrderAgain()
{
    ZTSlabPool pool(objectSize);
    const std::vector<void*> first = AllocateMany(pool, 100);
    std::vector<void*> shuffled = first;
    std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(1));
    FreeAll(pool, shuffled);
    const std::vector<void*> second = AllocateMany(pool, 100);
    QVERIFY(first == second);
    FreeAll(pool, second);
}

void tst_ZTSlabPool::randomUse()
{
    struct Object
    {
        void* slot;
        unsigned char mark;
    };
    std::mt19937 random(1);
    ZTSlabPool pool(objectSize);
    std::vector<Object> objects;
    for (int step = 0; step < 100000; ++step) {
        // Phases of growth and of shrinking alternate.
        const bool takes = objects.empty() || random() % 10 < (step / 10000 % 2 == 0 ? 7U : 3U);
        if (takes) {
            const Object object{pool.Allocate(), static_cast<unsigned char>(random() % 256)};
            std::memset(object.slot, object.mark, objectSize);
            objects.push_back(object);
        } else {
            std::swap(objects[random() % objects.size()], objects.back());
            const auto* const bytes = static_cast<const unsigned char*>(objects.back().slot);
            const bool isIntact =
                std::all_of(bytes, bytes + objectSize, [&](unsigned char byte) { return byte == objects.back().mark; });
            QVERIFY(isIntact);
            pool.Free(objects.back().slot);
            objects.pop_back();
        }
    }
    for (const Object& object : objects) {
        pool.Free(object.slot);
    }
    QCOMPARE(pool.SlabCount(), 1);
}

void tst_ZTSlabPool::manyThreads()
{
    // Each thread takes slots and returns those of its neighbour.
    constexpr int threadCount = 4;
    ZTSlabPool pool(objectSize);
    std::vector<std::vector<void*>> taken(threadCount);
    for (int round = 0; round < 5; ++round) {
        std::vector<std::thread> threads;
        for (std::vector<void*>& slots : taken) {
            threads.emplace_back([&pool, &slots] {
                FreeAll(pool, slots);
                slots = AllocateMany(pool, many);
                for (void* const slot : slots) {
                    std::memset(slot, 0xAA, objectSize);
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        std::vector<void*> all;
        for (const std::vector<void*>& slots : taken) {
            all.insert(all.end(), slots.begin(), slots.end());
        }
        std::sort(all.begin(), all.end());
        QVERIFY(std::adjacent_find(all.begin(), all.end()) == all.end());
        std::rotate(taken.begin(), taken.begin() + 1, taken.end());
    }
    for (const std::vector<void*>& slots : taken) {
        FreeAll(pool, slots);
    }
    QCOMPARE(pool.SlabCount(), 1);
}

void tst_ZTSlabPool::nodesComeFromManyThreads()
{
    using Node = TreeNode<BatchNodeData>;
    const auto makeTree = [](int number) {
        auto* const root = new Node;
        for (int i = 0; i < many; ++i) {
            auto* const child = new Node;
            child->data.inputText = QString::number(number * many + i);
            child->data.type = File;
            root->insertChild(child);
        }
        return root;
    };
    std::vector<Node*> trees(4);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&trees, makeTree, i] { trees[std::size_t(i)] = makeTree(i); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    // Destroyed on a thread other than the one that has created it.
    for (Node* const tree : trees) {
        QCOMPARE(tree->children.size(), many);
        delete tree;
    }
}

void tst_ZTSlabPool::derivedNodes()
{
    class BigNode : public TreeNode<BatchNodeData>
    {
    public:
        char more[1000] = {};
    };
    for (int i = 0; i < 100; ++i) {
        auto* const node = new BigNode;
        std::memset(node->more, 0xAA, sizeof(node->more));
        delete node;
    }
    const auto array = std::make_unique<TreeNode<BatchNodeData>[]>(3);
    QVERIFY(array[2].children.isEmpty());
}

QTEST_GUILESS_MAIN(tst_ZTSlabPool)
#include "tst_ztslabpool.moc"
