// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <memory>

namespace BatchDesktop {

/// Keeps the computer from falling asleep by itself.
class SleepBlocker
{
public:
    SleepBlocker();

    /// Sleep is allowed again.
    ~SleepBlocker();

    /// `reason` is for people who ask the system why it stays awake.
    void Block(const QString& reason);

    void Release();

private:
    class Link;

    const std::unique_ptr<Link> link;
};

} // namespace BatchDesktop
