// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Uses a class of each library, so that a missing header or a symbol that is not exported is found.

#include <ZTBatchMessage.h>
#include <ZTBatchPayload.h>
#include <ZTIDContainer.h>
#include <ZTPipeSession.h>
#include <ZTStyle.h>
#include <ZTStyleGroup.h>
#include <ZVApplication.h>
#include <ZVFileBookmark.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    ZTIDContainer ids;
    const ZTBatchPayload::Session session{ids.CreateAndRegisterID()};
    const ZTStyleGroup group(QStringLiteral("group"));
    ZTStyle style(QStringLiteral("style"), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("invert"), QByteArray(), true);
    const ZVFileBookmark bookmark(QCoreApplication::applicationFilePath());
    const ZTPipeSession pipe(static_cast<QLocalSocket*>(nullptr), nullptr);

    const bool works = ZTBatchMessage::Name(ZTBatchMessage::MsgCloseServer) == QLatin1String("21") &&
                       ZTBatchPayload::Pack(session).size() > 4 && style.GetEffectCount() == 1 && bookmark.Exists() &&
                       !pipe.IsConnected() && ZVApplication::GetTexturePatternIndex() == 0;
    return works ? 0 : 1;
}
