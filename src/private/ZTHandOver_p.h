#pragma once

#include <QMutex>
#include <QMutexLocker>

#include <iterator>
#include <utility>
#include <vector>

/// Carries items in order to the thread that takes them, from any thread. Its owner posts one event for as many items
/// as wait, which is what makes a burst of small messages cheap: an event for each would cost more than its message.
template<typename Item>
class ZTHandOver
{
public:
    /// Adds `more`, which is empty afterwards. Returns whether the taking thread has to be woken: it is not while it
    /// still takes.
    bool Put(std::vector<Item>& more)
    {
        const QMutexLocker locker(&lock);
        MoveAll(more, items);
        return !std::exchange(isTaking, true);
    }

    /// The same with a function that gets the waiting items and adds to them.
    template<typename Function>
    bool Put(const Function& put)
    {
        const QMutexLocker locker(&lock);
        put(items);
        return !std::exchange(isTaking, true);
    }

    /// Appends every item that waits to `taken`, in the order in which they were put. Returns whether there were any;
    /// who was woken takes until there are none.
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
