// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PolicyOptions.h"

#include "Words.h"

#include "job/values/Phrase.h"

using namespace BatchJob;

namespace BatchHost {

namespace {

QString HelpOf(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Input:
        return Phrase::English(
            "when a file is missing, damaged, too large or not a picture: skip it, stop the run, or ask");
    case PolicyKind::Output:
        return Phrase::English(
            "when a result cannot be written, because of a full disk or missing rights: skip, stop or "
            "ask");
    case PolicyKind::Processing:
        return Phrase::English("when an effect fails, or a picture takes too long or crashes its worker: skip, stop or "
                               "ask");
    case PolicyKind::Naming:
        return Phrase::English("when a result's name is taken, on disk, by another result or by a source: skip, "
                               "overwrite, rename (\" (2)\" is appended) or ask");
    case PolicyKind::WriteToFormat:
        return Phrase::English(
            "when a picture cannot be written in the wanted format: skip, stop, ask, or nearest, to write "
            "the nearest format that can hold it");
    case PolicyKind::None:
        break;
    }
    return {};
}

} // namespace

QString PolicyOption(PolicyKind kind)
{
    switch (kind) {
    case PolicyKind::Input:
        return QStringLiteral("--on-input-error");
    case PolicyKind::Output:
        return QStringLiteral("--on-output-error");
    case PolicyKind::Processing:
        return QStringLiteral("--on-processing-error");
    case PolicyKind::Naming:
        return QStringLiteral("--on-name-exists");
    case PolicyKind::WriteToFormat:
        return QStringLiteral("--on-format");
    case PolicyKind::None:
        break;
    }
    return {};
}

int PolicyValue(PolicyKind kind, const QString& word)
{
    switch (kind) {
    case PolicyKind::Naming:
        return ValueOf(NamingPolicyWords, word);
    case PolicyKind::WriteToFormat:
        return ValueOf(WriteToFormatPolicyWords, word);
    default:
        return ValueOf(FilePolicyWords, word);
    }
}

const QVector<PolicyKind>& PolicyOptionKinds()
{
    static const QVector<PolicyKind> kinds{PolicyKind::Input, PolicyKind::Output, PolicyKind::Processing,
                                           PolicyKind::Naming, PolicyKind::WriteToFormat};
    return kinds;
}

QVector<OptionInfo> PolicyOptionInfos()
{
    QVector<OptionInfo> infos;
    for (const PolicyKind kind : PolicyOptionKinds()) {
        infos.append({PolicyOption(kind), QStringLiteral("WORD"), HelpOf(kind), Phrase::English("Exceptions"), false,
                      Completion::Words, PolicyWords(kind)});
    }
    return infos;
}

} // namespace BatchHost
