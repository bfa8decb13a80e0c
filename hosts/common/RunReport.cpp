// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunReport.h"

#include "job/values/Phrase.h"

using namespace BatchJob;

namespace BatchHost {

void RunReport::OnStart(const RunInputs& inputs, const QString&)
{
    hasPresets = !inputs.variants.isEmpty();
    for (const QString& input : inputs.files) {
        Entry entry;
        entry.result.input = input;
        entry.result.inputBytes = inputs.bytes.at(entries.size());
        entry.result.preset = inputs.VariantAt(entries.size());
        entries.append(entry);
    }
    for (int i = entries.size() - 1; i >= 0; --i) {
        open.insert({inputs.files.at(i), inputs.VariantAt(i)}, i); // find() gives the one that was inserted last.
    }
    for (const LeftOutFile& leftOut : inputs.leftOut) {
        Entry entry;
        entry.result.input = leftOut.path;
        entry.result.reason =
            Phrase::English("it begins like a %1 file, but its extension is not known").arg(leftOut.format);
        entry.word = QStringLiteral("left out");
        entries.append(entry);
    }
}

void RunReport::OnResult(const FileResult& result, int, int)
{
    const auto entry = open.find({result.input, result.preset});
    if (entry != open.end()) {
        entries[*entry] = {result, ResultWord(result.kind)};
        open.erase(entry);
    }
}

void RunReport::OnEnd(const RunEnd&)
{
    file.Begin(hasPresets);
    for (const Entry& entry : qAsConst(entries)) {
        file.Add(entry.result, entry.word);
    }
    file.Commit();
}

} // namespace BatchHost
