// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QString>

/// The messages between a host and the batch server, and the errors that the server reports.
///
/// A message is sent as a name and a payload. The name is the message's number in decimal; the names of the enumerators
/// never go over the pipe. ZTBatchPayload.h packs and unpacks the payloads. All functions are thread-safe.
class BATCHCORE_EXPORT ZTBatchMessage
{
public:
    /// Message numbers. The last five are questions when the server sends them and answers when the host does.
    enum Message : int {
        // To the server.
        MsgCreateSession = 0,
        MsgCloseSession = 1,
        MsgPause = 2,
        MsgResume = 3,
        MsgCancel = 4,
        MsgProcess = 5,
        // From the server.
        MsgFinished = 6,
        MsgProgress = 7,
        MsgFileInProgress = 8,
        MsgFileProcessed = 9,
        MsgLog = 10,
        MsgProgressRange = 11,
        MsgPaused = 12,
        MsgResumed = 13,
        MsgCancelled = 14,
        MsgError = 15,
        // Both ways.
        MsgInputQuestion = 16,
        MsgOutputQuestion = 17,
        MsgProcessingQuestion = 18,
        MsgNamingQuestion = 19,
        MsgWriteToFormatQuestion = 20,
        // To the server.
        MsgCloseServer = 21,

        /// Returned by FromName() for a name that is no message. Never sent.
        MsgUnknown = 1000
    };

    /// Error codes that the server sends in MsgError.
    enum Error : int {
        NoError = 0,
        UnsupportedInputFormat = 1,
        ReadFileError = 2,
        UnsupportedOutputFormat = 3,
        WriteOutputFormatError = 4,
        EmptyBatchDocument = 5,
        ReadOutputSettingsError = 6,
        NoAdjustmentManager = 7,
        NoAdjustment = 8,
        ApplyAdjustmentError = 9,
        ImageTooLarge = 10,
        FileNameAlreadyExists = 11
    };

    /// The name of `message` on the wire: its number in decimal. Accepts any value.
    static QString Name(Message message);

    /// The message with the name `name`; MsgUnknown if that is not a decimal number from 0 to 21.
    static Message FromName(const QString& name);

    /// A sentence for users that describes `error`, translated in the context "QObject"; "Unknown error." for other
    /// values.
    static QString ErrorDescription(Error error);

    ZTBatchMessage() = default;
    ZTBatchMessage(const ZTBatchMessage&) = default;
    ZTBatchMessage(ZTBatchMessage&&) = default;
    ZTBatchMessage& operator=(const ZTBatchMessage&) = default;
    ZTBatchMessage& operator=(ZTBatchMessage&&) = default;
};
