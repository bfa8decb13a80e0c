// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Unpacks arbitrary bytes as each kind of payload. A payload that unpacks exactly packs to the same bytes, except for
// the flag of an answer: any value other than 0 is read as true.

#include "Require.h"

#include "ZTBatchPayload.h"

#include <cstdint>
#include <type_traits>

namespace {

template<typename Payload>
void RoundTrip(const QByteArray& bytes)
{
    bool isExact = false;
    const auto payload = ZTBatchPayload::Unpack<Payload>(bytes, &isExact);
    const QByteArray packed = ZTBatchPayload::Pack(payload);
    const bool isFlagged = std::is_same_v<Payload, ZTBatchPayload::Answer>;
    const int flagSize = isFlagged ? 1 : 0;
    Require(!isExact || packed.chopped(flagSize) == bytes.chopped(flagSize));
    bool isExactAgain = false;
    ZTBatchPayload::Unpack<Payload>(packed, &isExactAgain);
    Require(isExactAgain);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    ZTBatchMessage::FromName(QString::fromUtf8(bytes));
    RoundTrip<ZTBatchPayload::Empty>(bytes);
    RoundTrip<ZTBatchPayload::Session>(bytes);
    RoundTrip<ZTBatchPayload::Process>(bytes);
    RoundTrip<ZTBatchPayload::Progress>(bytes);
    RoundTrip<ZTBatchPayload::ProgressRange>(bytes);
    RoundTrip<ZTBatchPayload::InputFile>(bytes);
    RoundTrip<ZTBatchPayload::FilePair>(bytes);
    RoundTrip<ZTBatchPayload::Log>(bytes);
    RoundTrip<ZTBatchPayload::Error>(bytes);
    RoundTrip<ZTBatchPayload::Answer>(bytes);
    return 0;
}
