// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobListing.h"

#include "hosts/common/Language.h"
#include "hosts/common/options/JobOptions.h"
#include "job/values/VisibleText.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QDir>
#include <QFileInfo>
#include <QVector>

using namespace BatchHost;

namespace BatchCli {

namespace {

struct Row
{
    QModelIndex index;
    int depth;
};

QString NameOf(const BatchNodeData& data, bool isTop)
{
    const QString path = QDir::toNativeSeparators(data.fileName);
    return isTop ? path : QFileInfo(data.fileName).fileName();
}

QString CountText(int count)
{
    return count == 1 ? Messages::tr("1 picture") : Messages::tr("%1 pictures").arg(count);
}

QString InputListing(const ZTBatchInputModel& model)
{
    QString text = Messages::tr("Inputs: %1").arg(CountText(model.GetFileNodesCount())) + QLatin1Char('\n');
    QVector<Row> rows;
    const auto addRows = [&](const QModelIndex& parent, int depth) {
        for (int row = model.rowCount(parent) - 1; row >= 0; --row) {
            rows.append({model.index(row, 0, parent), depth});
        }
    };
    addRows(QModelIndex(), 1);
    while (!rows.isEmpty()) {
        const Row row = rows.takeLast();
        const BatchNodeData& data = *model.getNodeData(row.index);
        text += QString(2 * row.depth, QLatin1Char(' ')) + BatchJob::VisibleText(NameOf(data, row.depth == 1));
        if (data.type == Folder) {
            text += QStringLiteral("/ (%1)").arg(data.fileNodesCount);
            addRows(row.index, row.depth + 1);
        }
        text += QLatin1Char('\n');
    }
    return text;
}

} // namespace

QString JobListing(const ZTBatchDocument& job)
{
    QString text = InputListing(*job.GetInputModel());
    QString group;
    for (const JobOption& option : JobOptions()) {
        for (const QString& value : option.texts(job)) {
            if (option.info.group != group) {
                group = option.info.group;
                text += QLatin1Char('\n') + Messages::tr("%1:").arg(Translated(group)) + QLatin1Char('\n');
            }
            text += QStringLiteral("  %1 %2\n").arg(option.info.name.mid(2), -20).arg(BatchJob::VisibleText(value));
        }
    }
    return text;
}

} // namespace BatchCli
