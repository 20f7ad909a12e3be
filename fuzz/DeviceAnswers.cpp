// What a device answers: the head and body of an answer, and what is then made of its parts.
//
// Input: a byte that says what is expected, a byte with the size of the first piece, and the answer's bytes.

#include "Fuzz.h"
#include "QxNetSDK/QxNetSDK.h"
#include "QxNetSDK/library/ability/AbilityDocument.h"
#include "QxNetSDK/library/http/Answer.h"
#include "QxNetSDK/library/http/Digest.h"
#include "QxNetSDK/library/session/DeviceChecks.h"

#include <cstring>

namespace {

constexpr std::uint32_t kDocument = 1024 * 1024;
constexpr std::uint32_t kStructure = sizeof(QxNetDeviceInfo);
constexpr std::uint32_t kPage = sizeof(QxNetChannelPage);

constexpr sdk::ExpectedAnswer kExpected[] = {
    {200, kStructure, kStructure}, {200, kPage, kPage}, {200, 0, kDocument}, {204, 0, 0}, {200, 36, 36}};

sdk::Failure TakeAll(sdk::CAnswerReader& reader, const std::string& bytes, std::size_t first)
{
    if (const sdk::Failure failure = reader.Take(bytes.data(), std::min(first, bytes.size())))
        return failure;
    if (bytes.size() <= first)
        return {};
    return reader.Take(bytes.data() + first, bytes.size() - first);
}

void CheckChallenge(const std::string& text)
{
    sdk::DigestChallenge challenge;
    if (!sdk::ReadChallenge(text, challenge))
        return;
    const std::string answer = sdk::DigestAuthorization(challenge, {"u\"", "p", "POST", "/", "c"});
    FUZZ_CHECK(answer.find('\n') == std::string::npos && answer.find('\r') == std::string::npos);
    // What was escaped reads back as it was.
    sdk::DigestChallenge again;
    FUZZ_CHECK(!challenge.nonce.empty() && sdk::ReadChallenge(answer, again));
    FUZZ_CHECK(again.realm == challenge.realm && again.nonce == challenge.nonce &&
               again.opaque == challenge.opaque);
}

void CheckBody(const std::string& body)
{
    (void)sdk::IsAbilityDocument(body);
    if (body.size() == kPage && !sdk::CheckStructure(QXNET_GET_CHANNEL_PAGE, body.data(), body.size())) {
        QxNetChannelPage page;
        std::memcpy(&page, body.data(), sizeof page);
        FUZZ_CHECK(page.size == sizeof page && page.count <= QXNET_CHANNELS_PER_PAGE);
    }
    if (body.size() == kStructure && !sdk::CheckStructure(QXNET_GET_DEVICE_INFO, body.data(), body.size())) {
        QxNetDeviceInfo info;
        std::memcpy(&info, body.data(), sizeof info);
        FUZZ_CHECK(info.channels <= 512 && std::strlen(info.name) < sizeof info.name);
    }
}

void CheckAnswer(const sdk::Answer& answer, const sdk::ExpectedAnswer& expected)
{
    if (answer.status >= 400) {
        FUZZ_CHECK(answer.body.empty() && (answer.status == 401 || answer.refusal));
    } else {
        FUZZ_CHECK(answer.status == expected.status && answer.body.size() >= expected.leastBytes &&
                   answer.body.size() <= expected.mostBytes);
    }
    CheckChallenge(answer.challenge);
    CheckBody(answer.body);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const sdk::ExpectedAnswer& expected = kExpected[input.Byte() % std::size(kExpected)];
    const std::size_t first = input.Byte();
    const std::string bytes = input.Rest();
    sdk::CAnswerReader whole(expected);
    sdk::CAnswerReader pieces(expected);
    const sdk::Failure failure = TakeAll(whole, bytes, bytes.size());
    const sdk::Failure inPieces = TakeAll(pieces, bytes, first);
    // A head that does not end may be found bad earlier or later, and so may one shorter than "HTTP/1.1 200".
    const bool hasHead = bytes.find("\r\n\r\n", 12) != std::string::npos;
    FUZZ_CHECK(!hasHead ||
               (failure.code == inPieces.code && (failure || whole.IsComplete() == pieces.IsComplete())));
    if (!failure && whole.IsComplete())
        CheckAnswer(whole.Result(), expected);
    CheckBody(bytes);
    CheckChallenge(bytes);
    return 0;
}
