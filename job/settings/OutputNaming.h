#pragma once

#include "ZTBatchOutputSettings.h"

#include <QDateTime>
#include <QString>

#include <array>

/// The names of results. Everything here is safe on any thread.
namespace BatchJob {

/// The longest name of a file or folder, in bytes of UTF-8. File systems that count otherwise hold more.
constexpr int longestName = 255;

/// How a job names its results.
class OutputNaming
{
public:
    OutputNaming() = default;

    /// Takes the naming of `settings`, whose templates are known to be enumerators.
    explicit OutputNaming(const ZTBatchOutputSettings& settings);

    /// Whether a name holds the date or the time at which its picture was taken.
    bool NeedsCaptureTime() const;

    /// The name without extension for the file `inputPath`, the `position`-th of the job counted from 0, as any file
    /// system takes it. A time that is not known (invalid) shows as zeros.
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

/// `name` as one component of a path on any system: what a file system refuses or reads as something else is replaced
/// with "_" (path separators, <>:"|?*, control characters and line ends, halves of surrogate pairs, trailing dots and
/// spaces, names of devices such as CON), an empty name becomes "_". Not cut.
QString CleanName(const QString& name);

/// `stem` + `addition` + "." + `extension`; the stem is cut, between two characters, where the whole would be longer
/// than longestName.
QString FileName(const QString& stem, const QString& addition, const QString& extension);

/// A cleaned folder name, cut to longestName.
QString FolderName(const QString& name);

/// The text that two names share when they could mean the same file on some system: they differ in nothing but letter
/// case (full Unicode case folding) and composition of characters.
QString NameKey(const QString& name);

} // namespace BatchJob
