#pragma once

#include "LPC_Wire/FrameReader.h"

#include <string>

/// The first frame of each side.
namespace lpc {

/// The headers of the client's hello: protocol version and the name under which the server sees it.
HeaderMap HelloHeaders(const std::string& clientName);

/// The headers of the server's answer.
HeaderMap HelloAnswerHeaders();

/// Whether the name can be a client's: 1 to kMaxClientName bytes without control characters.
bool IsClientName(const std::string& name);

/// kNoError for a hello that can be served, kRefused for one of another version or without a proper name.
int CheckHello(const HeaderMap& headers);

/// The client's name in a hello that CheckHello found good.
std::string HelloName(const HeaderMap& headers);

/// kNoError when the message is a hello answer of this version, the refusal's number when it is one, else
/// kRefused.
int CheckHelloAnswer(const WireMessage& message);

} // namespace lpc
