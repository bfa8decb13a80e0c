// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"

#include <QStringList>

#include <array>
#include <functional>

class ZTBatchDocument;

namespace BatchHost {

/// The order of a job's files, which numbers in names follow.
enum class InputOrder : int {
    Taken, ///< by capture time, and by their own time for files without one
    Name,  ///< folder by folder, by natural names
    Given  ///< as their user has named files and folders; natural within each folder
};

constexpr std::array inputOrderWords{
    BatchJob::Word{int(InputOrder::Taken), "taken", "by capture time, or the file's own time"},
    BatchJob::Word{int(InputOrder::Name), "name", "folder by folder, by natural names"},
    BatchJob::Word{int(InputOrder::Given), "given", "as the command line names them"}};

/// Sorts the inputs of `job`. The order is kept in the texts of its nodes, by which every job sorts them, so a saved
/// job has it too. Folders are dissolved by the orders Taken and Given, unless results keep the folders of their
/// inputs: then the order holds within each folder, and a folder counts by its first file.
///
/// `given` are the absolute paths that the user has named, in their order. Inputs that are not among them come first.
/// Capture times are read by workers, which call `onProgress` with the number of files that are done, and of all. Files
/// of equal rank keep their order. Throws RequestError when no worker can be started.
void SortInputs(ZTBatchDocument& job, InputOrder order, const QStringList& given,
                const std::function<void(int done, int files)>& onProgress = {});

} // namespace BatchHost
