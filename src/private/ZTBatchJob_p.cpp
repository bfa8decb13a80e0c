// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchJob_p.h"

#include "ZTStyle.h"

#include <QPointer>

void ZTBatchJob::MoveInputTo(ZTBatchInputModel& model)
{
    if (input == nullptr) {
        return;
    }
    const QPointer<ZTBatchInputModel> target(&model);
    while (target != nullptr && !input->children.isEmpty()) {
        TreeNode<BatchNodeData>* const node = input->children.takeFirst();
        // Removed here, where it is known to be the first; the model would have to search for it.
        node->parent = nullptr;
        target->InsertBranch(node, QModelIndex());
    }
    if (target != nullptr) {
        Q_EMIT target->ModelUpdated();
    }
}

void ZTBatchJob::AppendEffectsTo(ZTStyle& style) const
{
    for (const Effect& effect : effects) {
        style.AppendEffect(effect.uid, effect.data, effect.enabled);
    }
}

void ZTBatchJob::SetOutputOf(ZTBatchOutputSettings& settings) const
{
    if (!output) {
        return;
    }
    const QPointer<ZTBatchOutputSettings> target(&settings);
    if (output->imageSize) {
        target->SetImageSizeSettings(*output->imageSize);
    }
    if (target && output->format) {
        target->SetFormat(output->format->format, output->format->options);
    }
    if (target && output->folder) {
        target->SetPath(*output->folder);
    }
    if (target && output->folderStructure) {
        target->SetFolderStructure(*output->folderStructure);
    }
    if (target && output->naming) {
        target->SetPrefixSeparator(output->naming->prefixSeparator);
    }
    if (target && output->naming) {
        target->SetSuffixSeparator(output->naming->suffixSeparator);
        for (const NamingPart& naming : output->naming->parts) {
            if (target) {
                target->SetNamingTemplate(naming.part, naming.namingTemplate);
            }
            if (target && naming.namingTemplate == ZTBatchOutputSettings::TemplateCustomText) {
                target->SetCustomTemplate(naming.part, naming.customTemplate);
            }
            if (target && naming.namingTemplate == ZTBatchOutputSettings::TemplateNumber) {
                target->SetStartNumber(naming.part, naming.startNumber);
            }
            if (target && naming.namingTemplate == ZTBatchOutputSettings::TemplateNumber) {
                target->SetDigitsCount(naming.part, naming.digitsCount);
            }
        }
    }
    if (target) {
        target->SetTransformationSettings(output->transformation);
    }
    if (target) {
        target->SetCropSettings(output->crop);
    }
    if (target) {
        target->SetICCProfile(output->iccProfile);
    }
}
