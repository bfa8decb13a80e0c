// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SampleChoice.h"

#include <QFileInfo>

#include <algorithm>

namespace BatchDesktop {

namespace {

struct Candidate
{
    QString kind;
    qint64 bytes = 0;
    QString file;

    bool operator<(const Candidate& other) const
    {
        return kind != other.kind ? kind < other.kind : bytes != other.bytes ? bytes < other.bytes : file < other.file;
    }
};

} // namespace

SampleChoice SampleChoice::Of(const QStringList& files, const std::function<bool()>& isCancelled)
{
    std::vector<Candidate> candidates;
    candidates.reserve(std::size_t(files.size()));
    for (const QString& file : files) {
        if (isCancelled && isCancelled()) {
            return {};
        }
        const QFileInfo info(file);
        candidates.push_back({info.suffix().toLower(), info.size(), file});
    }
    std::sort(candidates.begin(), candidates.end());
    SampleChoice choice;
    choice.files = files.size();
    const qint64 count = std::min(files.size(), most);
    for (const int start : {0, 1}) { // Every other one first.
        for (qint64 place = start; place < count; place += 2) {
            // The middle one of the part that it stands for.
            const std::size_t index = std::size_t((2 * place + 1) * files.size() / (2 * count));
            choice.samples.append({candidates[index].file, int(place)});
        }
    }
    return choice;
}

} // namespace BatchDesktop
