#pragma once

#include "LPC_Wire/Records.h"

#include <string>
#include <vector>

/// What every server of routes needs: the form of answers and the comparison of urls. Any thread.
namespace lpcforward {

/// Content type of JSON bodies on the channel.
constexpr const char* kJsonContentType = "application/json; charset=\"UTF-8\"";

/// Makes the message of an answer. Status and error number stand in headers of their own; a body is JSON.
lpc::Message MakeAnswer(int status, int errorCode, const std::string& body);

/// True when the url has the pattern's segments; "*" in the pattern stands for any one segment that is not
/// empty. The segments that it stood for, percent-decoded, go to stars when that is given; a segment with
/// a broken percent code then matches nothing.
bool UrlMatches(const std::string& pattern, const std::string& url,
                std::vector<std::string>* stars = nullptr);

} // namespace lpcforward
