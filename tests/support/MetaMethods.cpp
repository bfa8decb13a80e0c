// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetaMethods.h"

#include <QMetaMethod>
#include <QMetaObject>

namespace {

QString Kind(const QMetaMethod& method)
{
    switch (method.methodType()) {
    case QMetaMethod::Signal:
        return QStringLiteral("signal");
    case QMetaMethod::Slot:
        return QStringLiteral("slot");
    case QMetaMethod::Constructor:
        return QStringLiteral("constructor");
    case QMetaMethod::Method:
        break;
    }
    return QStringLiteral("method");
}

QString Access(const QMetaMethod& method)
{
    switch (method.access()) {
    case QMetaMethod::Private:
        return QStringLiteral("private");
    case QMetaMethod::Protected:
        return QStringLiteral("protected");
    case QMetaMethod::Public:
        break;
    }
    return QStringLiteral("public");
}

} // namespace

QStringList OwnMetaMethods(const QMetaObject& metaObject)
{
    QStringList methods;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        methods.append(QStringList{Access(method), Kind(method), QString::fromLatin1(method.methodSignature())}.join(
            QLatin1Char(' ')));
    }
    return methods;
}
