// Bytes of a connection, cut anywhere, for lpc::CFrameReader.
//
// Input: a byte that says how to cut (0: not at all), and the bytes. When its highest bit is set the rest
// describes frames instead, eight bytes each (kind, flags, id, number of header bytes, body length in three
// bytes, and a byte that fills the body), so that long bodies come up without being in the corpus.

#include "Fuzz.h"
#include "LPC_Wire/FrameReader.h"
#include "LPC_Wire/Limits.h"
#include "tests/support/WireBytes.h"

#include <sanitizer/allocator_interface.h>

#include <cstring>

namespace {

constexpr std::size_t kLongestStream = 512 * lpc::kKiB;
constexpr std::size_t kMostPieces = 256; // about, in a long stream

std::string DescribedFrame(fuzz::CInput& input)
{
    lpc::FrameHead head;
    head.kind = static_cast<lpc::Kind>(input.Byte() % 8);
    head.flags = static_cast<std::uint16_t>(input.Byte() % 3);
    head.id = input.Byte() % 4;
    head.headerBytes = input.Byte() % 5;
    head.bodyBytes = input.Byte();
    head.bodyBytes += input.Byte() << 8;
    head.bodyBytes += input.Byte() % 4 << 16;
    std::string bytes(lpc::kFrameHeadBytes + head.headerBytes, '\0');
    lpc::WriteFrameHead(head, bytes.data());
    const auto filler = static_cast<char>(input.Byte());
    return bytes.append(head.bodyBytes, filler);
}

std::string DescribedStream(fuzz::CInput& input)
{
    std::string bytes;
    while (!input.IsEmpty() && bytes.size() < kLongestStream)
        bytes += DescribedFrame(input);
    return bytes;
}

/// The sizes of the pieces in which a stream arrives: the same ones for the same seed.
class CPieces
{
public:
    explicit CPieces(unsigned seed) : m_seed(seed), m_state(seed) {}

    std::size_t Next()
    {
        if (m_seed == 0)
            return std::string::npos;
        m_state = m_state * 1664525u + 1013904223u; // constants of Numerical Recipes' quick generator
        const unsigned bits = m_seed % 18;
        return 1 + (m_state >> 8) % (1u << bits);
    }

private:
    const unsigned m_seed;
    unsigned m_state;
};

struct Reading
{
    std::vector<lpc::WireMessage> messages;
    lpc::Fault fault = lpc::Fault::None;
    bool insideMessage = false;
};

std::size_t Put(lpc::CFrameReader& reader, const char* bytes, std::size_t size)
{
    std::size_t put = 0;
    for (const lpc::MutableSpan& span : reader.Room()) {
        const std::size_t part = std::min(size - put, span.size);
        if (part > 0)
            std::memcpy(span.data, bytes + put, part);
        put += part;
    }
    reader.Commit(put);
    return put;
}

/// The reader's buffer, one step of growth twice over, what the stream may have left in strings that doubled,
/// and the messages that are kept here.
void CheckMemory(std::size_t before, std::size_t arrived)
{
    constexpr std::size_t kFixed = 384 * lpc::kKiB;
    FUZZ_CHECK(__sanitizer_get_current_allocated_bytes() <= before + kFixed + 8 * arrived);
}

void TakeMessages(lpc::CFrameReader& reader, Reading& reading)
{
    for (lpc::WireMessage message; reader.Next(message);)
        reading.messages.push_back(std::move(message));
    lpc::WireMessage none;
    FUZZ_CHECK(!reader.Next(none));
}

Reading ReadAll(const std::string& bytes, CPieces pieces)
{
    const std::size_t before = __sanitizer_get_current_allocated_bytes();
    lpc::CFrameReader reader;
    Reading reading;
    for (std::size_t done = 0; done < bytes.size() && reader.GetFault() == lpc::Fault::None;) {
        const std::size_t piece = std::max(pieces.Next(), bytes.size() / kMostPieces);
        const std::size_t put = Put(reader, bytes.data() + done, std::min(piece, bytes.size() - done));
        FUZZ_CHECK(put > 0);
        done += put;
        TakeMessages(reader, reading);
        CheckMemory(before, done);
    }
    reading.fault = reader.GetFault();
    reading.insideMessage = reader.InsideMessage();
    return reading;
}

bool AreEqual(const lpc::WireMessage& left, const lpc::WireMessage& right)
{
    return left.kind == right.kind && left.id == right.id && left.headers == right.headers &&
           left.body == right.body;
}

void CheckSameReading(const Reading& left, const Reading& right)
{
    FUZZ_CHECK(left.fault == right.fault);
    FUZZ_CHECK(left.fault != lpc::Fault::None || left.insideMessage == right.insideMessage);
    FUZZ_CHECK(left.messages.size() == right.messages.size());
    for (std::size_t i = 0; i < left.messages.size(); ++i)
        FUZZ_CHECK(AreEqual(left.messages[i], right.messages[i]));
}

void CheckWritesTheSame(const lpc::WireMessage& message)
{
    const std::string bytes = WireBytes(message.kind, message.id, message.headers, message.body);
    const Reading again = ReadAll(bytes, CPieces(0));
    FUZZ_CHECK(again.fault == lpc::Fault::None && !again.insideMessage && again.messages.size() == 1);
    FUZZ_CHECK(AreEqual(again.messages[0], message));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const unsigned cut = input.Byte();
    const std::string bytes = cut < 0x80 ? input.Rest() : DescribedStream(input);
    const Reading reading = ReadAll(bytes, CPieces(0));
    CheckSameReading(reading, ReadAll(bytes, CPieces(cut & 0x7F)));
    for (const lpc::WireMessage& message : reading.messages)
        CheckWritesTheSame(message);
    return 0;
}
