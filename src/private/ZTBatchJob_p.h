#pragma once

#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <memory>
#include <optional>

class ZTStyle;

/// A job as it was read from a text, before any of it reaches a document.
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

    /// What is said about one naming part. Only the fields that go with the template mean something.
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

    /// Output settings; sections that are missing in the text and leave the settings alone have no value.
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

    std::unique_ptr<TreeNode<BatchNodeData>> input; ///< a root without meaning of its own; null without a section
    QVector<Effect> effects;
    std::optional<Output> output;

    /// Moves the nodes into the empty `model`, one after the other, then emits its ModelUpdated(). Does nothing without
    /// an input section. Handlers may delete the model.
    void MoveInputTo(ZTBatchInputModel& model);

    void AppendEffectsTo(ZTStyle& style) const;

    /// Gives `settings` what the text says. Does nothing without an output section. Handlers may delete the settings.
    void SetOutputOf(ZTBatchOutputSettings& settings) const;
};
