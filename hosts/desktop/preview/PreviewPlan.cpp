// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewPlan.h"

#include "ZTBatchDocument.h"

#include <QCryptographicHash>
#include <QFileInfo>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

/// Nothing is gained by packing what is read again at once.
const QByteArray displayOptions = R"({"compressionLevel": 0, "bitDepth": 8, "keep": []})";

Settings ForDisplay(Settings settings, const PreviewPlace& place)
{
    settings.outputFolder = place.folder;
    settings.format = DisplayFormat();
    settings.formatOptions = displayOptions;
    settings.profile = place.displayProfile;
    settings.effects.clear();
    settings.framing = {};
    return settings;
}

QByteArray KeyOf(const QFileInfo& file, const QString& document)
{
    const QString text = QStringLiteral("%1\n%2\n%3\n%4\n%5")
                             .arg(file.filePath(), IdentityOf(file.filePath()).value_or(FileIdentity()).Text())
                             .arg(ChangeTimeOf(file.filePath()).value_or(0))
                             .arg(file.size())
                             .arg(document);
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
}

} // namespace

PreviewPlan PreviewPlan::Of(const QString& file, const Settings& settings, const PreviewPlace& place)
{
    PreviewPlan plan;
    plan.result = ResultPlan::Of(file, settings, place.folder);
    if (plan.result.refusal.code == ZTBatchMessage::NoError) {
        plan.before = WorkerJobOf(ForDisplay(settings, place), {{file, QString()}});
        plan.beforeKey = KeyOf(QFileInfo(file), plan.before.document);
    }
    return plan;
}

WorkerJob DisplayJob(const PreviewPlace& place)
{
    // What is in the folder of the job is readable with it.
    return WorkerJobOf(ForDisplay(Settings::Of(ZTBatchDocument()), place),
                       {{place.folder + QStringLiteral("/result"), QStringLiteral("previews")}});
}

QString DisplayFormat()
{
    return QStringLiteral("PNG");
}

} // namespace BatchDesktop
