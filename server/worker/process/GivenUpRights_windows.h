// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <qt_windows.h>

namespace BatchWorker {

/// What the system is asked to forbid a process, in one word of flags.
struct MitigationPolicy
{
    PROCESS_MITIGATION_POLICY kind;
    DWORD flags;
};

/// What making pictures does not need once all libraries are loaded: no machine code but that of the libraries, no
/// further library but the system's own, none from another machine, no process, no hooks of other programs, no fonts
/// for the system to draw with.
constexpr std::array<MitigationPolicy, 6> givenUpPolicies{{
    {ProcessDynamicCodePolicy, 1},           // ProhibitDynamicCode
    {ProcessSignaturePolicy, 1},             // MicrosoftSignedOnly
    {ProcessImageLoadPolicy, 1U | 2U},       // NoRemoteImages, NoLowMandatoryLabelImages
    {ProcessChildProcessPolicy, 1},          // NoChildProcessCreation
    {ProcessExtensionPointDisablePolicy, 1}, // DisableExtensionPoints
    {ProcessFontDisablePolicy, 1},           // DisableNonSystemFonts
}};

/// Gives up, for good, these policies' rights, all privileges but that of passing through folders, and libraries from
/// any place but the system's folder. What the system does not know is left out.
void GiveUpRights();

} // namespace BatchWorker
