// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/Settings.h"

#include "ZTBatchInputModel.h"

#include <QStringList>
#include <QVector>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

class QDataStream;
class ZTBatchDocument;

namespace BatchDesktop {

class EditedJob;

/// The inputs of a job as they were at one moment, for use on any thread.
class InputSnapshot
{
public:
    /// To be filled by Continue().
    InputSnapshot();

    explicit InputSnapshot(const ZTBatchInputModel& model);

    /// Copies more of the inputs, for at most about `longest`, and tells whether it has all of them. The inputs must be
    /// the same from the first to the last call.
    bool Continue(const ZTBatchInputModel& model, std::chrono::milliseconds longest);

    /// Adds the inputs to `job`, which has none.
    void AddTo(ZTBatchDocument& job) const;

    /// Written in a form that is read much faster than the text of a job.
    void Save(QDataStream& stream) const;

    /// Nothing if the stream is damaged.
    static std::optional<InputSnapshot> Load(QDataStream& stream);

    /// What stands at the top: the files and folders that were added by the user.
    QStringList TopPaths() const;

private:
    struct Node
    {
        int depth;
        BatchNodeData data;
    };

    struct OpenFolder
    {
        QModelIndex index;
        int nextRow = 0;
    };

    bool Step(const ZTBatchInputModel& model);

    std::vector<Node> nodes;  ///< in the order of the document
    QVector<OpenFolder> open; ///< from the top down to where the copying is
};

/// A job as it was at one moment.
struct JobSnapshot
{
    explicit JobSnapshot(const EditedJob& job);

    /// The job belongs to the calling thread.
    std::unique_ptr<ZTBatchDocument> ToJob() const;

    QString name;
    Settings settings;
    InputSnapshot inputs;
};

} // namespace BatchDesktop
