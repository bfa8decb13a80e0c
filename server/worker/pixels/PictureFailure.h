// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Phrase.h"

#include <QByteArray>
#include <QString>

#include <exception>

namespace BatchWorker {

/// Why a picture cannot be made: thrown by all stages, turned into a report by the worker.
class PictureFailure : public std::exception
{
public:
    enum class Kind {
        DamagedFile,      ///< the file is missing, unreadable or damaged
        UnknownFormat,    ///< no decoder knows the file
        TooLarge,         ///< more pixels than the limit, or more memory than a worker may use
        ProcessingFailed, ///< an effect or the framing cannot be done
        FormatCannotHold, ///< the format cannot be written, or cannot hold this picture
        OutputFailed      ///< the result cannot be written
    };

    PictureFailure(Kind kind, const QString& reason, const QString& detail = {}, const QString& nearestFormat = {})
        : kind(kind)
        , reason(reason)
        , detail(detail)
        , nearestFormat(nearestFormat)
        , text(reason.toUtf8())
    {
    }

    const char* what() const noexcept override { return text.constData(); }

    Kind kind;
    QString reason;        ///< for users, in their words
    QString detail;        ///< what a library says of it, for those who look for the cause; may be empty
    QString nearestFormat; ///< for FormatCannotHold: one that can hold the picture

private:
    QByteArray text;
};

inline PictureFailure DamagedFile(const QString& reason, const QString& detail = {})
{
    return {PictureFailure::Kind::DamagedFile, reason, detail};
}

inline PictureFailure UnknownFormat(const QString& reason)
{
    return {PictureFailure::Kind::UnknownFormat, reason};
}

inline PictureFailure TooLarge(const QString& reason, const QString& detail = {})
{
    return {PictureFailure::Kind::TooLarge, reason, detail};
}

inline PictureFailure ProcessingFailed(const QString& reason, const QString& detail = {})
{
    return {PictureFailure::Kind::ProcessingFailed, reason, detail};
}

/// Whatever a library, as `detail` says, had no memory for.
inline PictureFailure NotEnoughMemory(const QString& detail = {})
{
    return TooLarge(BatchJob::Phrase::English("it needs more memory than a worker may use"), detail);
}

inline PictureFailure FormatCannotHold(const QString& reason, const QString& nearestFormat, const QString& detail = {})
{
    return {PictureFailure::Kind::FormatCannotHold, reason, detail, nearestFormat};
}

inline PictureFailure OutputFailed(const QString& reason)
{
    return {PictureFailure::Kind::OutputFailed, reason};
}

} // namespace BatchWorker
