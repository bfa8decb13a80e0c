#pragma once

#include "server/protocol/WorkerMessages.h"

#include <exception>

namespace BatchWorker {

/// Why a picture cannot be made: thrown by the stages, turned into a Report by the worker.
class PictureFailure : public std::exception
{
public:
    PictureFailure(BatchProtocol::Case failure, ZTBatchMessage::Error error, const QString& reason,
                   const QString& nearestFormat = {})
        : failure(failure)
        , error(error)
        , reason(reason)
        , nearestFormat(nearestFormat)
        , text(reason.toUtf8())
    {
    }

    const char* what() const noexcept override { return text.constData(); }

    BatchProtocol::Case failure;
    ZTBatchMessage::Error error;
    QString reason;        ///< for users
    QString nearestFormat; ///< for Case::WriteToFormat

private:
    QByteArray text;
};

inline PictureFailure DamagedFile(const QString& reason)
{
    return {BatchProtocol::Case::Input, ZTBatchMessage::ReadFileError, reason};
}

inline PictureFailure UnknownFormat(const QString& reason)
{
    return {BatchProtocol::Case::Input, ZTBatchMessage::UnsupportedInputFormat, reason};
}

inline PictureFailure TooLarge(const QString& reason)
{
    return {BatchProtocol::Case::Input, ZTBatchMessage::ImageTooLarge, reason};
}

inline PictureFailure FormatCannotHold(const QString& reason, const QString& nearestFormat)
{
    return {BatchProtocol::Case::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat, reason, nearestFormat};
}

inline PictureFailure OutputFailed(const QString& reason)
{
    return {BatchProtocol::Case::Output, ZTBatchMessage::WriteOutputFormatError, reason};
}

inline PictureFailure ProcessingFailed(const QString& reason)
{
    return {BatchProtocol::Case::Processing, ZTBatchMessage::ApplyAdjustmentError, reason};
}

} // namespace BatchWorker
