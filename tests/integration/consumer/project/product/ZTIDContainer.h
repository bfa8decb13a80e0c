// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The product's own registry, recognisable by the form of its identifiers.
class ZTIDContainer
{
public:
    QString CreateAndRegisterID() { return QStringLiteral("product-%1").arg(++count); }
    bool UnregisterID(const QString&) { return true; }

private:
    int count = 0;
};
