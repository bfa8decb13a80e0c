// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace BatchDesktop {

/// The pictures that stand for all of a job: spread evenly over its pictures in the order of their kinds and bytes.
struct SampleChoice
{
    /// The first half of them is spread as evenly as all of them.
    static constexpr int most = 16;

    struct Sample
    {
        QString file;
        int place = 0; ///< among the samples, in the order of kinds and bytes
    };

    QVector<Sample> samples; ///< in the order in which they are best made
    int files = 0;           ///< that they stand for

    /// Chooses among `files`, whose kinds are their extensions. Asks the file system about each; safe on any thread.
    static SampleChoice Of(const QStringList& files, const std::function<bool()>& isCancelled = {});
};

} // namespace BatchDesktop
