// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QString>

namespace BatchJob {

/// A part of the names of results. A text with tokens is a kind of its own here; in the settings it is a custom text
/// that begins with "{tokens}", or with "{tokens:NUMBER}" if its numbers do not begin with 1. Every other custom text
/// is taken as it stands.
struct NamePart
{
    ZTBatchOutputSettings::NamingTemplate kind = ZTBatchOutputSettings::TemplateNothing; ///< or TemplateTokens
    QString text;        ///< of custom texts and of texts with tokens, without their beginning
    int startNumber = 0; ///< of numbers and of texts with tokens
    int digits = 1;

    bool operator==(const NamePart& other) const
    {
        return kind == other.kind && text == other.text && startNumber == other.startNumber && digits == other.digits;
    }
};

NamePart NamePartOf(const ZTBatchOutputSettings& settings, ZTBatchOutputSettings::NamingPart part);

/// NamePartOf() gives the same afterwards, except that a custom text that looks like one with tokens becomes one.
void SetNamePart(ZTBatchOutputSettings& settings, ZTBatchOutputSettings::NamingPart part, const NamePart& wanted);

} // namespace BatchJob
