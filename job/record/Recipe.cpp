// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Recipe.h"

#include "job/effects/EffectTokens.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"
#include "job/values/FileStamp.h"

#include "ZTBatchDocument.h"

#include <QCryptographicHash>

#include <algorithm>

namespace BatchJob {

namespace {

using Settings = ZTBatchOutputSettings;

/// The text of the job without what only names its results.
QString NamelessText(const QString& document)
{
    ZTBatchDocument job;
    job.Deserialize(document);
    Settings& output = *job.GetOutputSettings();
    output.SetPath({});
    output.SetFolderStructure(Settings::StructureFlat);
    output.SetPrefixSeparator({});
    output.SetSuffixSeparator({});
    for (const Settings::NamingPart part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        output.SetNamingTemplate(part, Settings::TemplateNothing);
        output.SetCustomTemplate(part, {});
        output.SetStartNumber(part, 0);
        output.SetDigitsCount(part, 1);
    }
    return job.Serialize(nullptr);
}

QByteArray HashOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

Recipe::Recipe(const QString& document, const JobSettings& settings)
{
    base = QByteArray::number(pictureVersion) + '\n' + HashOf(NamelessText(document).toUtf8());
    for (const QString& file : FilesOfSettings(settings)) {
        base += ChecksumOf(file) + '\n';
    }
    usesNumber = std::any_of(settings.effects.begin(), settings.effects.end(), [](const JobEffect& effect) {
        return UsesToken(*effect.schema, effect.parameters, Token::Number);
    });
}

QString Recipe::For(const QString& format, qint64 number) const
{
    constexpr int digits = 32;
    const QByteArray ofNumber = usesNumber ? '\n' + QByteArray::number(number) : QByteArray();
    return QString::fromLatin1(HashOf(base + format.toUtf8() + ofNumber).toHex().left(digits));
}

} // namespace BatchJob
