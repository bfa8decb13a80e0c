// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Examples.h"

#include "job/values/Phrase.h"

#include <array>

namespace BatchCli {

namespace {

struct Row
{
    const char* command;
    const char* text;
    const char* arguments; ///< after the command
};

constexpr std::array rows{
    Row{"run", BatchJob::Phrase::Marked("Pictures for the web, at most 1600 pixels long"),
        "photos -o web -s 1600 -f jpeg --quality 85"},
    Row{"run", BatchJob::Phrase::Marked("Names by capture date, in a folder for each day"),
        "photos -o sorted --structure date --prefix date --prefix-separator _"},
    Row{"run", BatchJob::Phrase::Marked("A saved job over other pictures"),
        "web.xml holiday -o web --on-name-exists rename"},
    Row{"run", BatchJob::Phrase::Marked("Files that another program lists"), "-o web -f webp --files-from list.txt"},
    Row{"run", BatchJob::Phrase::Marked("Camera RAW files in all subfolders"),
        "\"photos/**/*.{nef,cr2}\" -o out -f tiff"},
    Row{"run", BatchJob::Phrase::Marked("What would be written"), "photos -o web -f jpeg --dry-run"},
    Row{"run", BatchJob::Phrase::Marked("A preset over other pictures"), "photos --preset thumbnails -o small"},
    Row{"run", BatchJob::Phrase::Marked("A run that was interrupted"), "--resume -o web"},
    Row{"watch", BatchJob::Phrase::Marked("Every picture that comes into a folder"), "incoming --preset web -o web"},
    Row{"create", BatchJob::Phrase::Marked("A job for pictures to come"),
        "web.xml -o web -s 1600 -f jpeg --effect sharpen:amount=80"},
    Row{"create", BatchJob::Phrase::Marked("A job with one value changed"), "small.xml --from web.xml -s 800"},
    Row{"show", BatchJob::Phrase::Marked("A saved job, in the words of the options"), "web.xml"},
    Row{"plan", BatchJob::Phrase::Marked("Every result's name, and what is in the way"),
        "photos -o web --name number:1:4"},
    Row{"plan", BatchJob::Phrase::Marked("The same for programs"), "web.xml photos --json"},
    Row{"split", BatchJob::Phrase::Marked("A job for eight machines"), "photos -o web --parts 8 --plan web.plan"},
    Row{"collect", BatchJob::Phrase::Marked("What the parts have done"), "web.plan --report web.csv"},
    Row{"effects", BatchJob::Phrase::Marked("One effect with its parameters"), "blur"},
    Row{"formats", BatchJob::Phrase::Marked("One format with its options"), "JPEG"},
};

} // namespace

QVector<Example> ExamplesOf(const QString& command)
{
    QVector<Example> examples;
    for (const Row& row : rows) {
        if (command.isEmpty() || command == QLatin1String(row.command)) {
            examples.append(
                {QString::fromLatin1(row.text),
                 QStringLiteral("velkora-batch %1 %2").arg(QLatin1String(row.command), QLatin1String(row.arguments))});
        }
    }
    return examples;
}

} // namespace BatchCli
