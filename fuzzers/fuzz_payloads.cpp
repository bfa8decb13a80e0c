// Unpacks arbitrary bytes as each payload. What unpacks exactly packs to the same bytes, but for the flag of an answer,
// of which any value but 0 reads as true.

#include "ZTBatchPayload.h"

#include <cstdint>
#include <cstdlib>
#include <type_traits>

namespace {

template<typename Payload>
void RoundTrip(const QByteArray& bytes)
{
    bool isExact = false;
    const auto payload = ZTBatchPayload::Unpack<Payload>(bytes, &isExact);
    const QByteArray packed = ZTBatchPayload::Pack(payload);
    const bool isFlagged = std::is_same_v<Payload, ZTBatchPayload::Answer>;
    if (isExact && packed.chopped(isFlagged ? 1 : 0) != bytes.chopped(isFlagged ? 1 : 0)) {
        std::abort();
    }
    bool isExactAgain = false;
    ZTBatchPayload::Unpack<Payload>(packed, &isExactAgain);
    if (!isExactAgain) {
        std::abort();
    }
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
