// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchHost {

/// A pipe that listens before its server runs. Until the destruction of this object, a server that this process starts
/// inherits the listening socket and takes it over; afterwards the socket is the server's alone. The library's first
/// attempt to connect then succeeds, while without it the next one comes a second later.
///
/// Does nothing where a pipe cannot be handed over (Windows), where a server answers on it already, or where the socket
/// cannot be made: the server then opens its pipe itself.
class OfferedPipe
{
public:
    OfferedPipe();
    ~OfferedPipe();

private:
    Q_DISABLE_COPY(OfferedPipe)

    int descriptor = -1;
};

} // namespace BatchHost
