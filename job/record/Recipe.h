// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchJob {

struct JobSettings;

/// Counts the changes of what pictures look like. Whoever changes the pixels, the metadata or the coding of results
/// raises it: results of another version are made anew by an update.
constexpr int pictureVersion = 1;

/// All that decides what a result looks like, beside its input: two results of one input with equal recipes are equal.
/// Names and folders of results do not count.
class Recipe
{
public:
    Recipe() = default;

    /// Of the job with these settings, whose text without inputs is `document`. Reads the files of effects and framing.
    Recipe(const QString& document, const JobSettings& settings);

    /// The recipe of a result in `format`, one of Formats(), as a short text. `number` is that of its file in texts.
    QString For(const QString& format, qint64 number) const;

private:
    QByteArray base;
    bool usesNumber = false;
};

} // namespace BatchJob
