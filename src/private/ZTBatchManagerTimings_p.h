// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// The manager's timeouts and intervals in milliseconds. One set for the process, which only tests change.
struct ZTBatchManagerTimings
{
    int startupTimeout = 25000;        ///< from Start() until a server that is not connected is killed
    int reconnectInterval = 1000;      ///< between attempts to connect
    int shutdownConnectTimeout = 1000; ///< for an unconnected pipe when the manager is released
    int serverEndTimeout = 30000;      ///< for a server that was asked to end, until it is killed
    int listenerConnectTimeout = 100;  ///< for the connection that asks any listening server to end

    static ZTBatchManagerTimings& InUse();
};
