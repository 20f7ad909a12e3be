// The headers of a message, and what hello, its answer and a refusal make of them.
//
// Input: the bytes of the headers.

#include "Fuzz.h"
#include "LPC_Wire/FrameSet.h"
#include "LPC_Wire/HeaderCodec.h"
#include "LPC_Wire/Hello.h"
#include "LPC_Wire/Limits.h"

namespace {

void CheckRefusal(int error)
{
    FUZZ_CHECK(error > 0 && error <= 65535);
    FUZZ_CHECK(lpc::RefusalError(lpc::RefusalHeaders(error)) == error);
}

void CheckAnswers(const lpc::HeaderMap& headers)
{
    lpc::WireMessage message;
    message.headers = headers;
    message.kind = lpc::Kind::Refusal;
    CheckRefusal(lpc::CheckHelloAnswer(message));
    message.kind = lpc::Kind::Answer;
    FUZZ_CHECK(lpc::CheckHelloAnswer(message) == lpc::kRefused);
    message.kind = lpc::Kind::HelloAnswer;
    const int error = lpc::CheckHelloAnswer(message);
    FUZZ_CHECK(error == lpc::kNoError || error == lpc::kRefused);
}

void CheckHello(const lpc::HeaderMap& headers)
{
    if (lpc::CheckHello(headers) != lpc::kNoError)
        return;
    const std::string name = lpc::HelloName(headers);
    FUZZ_CHECK(!name.empty() && name.size() <= lpc::kMaxClientName && fuzz::IsOneLine(name));
    FUZZ_CHECK(lpc::CheckHello(lpc::HelloHeaders(name)) == lpc::kNoError);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    lpc::HeaderMap headers;
    if (!lpc::ReadHeaders(reinterpret_cast<const char*>(data), size, headers))
        return 0;
    FUZZ_CHECK(headers.size() <= lpc::kMaxHeaders && headers.count("") == 0);
    FUZZ_CHECK(size > lpc::kMaxHeaderBytes || lpc::EncodedHeaderBytes(headers) == size);
    std::string written;
    lpc::AppendHeaders(headers, written);
    lpc::HeaderMap again;
    FUZZ_CHECK(lpc::ReadHeaders(written.data(), written.size(), again) && again == headers);
    CheckHello(headers);
    CheckAnswers(headers);
    return 0;
}
