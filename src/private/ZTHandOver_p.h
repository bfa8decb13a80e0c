// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMutex>
#include <QMutexLocker>

#include <iterator>
#include <utility>
#include <vector>

/// A queue of items from any thread to one taking thread. The owner posts one event for all waiting items, which makes
/// a burst of small messages cheap: one event for each would cost more than the message.
template<typename Item>
class ZTHandOver
{
public:
    /// Adds `more` and leaves it empty. Returns whether the taking thread must be woken, which is not necessary while
    /// it is still taking.
    bool Put(std::vector<Item>& more)
    {
        const QMutexLocker locker(&lock);
        MoveAll(more, items);
        return !std::exchange(isTaking, true);
    }

    /// The same, with a function that adds to the waiting items.
    template<typename Function>
    bool Put(const Function& put)
    {
        const QMutexLocker locker(&lock);
        put(items);
        return !std::exchange(isTaking, true);
    }

    /// Appends all waiting items to `taken`, in order. Returns whether there were any. A woken thread must call this
    /// until it returns false.
    bool TakeAll(std::vector<Item>& taken)
    {
        const QMutexLocker locker(&lock);
        isTaking = !items.empty();
        MoveAll(items, taken);
        return isTaking;
    }

private:
    static void MoveAll(std::vector<Item>& from, std::vector<Item>& to)
    {
        if (to.empty()) {
            to.swap(from);
        } else {
            to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
            from.clear();
        }
    }

    QMutex lock;
    std::vector<Item> items;
    bool isTaking = false;
};
