// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class ZTStyle;

/// A job as read from a text, before it is applied to a document.
struct ZTBatchJob
{
    struct Effect
    {
        QString uid;
        QByteArray data;
        bool enabled = false;
    };

    struct Format
    {
        QString format;
        QByteArray options;
    };

    /// The settings of one naming part. Only the fields that belong to the template are used.
    struct NamingPart
    {
        ZTBatchOutputSettings::NamingPart part = ZTBatchOutputSettings::PartPrefix;
        ZTBatchOutputSettings::NamingTemplate namingTemplate = ZTBatchOutputSettings::TemplateOriginalName;
        QString customTemplate;
        int startNumber = 0;
        int digitsCount = 0;
    };

    struct Naming
    {
        QString prefixSeparator;
        QString suffixSeparator;
        QVector<NamingPart> parts; ///< in the order of the text, which may name a part twice
    };

    /// Output settings. A missing section whose settings are not to change has no value.
    struct Output
    {
        std::optional<ZTBatchOutputSettings::ImageSize> imageSize;
        std::optional<Format> format;
        std::optional<QString> folder;
        std::optional<ZTBatchOutputSettings::FolderStructure> folderStructure;
        std::optional<Naming> naming;
        ZTBatchOutputSettings::Transformation transformation;
        ZTBatchOutputSettings::Crop crop;
        QByteArray iccProfile;
    };

    std::unique_ptr<TreeNode<BatchNodeData>> input; ///< a root that carries no data; null without an input section
    QVector<Effect> effects;
    std::optional<Output> output;

    /// Moves the nodes one by one into the empty `model`, then emits its ModelUpdated(). Does nothing without an input
    /// section. Slots may delete the model.
    void MoveInputTo(ZTBatchInputModel& model);

    void AppendEffectsTo(ZTStyle& style) const;

    /// Applies the output settings to `settings`. Does nothing without an output section. Slots may delete `settings`.
    void SetOutputOf(ZTBatchOutputSettings& settings) const;
};
