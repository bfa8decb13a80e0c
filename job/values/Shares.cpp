// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Shares.h"

#include <QThread>

#include <algorithm>
#include <future>
#include <vector>

namespace BatchJob {

void InShares(int count, const std::function<void(int begin, int end)>& work)
{
    constexpr int worthAThread = 500;
    const int shares = std::clamp(count / worthAThread, 1, std::max(1, QThread::idealThreadCount()));
    const auto beginOf = [count, shares](int share) { return int(qint64(count) * share / shares); };
    std::vector<std::future<void>> others; // Their ends are waited for.
    for (int share = 1; share < shares; ++share) {
        others.push_back(std::async(std::launch::async, work, beginOf(share), beginOf(share + 1)));
    }
    work(0, beginOf(1));
}

} // namespace BatchJob
