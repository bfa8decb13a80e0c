// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EarlyLoading.h"

#include "server/worker/pixels/FreeMemory.h"

#include <QByteArray>

#include <array>
#include <ctime>
#include <iconv.h>

namespace BatchWorker {

namespace {

// A conversion loads the modules of its character sets, which stay as long as it is open. The sets are those of texts
// in metadata.
void LoadCharacterSets()
{
    struct Conversions
    {
        iconv_t from;
        iconv_t to;
    };
    static std::array<Conversions, 3> opened; // Kept until the end of the process.
    constexpr std::array sets{"ISO-8859-1", "UCS-2LE", "UCS-2BE"};
    for (std::size_t i = 0; i < sets.size(); ++i) {
        opened[i] = {iconv_open("UTF-8", sets[i]), iconv_open(sets[i], "UTF-8")};
    }
}

} // namespace

void ForbidGeneratedCode()
{
    // The imaging library compiles loops with Orc for each picture, and has loops of its own where Orc refuses. Without
    // this, Orc would try, and end the process.
    qputenv("ORC_CODE", QByteArrayLiteral("emulate"));
    qputenv("QT_ENABLE_REGEXP_JIT", QByteArrayLiteral("0"));
}

void LoadWhatWorkNeeds()
{
    LoadCharacterSets();
    tzset();
    OpenMemoryAccount();
}

} // namespace BatchWorker
