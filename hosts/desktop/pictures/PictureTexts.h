// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "InputBranches.h"
#include "NamePlan.h"
#include "RunStates.h"
#include "Thumbnails.h"

namespace BatchDesktop {

/// The states by which pictures can be filtered.
enum class ShownState { All, NameTaken, Waiting, Working, Written, Skipped, Failed };

/// What the views say of an input, from all that is known of it.
class PictureTexts : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this object.
    PictureTexts(const NamePlan& plan, const RunStates& states, const Thumbnails& thumbnails,
                 QObject* parent = nullptr);

    static bool IsFile(const InputNode& node) { return node.data.type != Folder; }

    QString Name(const InputNode& node) const;

    /// The planned name of the result; of a folder, how many pictures it has.
    QString Result(const InputNode& node) const;

    /// The same without the folder where the result stays in one of the same name, as the list shows that already.
    QString ShortResult(const InputNode& node) const;

    /// One word or two; empty if all is well.
    QString State(const InputNode& node) const;

    /// Whether the state is one to look at.
    bool IsWarning(const InputNode& node) const;

    QString ToolTip(const InputNode& node) const;

    /// For assistive technology: one text for the whole picture.
    QString Spoken(const InputNode& node) const;

    QPixmap Thumbnail(const InputNode& node) const { return thumbnails.Of(node.data.fileName); }

    bool Matches(const InputNode& file, ShownState state) const;

Q_SIGNALS:
    void Changed(const QString& path);
    void AllChanged();

private:
    const NamePlan& plan;
    const RunStates& states;
    const Thumbnails& thumbnails;
};

} // namespace BatchDesktop
