#pragma once

#include "LPC_Client/LPC_Client.h"

#include <functional>
#include <string>
#include <vector>

namespace video {

/// Serves one kind of request or notification, on a thread of the worker pool.
using LPCHandler = std::function<void(const lpcclient::LPCCallBackData& data)>;

/// What a route answers. An answer with another status than 200 tells that the request was refused or failed.
struct RouteAnswer
{
    std::string body;
    int status = 200;
    int error = 0; ///< an lpc::Error, or 0
};

/// Sends a call's answer; see CLPCClientPackage::Answer.
using AnswerCall = std::function<bool(const lpcclient::LPCCallBackData& call, const RouteAnswer& answer)>;

/// Handlers by exact, case-sensitive name. The rows are put in by the subsystems that own them, before the
/// link is opened; from then on the table is only read, from any thread.
class CRouteTable
{
public:
    enum class Result { Served, NobodyServes, Unknown };

    /// Adds a row that nobody serves yet, at the end of the order of names.
    void Declare(const std::string& name);

    /// Gives the row its handler, adding the row if need be. The latest handler holds.
    void Bind(const std::string& name, LPCHandler handler);

    /// Calls the row's handler.
    Result Serve(const std::string& name, const lpcclient::LPCCallBackData& data) const;

    /// All names in the order in which the rows were added.
    std::vector<std::string> Names() const;
    /// Those of them that have a handler.
    std::vector<std::string> ServedNames() const;

private:
    struct Row
    {
        std::string name;
        LPCHandler handler;
    };

    Row& RowOf(const std::string& name);

    std::vector<Row> m_rows; ///< some thirty: a walk is as quick as a map
};

} // namespace video
