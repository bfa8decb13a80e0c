// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DeathCase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

namespace {

// The document owns its model, style and settings; these hosts delete them nevertheless.

const DeathCase serializeWithoutModel("document-serialize-without-model", [] {
    const ZTBatchDocument document;
    delete document.GetInputModel();
    document.Serialize(nullptr);
});

const DeathCase serializeWithoutStyle("document-serialize-without-style", [] {
    const ZTBatchDocument document;
    delete document.GetStyle();
    document.Serialize(nullptr);
});

const DeathCase serializeWithoutSettings("document-serialize-without-settings", [] {
    const ZTBatchDocument document;
    delete document.GetOutputSettings();
    document.Serialize(nullptr);
});

const DeathCase setStyleWithoutStyle("document-set-style-without-style", [] {
    ZTBatchDocument document;
    delete document.GetStyle();
    document.SetStyle(ZTStyle(QString(), QString(), nullptr, nullptr));
});

void Read(ZTBatchDocument& document)
{
    document.Deserialize(QStringLiteral("<!DOCTYPE batch><root/>"));
}

const DeathCase readWithoutModel("document-read-without-model", [] {
    ZTBatchDocument document;
    delete document.GetInputModel();
    Read(document);
});

const DeathCase readWithoutStyle("document-read-without-style", [] {
    ZTBatchDocument document;
    delete document.GetStyle();
    Read(document);
});

const DeathCase readWithoutSettings("document-read-without-settings", [] {
    ZTBatchDocument document;
    delete document.GetOutputSettings();
    Read(document);
});

} // namespace
