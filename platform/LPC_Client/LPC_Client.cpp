#include "LPC_Client/LPC_Client.h"

#include "LPC_Client/Session.h"

#include "LPC_Wire/Hello.h"

namespace lpcclient {
namespace {

/// Never destroyed: threads may still send while the process ends.
struct Client
{
    std::mutex mutex;
    std::shared_ptr<CSession> session;
};

Client& TheClient()
{
    static Client* const client = new Client;
    return *client;
}

std::shared_ptr<CSession> Session()
{
    Client& client = TheClient();
    std::lock_guard<std::mutex> lock(client.mutex);
    return client.session;
}

int& LastError()
{
    thread_local int error = lpc::kNoError;
    return error;
}

bool Report(int error)
{
    if (error != lpc::kNoError)
        LastError() = error;
    return error == lpc::kNoError;
}

} // namespace

bool Init(const std::string& clientName, bool traceTraffic)
{
    if (!lpc::IsClientName(clientName))
        return Report(lpc::kInvalidArgument);
    Client& client = TheClient();
    std::lock_guard<std::mutex> lock(client.mutex);
    if (client.session)
        return Report(lpc::kInvalidArgument);
    const auto session = std::make_shared<CSession>(clientName, traceTraffic);
    if (!session->Start())
        return Report(lpc::kNotInitialised);
    client.session = session;
    return true;
}

bool ConnectToServer(const std::string& serverName)
{
    const auto session = Session();
    return Report(session ? session->Connect(serverName) : lpc::kNotInitialised);
}

bool SetInvokeCallBack(InvokeCallBack callback, void* user)
{
    const auto session = Session();
    if (!session)
        return Report(lpc::kNotInitialised);
    session->SetReceiver(std::move(callback), user);
    return true;
}

RequestId Send(const tag_LPCRequestData& request, AnswerCallBack onAnswer)
{
    const auto session = Session();
    RequestId id = 0;
    return Report(session ? session->Send(request, std::move(onAnswer), id) : lpc::kNotInitialised) ? id : 0;
}

bool SendEx(tag_LPCResponseData& response, const tag_LPCRequestData& request, RequestId& id,
            std::uint32_t timeoutMs)
{
    const auto session = Session();
    return Report(session ? session->SendEx(response, request, id, timeoutMs) : lpc::kNotInitialised);
}

bool Notify(const tag_LPCNotifyData& notification)
{
    const auto session = Session();
    return Report(session ? session->Notify(notification) : lpc::kNotInitialised);
}

bool Reply(const tag_LPCReplyData& reply)
{
    const auto session = Session();
    return Report(session ? session->Reply(reply) : lpc::kNotInitialised);
}

bool DisconnectToServer()
{
    const auto session = Session();
    if (!session)
        return Report(lpc::kNotInitialised);
    session->Disconnect();
    return true;
}

bool Uninit()
{
    std::shared_ptr<CSession> session;
    {
        Client& client = TheClient();
        std::lock_guard<std::mutex> lock(client.mutex);
        session = std::move(client.session);
    }
    if (!session)
        return Report(lpc::kNotInitialised);
    session->Stop();
    return true;
}

int GetLPCLastError()
{
    return LastError();
}

} // namespace lpcclient
