#pragma once

#include "LPC_Wire/Records.h"

#include <cstdint>
#include <functional>
#include <string>

/// The client end of the local channel: one connection a process, usable from any thread.
///
/// Every function that returns bool (or an identifier, 0 = failed) leaves the reason of a failure in the
/// calling thread's GetLPCLastError. Requests and notifications of the server arrive at the invoke callback,
/// always on the library's own thread and in the order in which they were sent.
namespace lpcclient {

using LPCCallBackData = lpc::CallBackData;
using tag_LPCCallBackData = lpc::CallBackData;
using tag_LPCRequestData = lpc::Message;
using tag_LPCNotifyData = lpc::Message;
using tag_LPCResponseData = lpc::Message;
using tag_LPCReplyData = lpc::ReplyData;
using lpc::HeaderMap;
using lpc::RequestId;

/// Takes what the server sends. Must return quickly; the result tells whether the data was taken (false is
/// logged). Copies of the data may be kept for other threads: while they hold 16 MiB, the server is held
/// back.
using InvokeCallBack = std::function<bool(const LPCCallBackData& data, void* user)>;

/// Takes the answer to an asynchronous request on the library's thread; error is lpc::kNoError, or why there
/// is none.
using AnswerCallBack = std::function<void(int error, const tag_LPCResponseData& answer)>;

/// Gives the client the name under which the server sees it (1 to 128 bytes). traceTraffic writes each
/// message's headers and size to the log at debug level. Fails with lpc::kNotInitialised when the system has
/// no handles left.
[[nodiscard]] bool Init(const std::string& clientName, bool traceTraffic);

/// Connects to the server of that name in this user's data root and exchanges the hello. Waits at most 5
/// seconds.
[[nodiscard]] bool ConnectToServer(const std::string& serverName);

/// Sets or, with an empty function, clears the receiver. What arrived before the first receiver was set, up
/// to the receive queue's limit, is delivered to it then; so is the loss of the connection, which arrives as
/// a notification with the method "clientDisconnected". After clearing returns no call is under way, unless
/// it was cleared from within one. While it is cleared, requests are refused with lpc::kTryAgain and
/// notifications dropped.
[[nodiscard]] bool SetInvokeCallBack(InvokeCallBack callback, void* user);

/// Sends a request and returns its identifier without waiting. Without a callback the answer is dropped.
[[nodiscard]] RequestId Send(const tag_LPCRequestData& request, AnswerCallBack onAnswer = {});

/// Sends a request and waits for its answer, at most timeoutMs milliseconds (0: no limit but the connection's
/// life). id receives the identifier. An answer that comes later is dropped. From within the
/// invoke callback it fails with lpc::kTryAgain when no more may be read, for then nobody makes room. A
/// thread that keeps received data should set a time limit: the answer may lie behind more than may be
/// received before the data goes.
[[nodiscard]] bool SendEx(tag_LPCResponseData& response, const tag_LPCRequestData& request, RequestId& id,
                          std::uint32_t timeoutMs);

/// Sends a notification. One of many in a burst leaves within a millisecond; sent from within a callback, at
/// the latest when that returns. A process that ends without disconnecting first may lose it.
[[nodiscard]] bool Notify(const tag_LPCNotifyData& notification);

/// Answers a request that the invoke callback received.
[[nodiscard]] bool Reply(const tag_LPCReplyData& reply);

/// Closes the connection; waiting SendEx calls fail at once with lpc::kConnectionLost. What was sent before
/// still leaves; a server that does not read it holds this up, and the caller that reads, for at most 2
/// seconds. No "clientDisconnected" is delivered for it. Succeeds when there is no connection any more. From
/// within the invoke callback it does not wait for the library's thread.
[[nodiscard]] bool DisconnectToServer();

/// Ends the library's thread and forgets the name. Fails with lpc::kNotInitialised when there was no Init.
[[nodiscard]] bool Uninit();

/// The calling thread's last error, an lpc::Error.
int GetLPCLastError();

} // namespace lpcclient
