// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Reads a text as a job. A text that is accepted can be written and read again with the same result; a text that is
// refused changes nothing.

#include "Require.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QString>
#include <QVector>

#include <cstdint>
#include <cstring>

namespace {

using Settings = ZTBatchOutputSettings;

/// The input as UTF-8 or, after two zero bytes, as UTF-16, which can contain what no decoder of UTF-8 produces.
QString Text(const uint8_t* data, size_t size)
{
    if (size < 2 || data[0] != 0 || data[1] != 0) {
        return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    }
    QString text(static_cast<int>(size / 2 - 1), Qt::Uninitialized);
    std::memcpy(text.data(), data + 2, static_cast<size_t>(text.size()) * sizeof(QChar));
    return text;
}

/// The data of every node, level by level.
QVector<BatchNodeData> Nodes(const ZTBatchDocument& document)
{
    const ZTBatchInputModel* const model = document.GetInputModel();
    QVector<BatchNodeData> nodes;
    QVector<QModelIndex> pending{QModelIndex()};
    for (int i = 0; i < pending.size(); ++i) {
        const QModelIndex parent = pending.at(i);
        const int rows = model->rowCount(parent);
        for (int row = 0; row < rows; ++row) {
            const QModelIndex index = model->index(row, 0, parent);
            nodes.append(*model->getNodeData(index));
            pending.append(index);
        }
    }
    return nodes;
}

bool HasOnlyKnownTypes(const QVector<BatchNodeData>& nodes)
{
    for (const BatchNodeData& node : nodes) {
        if (node.type != Folder && node.type != File) {
            return false;
        }
    }
    return true;
}

void RequireSameOutput(const Settings& a, const Settings& b)
{
    QString formatOfA;
    QString formatOfB;
    QByteArray optionsOfA;
    QByteArray optionsOfB;
    a.GetFormat(formatOfA, optionsOfA);
    b.GetFormat(formatOfB, optionsOfB);
    Require(optionsOfA == optionsOfB);
    Require(a.GetICCProfile() == b.GetICCProfile());
    Require(a.GetFolderStructure() == b.GetFolderStructure());
    Require(a.GetCropSettings() == b.GetCropSettings());
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        Require(a.GetNamingTemplate(part) == b.GetNamingTemplate(part));
    }
}

} // namespace

/// Silences the debug lines: most texts are refused with one.
extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = Text(data, size);
    ZTBatchDocument document;
    if (!document.Deserialize(text)) {
        Require(document.ModificationState() == 0);
        Require(document.GetInputModel()->rowCount() == 0);
        Require(document.GetStyle()->GetEffectCount() == 0);
        return 0;
    }
    Require(document.ModificationState() == 0);

    const QString first = document.Serialize(nullptr);
    ZTBatchDocument copy;
    Require(copy.Deserialize(first));
    RequireSameOutput(*document.GetOutputSettings(), *copy.GetOutputSettings());
    Require(copy.GetStyle()->GetEffectCount() == document.GetStyle()->GetEffectCount());
    Require(copy.GetInputModel()->GetFileNodesCount() == document.GetInputModel()->GetFileNodesCount());
    const QVector<BatchNodeData> nodes = Nodes(document);
    Require(Nodes(copy).size() == nodes.size());

    // After one round trip no characters are left that writing replaces, and nodes of known types are sorted.
    const QString second = copy.Serialize(nullptr);
    if (HasOnlyKnownTypes(nodes)) {
        ZTBatchDocument last;
        Require(last.Deserialize(second));
        Require(last.Serialize(nullptr) == second);
    }
    return 0;
}
