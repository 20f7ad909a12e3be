#pragma once

#include "Base/Log.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

/// What the fuzz targets share: reading their input bit by bit, and saying what has to hold.

/// Ends the run with the condition when it does not hold; libFuzzer then keeps the input.
#define FUZZ_CHECK(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition)) {                                                                                  \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);              \
            std::abort();                                                                                    \
        }                                                                                                    \
    } while (false)

namespace fuzz {

/// The input, taken from its front. Beyond its end there are zeros and empty texts.
class CInput
{
public:
    CInput(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    bool IsEmpty() const { return m_rest.empty(); }

    unsigned Byte() { return static_cast<unsigned char>(Text(1).c_str()[0]); }

    std::string Text(std::size_t length)
    {
        const std::string text(m_rest.substr(0, length));
        m_rest.remove_prefix(text.size());
        return text;
    }

    /// All before the next line feed, which is taken too; the rest when there is none.
    std::string Line()
    {
        const std::string line = Text(m_rest.find('\n'));
        (void)Text(1);
        return line;
    }

    std::string Rest() { return Text(m_rest.size()); }

private:
    std::string_view m_rest;
};

/// Whether the text has no control characters and so stays on one line.
inline bool IsOneLine(const std::string& text)
{
    return std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
}

/// The log lines that are written while it lives, each of which has to be one line. One at a time.
class CLogWatch
{
public:
    CLogWatch()
    {
        Lines().clear();
        Base::SetLogObserver([](Base::LogLevel, const char*, const std::string& message) {
            FUZZ_CHECK(IsOneLine(message));
            Lines().push_back(message);
        });
    }
    ~CLogWatch() { Base::SetLogObserver(nullptr); }

    std::size_t Count() const { return Lines().size(); }

    /// Whether a line holds the text.
    bool Shows(const std::string& text) const
    {
        return std::any_of(Lines().begin(), Lines().end(),
                           [&](const std::string& line) { return line.find(text) != std::string::npos; });
    }

private:
    static std::vector<std::string>& Lines()
    {
        static std::vector<std::string> lines;
        return lines;
    }
};

} // namespace fuzz
