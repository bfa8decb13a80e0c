// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Parses fields as the arguments of velkora-batch and applies them to a job. They are refused with a text, or the
// options that show the job make the same job again.

#include "Fields.h"
#include "Require.h"

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/options/PolicyArguments.h"
#include "hosts/cli/options/RunOptions.h"
#include "hosts/common/JobDefaults.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/JobOptions.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdint>

using namespace BatchHost;
using namespace BatchCli;

namespace {

constexpr int mostArguments = 40;

void MakeDefault(ZTBatchDocument& job)
{
    BatchHost::SetJobDefaults(job);
    job.GetOutputSettings()->SetPath(QStringLiteral("/nowhere/results"));
}

QVector<QStringList> OptionTexts(const ZTBatchDocument& job)
{
    QVector<QStringList> texts;
    for (const JobOption& option : JobOptions()) {
        texts.append(option.texts ? option.texts(job) : QStringList());
    }
    return texts;
}

QJsonObject Object(const QByteArray& json)
{
    return QJsonDocument::fromJson(json).object();
}

/// Values that have a text, but that two different values might share.
void RequireSameValues(const ZTBatchDocument& a, const ZTBatchDocument& b)
{
    const ZTStyle& styleOfA = *a.GetStyle();
    const ZTStyle& styleOfB = *b.GetStyle();
    Require(styleOfA.GetEffectCount() == styleOfB.GetEffectCount());
    for (int i = 0; i < styleOfA.GetEffectCount(); ++i) {
        Require(styleOfA.EffectAt(i) == styleOfB.EffectAt(i) && styleOfA.IsEnabled(i) == styleOfB.IsEnabled(i));
        Require(Object(styleOfA.DataAt(i)) == Object(styleOfB.DataAt(i)));
    }
    const ZTBatchOutputSettings& outputOfA = *a.GetOutputSettings();
    const ZTBatchOutputSettings& outputOfB = *b.GetOutputSettings();
    const ZTBatchOutputSettings::ImageSize size = outputOfA.GetImageSizeSettings();
    Require(size.restriction == 0 || size == outputOfB.GetImageSizeSettings());
    QString format;
    QByteArray optionsOfA;
    QByteArray optionsOfB;
    outputOfA.GetFormat(format, optionsOfA);
    outputOfB.GetFormat(format, optionsOfB);
    Require(Object(optionsOfA) == Object(optionsOfB));
}

void ShowAndRepeat(const ZTBatchDocument& job)
{
    const QVector<QStringList> texts = OptionTexts(job);
    ZTBatchDocument again;
    MakeDefault(again);
    for (int i = 0; i < texts.size(); ++i) {
        const JobOption& option = JobOptions().at(i);
        Require(option.info.isRepeatable || texts.at(i).size() <= 1);
        for (const QString& text : texts.at(i)) {
            option.apply(again, text);
        }
    }
    Require(OptionTexts(again) == texts);
    RequireSameValues(job, again);
}

void Apply(const ParsedArguments& parsed, ZTBatchDocument& job)
{
    for (const JobOption& option : JobOptions()) {
        for (const QString& value : parsed.Values(option.info.name)) {
            option.apply(job, value);
        }
    }
    BatchJob::PolicyValues policies{};
    ApplyPolicies(parsed, policies);
    ApplyServerLimits(parsed);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fields fields(data, size);
    QStringList arguments;
    while (!fields.IsAtEnd() && arguments.size() < mostArguments) {
        arguments.append(fields.Text());
    }
    ZTBatchDocument job;
    MakeDefault(job);
    try {
        const ParsedArguments parsed = ParseArguments(arguments);
        if (!parsed.message.isEmpty()) {
            return 0;
        }
        Require(parsed.command == arguments.first());
        Apply(parsed, job);
    } catch (const BatchHost::RequestError& error) {
        Require(!error.text.isEmpty());
        return 0;
    }
    job.GetOutputSettings()->SetICCProfile({}); // Only its size is shown.
    ShowAndRepeat(job);
    return 0;
}
