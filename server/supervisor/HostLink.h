// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchPayload.h"
#include "ZTPipeSession.h"

#include <QPointer>
#include <QString>

namespace BatchSupervisor {

/// Sends messages to one session of a host. When the host has gone, nothing is sent.
class HostLink
{
public:
    HostLink(ZTPipeSession* pipe, const QString& sessionId)
        : pipe(pipe)
        , sessionId(sessionId)
    {
    }

    /// Sends `message` with the fields that follow the session's id.
    template<ZTBatchMessage::Message message, typename... Fields>
    void Tell(Fields&&... fields) const
    {
        using Payload = ZTBatchPayload::FromServer<message>;
        Send(message, ZTBatchPayload::Pack(Payload{sessionId, std::forward<Fields>(fields)...}));
    }

    void Log(const QString& text) const { Tell<ZTBatchMessage::MsgLog>(text); }

    /// One of the five questions, which have no fields.
    void Ask(ZTBatchMessage::Message question) const
    {
        Send(question, ZTBatchPayload::Pack(ZTBatchPayload::Session{sessionId}));
    }

private:
    void Send(ZTBatchMessage::Message message, const QByteArray& payload) const
    {
        if (pipe) {
            pipe->Send(ZTBatchMessage::Name(message), payload);
        }
    }

    QPointer<ZTPipeSession> pipe;
    QString sessionId;
};

} // namespace BatchSupervisor
