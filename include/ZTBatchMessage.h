#pragma once

#include "ZTBatchGlobal.h"

#include <QString>

/// The messages between a host and the batch server, and the errors that the server reports.
///
/// A message travels as a name and a payload. The name is the message's number in decimal; only numbers go over the
/// pipe, the names of the enumerators serve the code alone. ZTBatchPayload.h packs and unpacks the payloads.
/// Every operation is safe on any thread.
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

        /// What FromName() returns for a name that is no message. It is never sent.
        MsgUnknown = 1000
    };

    /// Error codes of the server, as they travel in MsgError.
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

    /// The name of `message` on the wire: its number in decimal. Any value is accepted.
    static QString Name(Message message);

    /// The message whose name on the wire is `name`; MsgUnknown for everything that is not a decimal number from 0
    /// to 21.
    static Message FromName(const QString& name);

    /// One sentence for users about `error`, translated in the context "QObject"; "Unknown error." for a value that
    /// is no error code.
    static QString ErrorDescription(Error error);

    ZTBatchMessage() = default;
    ZTBatchMessage(const ZTBatchMessage&) = default;
    ZTBatchMessage(ZTBatchMessage&&) = default;
    ZTBatchMessage& operator=(const ZTBatchMessage&) = default;
    ZTBatchMessage& operator=(ZTBatchMessage&&) = default;
};
