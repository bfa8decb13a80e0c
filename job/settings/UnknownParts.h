// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

namespace BatchJob {

/// An element or attribute of a job's text that this version does not know.
struct UnknownPart
{
    int line; ///< of the first one, counted from 1
    QString name;
    QString place; ///< the element around it, or the one that has the attribute
    bool isAttribute;

    /// What is known of it, for the user.
    QString Text() const;
};

/// What `text`, a job that can be read, holds for a later version: each kind once, in the text's order. What an unknown
/// element contains is not listed. Reading the job drops all of this.
QVector<UnknownPart> UnknownParts(const QString& text);

} // namespace BatchJob
