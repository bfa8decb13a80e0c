// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchJob {

/// Texts for people are English until they are shown: on the pipe, in journals, reports and JSON. Only a host that
/// shows one to a person turns it into that person's language (BatchHost::Translated()).
struct Phrase
{
    /// `text` itself, marked for the catalogues in translations/. %1 to %9 stand for its arguments. A text whose words
    /// outside of the arguments are few would be found in other texts too; such a text is not marked.
    static QString English(const char* text) { return QString::fromUtf8(text); }

    /// The same for a text that is stored as it is.
    static constexpr const char* Marked(const char* text) { return text; }
};

} // namespace BatchJob
