// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultCheck.h"

#include "server/worker/decode/PictureSource.h"
#include "server/worker/metadata/Metadata.h"
#include "server/worker/pixels/PictureFailure.h"

namespace BatchWorker {

namespace {

QByteArray ProfileIn(const QString& fileName, const PictureSource& result)
{
    BatchJob::Warnings ofReading;
    return result.Format().metadata.isProfileInDecoder ? result.Profile()
                                                       : Metadata::Of(fileName, result, ofReading).Profile();
}

} // namespace

bool CarriesProfile(const QString& fileName, const QByteArray& profile, const BatchProtocol::ServerLimits& limits)
{
    try {
        const PictureSource result(fileName, limits);
        const QByteArray found = ProfileIn(fileName, result);
        return result.Format().metadata.isProfileRewritten ? !found.isEmpty() : found == profile;
    } catch (const PictureFailure&) {
        return false;
    }
}

} // namespace BatchWorker
