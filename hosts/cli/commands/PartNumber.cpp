// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartNumber.h"

#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

constexpr char slurm[] = "SLURM_ARRAY_TASK_ID";
constexpr char slurmOrigin[] = "SLURM_ARRAY_TASK_MIN";
constexpr char kubernetes[] = "JOB_COMPLETION_INDEX";
constexpr char parallel[] = "PARALLEL_SEQ";

int Number(const QString& text, int first, int count, const QString& where)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < first || number >= first + count) {
        throw RequestError{BatchJob::Phrase::English("%1: there is no part \"%2\"; the plan has the parts %3 to %4")
                               .arg(where, text)
                               .arg(first)
                               .arg(first + count - 1)};
    }
    return number - first + 1;
}

/// Slurm counts from where the user wants; an array that begins with 0 has the first part there.
int FirstOf(const QString& variable)
{
    const bool startsAtZero = variable == QLatin1String(slurm) && qgetenv(slurmOrigin).trimmed() == "0";
    return startsAtZero || variable == QLatin1String(kubernetes) ? 0 : 1;
}

} // namespace

int PartNumber(const ParsedArguments& arguments, int count)
{
    const QString option = QStringLiteral("--part");
    if (arguments.Has(option)) {
        return Number(arguments.Value(option), 1, count, option);
    }
    QStringList found;
    for (const char* const variable : {slurm, kubernetes, parallel}) {
        if (qEnvironmentVariableIsSet(variable)) {
            found.append(QString::fromLatin1(variable));
        }
    }
    if (found.isEmpty()) {
        throw RequestError{
            BatchJob::Phrase::English("which part is not said; use --part with a number from 1 to %1").arg(count)};
    }
    if (found.size() > 1) {
        throw RequestError{BatchJob::Phrase::English("%1 and %2 both say which part to make; use --part")
                               .arg(found.at(0), found.at(1))};
    }
    return Number(qEnvironmentVariable(found.first().toLatin1().constData()).trimmed(), FirstOf(found.first()), count,
                  found.first());
}

} // namespace BatchCli
