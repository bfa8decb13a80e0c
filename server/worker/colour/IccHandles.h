// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <lcms2.h>

#include <memory>

/// Handles of lcms that free what they refer to.
namespace BatchWorker {

struct CloseIccProfile
{
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using IccProfile = std::unique_ptr<void, CloseIccProfile>;

struct DeleteIccTransform
{
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using IccTransform = std::unique_ptr<void, DeleteIccTransform>;

struct FreeIccCurve
{
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using IccCurve = std::unique_ptr<cmsToneCurve, FreeIccCurve>;

/// Null for bytes that are no profile.
inline IccProfile OpenIccProfile(const QByteArray& bytes)
{
    return IccProfile(cmsOpenProfileFromMem(bytes.constData(), cmsUInt32Number(bytes.size())));
}

} // namespace BatchWorker
