// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchOutput_p.h"

#include "ZTDiagnostics_p.h"

namespace {

constexpr ZTDiagnostics diagnostics("src\\private\\ZTBatchOutput_p");

} // namespace

ZTBatchOutputSettings::Private::Private(ZTBatchOutputSettings* owner)
    : owner(owner)
    , format(GetOriginalFormat())
{
    Initialize();
}

ZTBatchOutputSettings::Private::~Private() = default;

void ZTBatchOutputSettings::Private::Initialize()
{
    diagnostics.Assert(owner != nullptr);
    namingParts.append({TemplateNothing, QString(), 0, 1});
    //: The default text in the names of results, as in "Image001".
    namingParts.append({TemplateCustomText, ZTBatchOutputSettings::tr("Image"), 0, 1});
    namingParts.append({TemplateNumber, QString(), 1, 3});
}

ZTBatchOutputSettings::Private::NamingPartSettings& ZTBatchOutputSettings::Private::Naming(NamingPart part)
{
    return namingParts[part];
}
