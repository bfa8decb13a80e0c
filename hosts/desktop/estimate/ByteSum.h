// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>

#include <optional>

namespace BatchDesktop {

/// The bytes of all results, from those of some.
struct ByteSum
{
    double bytes = 0;
    double error = 0; ///< the sum is within this of `bytes` in about 19 of 20 cases; 0 if it is exact

    /// In percent, rounded up; 0 if the sum is exact.
    int Percent() const;

    /// `samples` are the bytes of the samples by their places, of a systematic sample of `files` results. Nothing if
    /// there are too few samples to tell, or if none has any bytes.
    ///
    /// The sum is the mean times the number of files. Neighbours in the order of kinds and bytes are alike, so their
    /// differences tell how much one sample may err for what it stands for (the successive difference estimator of
    /// systematic samples: K. M. Wolter, Introduction to Variance Estimation, chapter 8): with n samples y of N files
    /// the variance of the sum is (1 - n/N) N^2/n times the sum of (y[i] - y[i-1])^2 / (2 (n - 1)), and the error is
    /// twice its root.
    static std::optional<ByteSum> Of(const QMap<int, qint64>& samples, int files);
};

} // namespace BatchDesktop
