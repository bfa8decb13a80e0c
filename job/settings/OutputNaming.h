// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QDateTime>
#include <QString>

#include <array>

/// The names of results. Everything here is safe on any thread.
namespace BatchJob {

/// The longest name of a file or folder, in bytes of UTF-8. File systems that count characters hold more.
constexpr int longestName = 255;

/// How a job names its results.
class OutputNaming
{
public:
    OutputNaming() = default;

    /// Uses the naming of `settings`, which have passed CheckSettings().
    explicit OutputNaming(const ZTBatchOutputSettings& settings);

    /// Whether names contain capture dates or times.
    bool NeedsCaptureTime() const;

    /// The name without extension, valid on any file system, for the file `inputPath`, which is number `position` of
    /// the job, counted from 0. An invalid `captured` becomes zeros.
    QString Stem(const QString& inputPath, int position, const QDateTime& captured) const;

private:
    struct Part
    {
        ZTBatchOutputSettings::NamingTemplate kind = ZTBatchOutputSettings::TemplateNothing;
        QString text;
        int start = 0;
        int digits = 1;
    };

    static QString TextOf(const Part& part, const QString& inputPath, int position, const QDateTime& captured);

    Part prefix;
    Part middle;
    Part suffix;
    QString prefixSeparator;
    QString suffixSeparator;
};

/// `name` as a valid path component on any system. Replaced with "_" are path separators, <>:"|?*, control characters
/// and line ends, lone surrogates, trailing dots and spaces, and names of devices such as CON. An empty name becomes
/// "_". The length is not limited.
QString CleanName(const QString& name);

/// `stem` + `addition` + "." + `extension`. The stem is cut between two characters if the whole would be longer than
/// longestName.
QString FileName(const QString& stem, const QString& addition, const QString& extension);

/// CleanName(), cut to longestName.
QString FolderName(const QString& name);

/// A key that is equal for names that mean the same file on some system: names that differ only in letter case (full
/// Unicode case folding) and in the composition of characters.
QString NameKey(const QString& name);

} // namespace BatchJob
