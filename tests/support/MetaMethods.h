// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

struct QMetaObject;

/// The class's own meta-methods in meta-object order, each as "access kind signature", for example
/// "public signal PathChanged()" or "private slot OnTimer(int)".
QStringList OwnMetaMethods(const QMetaObject& metaObject);
