#include "CommunicationLayer/CommunicationLayer.h"

#include "Base/Error.h"
#include "Base/Log.h"
#include "Base/Singleton.h"

#include <mutex>
#include <utility>

namespace commlayer {

namespace {

class CCurrentTransport : public ITransport
{
public:
    void Install(std::shared_ptr<ITransport> transport)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_transport.swap(transport);
    }

    bool request(RspInfos& answer, const RequestParams& params, bool retry) override
    {
        if (const std::shared_ptr<ITransport> transport = Installed())
            return transport->request(answer, params, retry);
        answer = {};
        Base::Error::SetLastError(kNoTransport);
        BASE_ERROR_TO("VideoLogger",
                      "Failed to request [url-%s]. The communication layer is not initialised.",
                      params.url.c_str());
        return false;
    }

private:
    std::shared_ptr<ITransport> Installed()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_transport;
    }

    std::mutex m_mutex;
    std::shared_ptr<ITransport> m_transport;
};

CCurrentTransport& Current()
{
    return Base::CSingleton<CCurrentTransport>::Instance();
}

} // namespace

void CommunicationLayerInit(std::shared_ptr<ITransport> transport)
{
    Current().Install(std::move(transport));
}

void CommunicationLayerUnInit()
{
    Current().Install(nullptr);
}

ITransport& CurrentTransport()
{
    return Current();
}

} // namespace commlayer
