// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/tokens/TokenText.h"

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

    /// Whether names contain what is known only after a worker has looked at the file.
    bool NeedsPicture() const { return NeedsCaptureTime() || NeedsPictureTexts(); }

    /// The same for more than capture dates and times.
    bool NeedsPictureTexts() const;

    /// The number of file `position`, counted from 0, in texts other than names: that of the first part that has one.
    qint64 NumberOf(int position) const;

    /// What is known of a picture that names are made of.
    struct Picture
    {
        Picture(const QDateTime& captured = {}, const QSize& size = {}, const PictureTexts& texts = {})
            : captured(captured)
            , size(size)
            , texts(texts)
        {
        }

        QDateTime captured; ///< if it is invalid, parts that are dates or times become zeros
        QSize size;         ///< upright, in pixels
        PictureTexts texts;
    };

    /// The name without extension, valid on any file system, for the file `inputPath`, which is number `position` of
    /// the job, counted from 0.
    QString Stem(const QString& inputPath, int position, const Picture& picture) const;

private:
    struct Part
    {
        ZTBatchOutputSettings::NamingTemplate kind = ZTBatchOutputSettings::TemplateNothing;
        QString text;
        int start = 0;
        int digits = 1;
        TokenText tokens; ///< of TemplateTokens

        bool HasNumber() const;
        bool NeedsCaptureTime() const;
    };

    static QString TextOf(const Part& part, const QString& inputPath, int position, const Picture& picture);

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
