#pragma once

#include <QtGlobal>

namespace BatchProtocol {

/// How much memory the process `id` holds now, in bytes of what is resident; 0 when that cannot be found out.
qint64 MemoryOfProcess(qint64 id);

} // namespace BatchProtocol
