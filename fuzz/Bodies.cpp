// Every message structure, read from a body, as a value alone and as the data of an envelope.
//
// Input: a line with the key of the structure (kKey), and the text.

#include "Fuzz.h"
#include "Protocol/JSONStruct/AllMessages.h"
#include "Protocol/JSONStruct/LPC/LPCCommonJSONStruct.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

namespace {

using namespace protocol;

/// Reads the text into a message; one that is refused stays as it was, with one line that says why.
template<typename T, typename Read>
bool ReadsWell(T& message, const std::string& text, Read read)
{
    const fuzz::CLogWatch log;
    if (read(message, text)) {
        FUZZ_CHECK(log.Count() == 0);
        return true;
    }
    FUZZ_CHECK(log.Count() == (text.empty() ? 0 : 1));
    FUZZ_CHECK(message == T());
    return false;
}

/// What was read is written and read again.
template<typename T, typename Read, typename Write>
void CheckComesBack(const std::string& text, Read read, Write write)
{
    T message;
    if (!ReadsWell(message, text, read))
        return;
    T again;
    FUZZ_CHECK(ReadsWell(again, write(message), read));
    FUZZ_CHECK(again == message);
}

bool ReadEnvelope(IJSONStruct& message, const std::string& text)
{
    return LPCRequestData(message).Parse(text);
}

std::string WriteEnvelope(const IJSONStruct& message)
{
    return WriteLPCStr(message);
}

std::string WriteValue(const IJSONStruct& message)
{
    const json::Tree holder = json::NewObject();
    message.ToJSON(holder.get(), "value");
    return json::PrintText(holder->child);
}

template<typename T>
void CheckMessage(const std::string& text)
{
    CheckComesBack<T>(text, ParseJSONStr, WriteJSONStr);
    CheckComesBack<T>(text, ParseJSONValue, WriteValue);
    CheckComesBack<T>(text, ReadEnvelope, WriteEnvelope);
}

/// Some structures share their key.
template<typename... Messages>
void CheckMessages(MessageList<Messages...>, const std::string& key, const std::string& text)
{
    ((key == Messages::kKey ? CheckMessage<Messages>(text) : void()), ...);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const std::string key = input.Line();
    CheckMessages(AllMessages(), key, input.Rest());
    return 0;
}
