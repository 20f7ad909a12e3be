#pragma once

#include "Protocol/JSONStruct/IJSONStruct.h"

#include <memory>
#include <string>
#include <vector>

/// A message type as the tests of docs/lpc-api.md see it. Several may have one key, such as a request and its
/// answer.
struct MessageInfo
{
    std::string key;
    std::vector<std::string> rows; ///< "key, kind, must" of each field and of those within it
    bool isMethod;                 ///< travels in the envelope of methods
    std::unique_ptr<protocol::IJSONStruct> (*make)();
};

/// All of AllMessages.h.
const std::vector<MessageInfo>& Messages();
