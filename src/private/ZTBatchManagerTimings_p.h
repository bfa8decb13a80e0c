#pragma once

/// How long the manager waits for what, in milliseconds. There is one set for the process; only tests change it.
struct ZTBatchManagerTimings
{
    int startupTimeout = 25000;        ///< from Start() until a server that is not connected is ended
    int reconnectInterval = 1000;      ///< between two attempts to connect
    int shutdownConnectTimeout = 1000; ///< for a pipe that is not connected when the manager is released
    int serverEndTimeout = 30000;      ///< for a server that was asked to end
    int listenerConnectTimeout = 100;  ///< for a server that listens on the pipe, whoever started it

    static ZTBatchManagerTimings& InUse();
};
