#pragma once

#include "LPC_Client/LPC_Client.h"
#include "logical/Communication/LPCNames.h"

#include <memory>
#include <string>

namespace video {

/// One incoming message on its way through the worker pool: what it is dispatched by, and a copy of the
/// whole.
///
/// Whatever queues work for a message holds this, or a copy of the data, as long as the work waits: what is
/// held counts against the channel's receive queue, and so every queue is bounded.
struct CDispatchTask
{
    explicit CDispatchTask(const lpcclient::LPCCallBackData& call)
        : url(call.Header(kUrlHeader)), method(call.Header(kMethodHeader)),
          protocol(call.Header(kProtocolHeader)), data(call)
    {}
    CDispatchTask(const CDispatchTask&) = delete;
    CDispatchTask& operator=(const CDispatchTask&) = delete;

    const std::string url;
    const std::string method;
    const std::string protocol;
    const lpcclient::LPCCallBackData data;
};

using DispatchTaskPtr = std::shared_ptr<const CDispatchTask>;

} // namespace video
