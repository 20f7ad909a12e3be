#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace protocol {

/// The bytes of a text from begin to before end.
struct TextPart
{
    std::size_t begin;
    std::size_t end;
};

/// The parts of a text that may be shown to nobody, in any order; they may overlap. They are
/// - the value of a key that Base::IsCredentialName knows, in JSON or as key=value and key: value,
/// - what stands before the "@" of a url,
/// - and both inside the strings of JSON, however often these hold JSON again.
/// JSON may be cut, broken, or stand in other text. What is in doubt is a part. The time grows with the
/// length of the text, not with its square. Any thread.
std::vector<TextPart> FindCredentials(std::string_view text);

} // namespace protocol
