#include "QxNetSDK/library/transport/Connection.h"

#include "QxNetSDK/library/transport/Resolver.h"

namespace sdk {

namespace {

constexpr std::size_t kReceiveBytes = 32 * 1024;

/// The part of what is left of the time for one of several addresses, so that each gets its turn.
Deadline ShareOf(Deadline deadline, std::size_t addressesLeft)
{
    const auto now = Clock::now();
    return addressesLeft <= 1 ? deadline : now + (deadline - now) / static_cast<int>(addressesLeft);
}

} // namespace

Failure CConnection::Open(const DeviceEndpoint& device, Deadline deadline, CInterrupt& interrupt,
                          std::unique_ptr<CConnection>& connection)
{
    std::vector<system::Endpoint> endpoints;
    if (const Failure failure = Resolve(device.address, device.port, deadline, interrupt, endpoints))
        return failure;
    Failure failure{QXNET_ERROR_UNREACHABLE};
    for (std::size_t i = 0; i < endpoints.size() && failure && !interrupt.IsSet(); ++i) {
        auto opened = std::make_unique<CConnection>();
        if (!opened->m_socket.Open(endpoints[i])) {
            failure = {QXNET_ERROR_UNREACHABLE, static_cast<std::uint32_t>(opened->m_socket.Error())};
            continue;
        }
        const CInterrupt::CGuard guard(interrupt, opened->m_socket);
        failure = opened->m_socket.Connect(endpoints[i], ShareOf(deadline, endpoints.size() - i));
        if (!failure)
            failure = opened->ShakeHands(device, deadline);
        if (!failure)
            connection = std::move(opened);
    }
    return failure;
}

Failure CConnection::ShakeHands(const DeviceEndpoint& device, Deadline deadline)
{
    if (!device.useTls) {
        m_stream = std::make_unique<CPlainStream>(m_socket);
        return {};
    }
    auto tls = std::make_unique<CTlsStream>(m_socket);
    if (const Failure failure = tls->ShakeHands(device.address, deadline))
        return failure;
    m_fingerprint = tls->Fingerprint();
    m_stream = std::move(tls);
    return m_fingerprint.empty() ? Failure{QXNET_ERROR_TLS} : Failure{};
}

Failure CConnection::CheckQuiet()
{
    char unasked = 0;
    std::size_t came = 0;
    const Io io = m_stream->Receive(&unasked, 1, came);
    if (io == Io::Done)
        return {QXNET_ERROR_NOT_A_DEVICE};
    return io == Io::Blocked ? Failure{} : Lost();
}

Failure CConnection::Exchange(const std::string& request, CAnswerReader& reader, Deadline deadline,
                              CInterrupt& interrupt)
{
    const CInterrupt::CGuard guard(interrupt, m_socket);
    bool isSent = false;
    if (const Failure failure = Send(request, reader, deadline, isSent))
        return failure;
    if (const Failure failure = Receive(reader, deadline))
        return failure;
    if (isSent)
        return {};
    reader.Result().keepsAlive = false;
    return reader.Result().status >= 400 ? Failure{}
                                         : Failure{QXNET_ERROR_NOT_A_DEVICE, reader.Result().status};
}

Failure CConnection::Send(const std::string& request, CAnswerReader& reader, Deadline deadline, bool& isSent)
{
    std::size_t done = 0;
    while (done < request.size() && !reader.HasBegun()) {
        std::size_t sent = 0;
        const Io io = m_stream->Send(request.data() + done, request.size() - done, sent);
        done += sent;
        if (io == Io::Lost || io == Io::Ended)
            return {}; // the device may have told why before it closed
        if (io == Io::Done)
            continue;
        const unsigned ready = m_socket.Wait(m_stream->Wanted() | system::kReadable, deadline);
        if (ready == 0)
            return {QXNET_ERROR_ANSWER_TIMEOUT};
        Io came = Io::Blocked;
        if (ready & system::kReadable) {
            if (const Failure failure = TakeWhatCame(reader, came))
                return failure;
        }
    }
    isSent = done == request.size();
    return {};
}

Failure CConnection::Receive(CAnswerReader& reader, Deadline deadline)
{
    // Nothing can be there yet: the first attempt would be in vain.
    Io io = reader.HasBegun() ? Io::Done : Io::Blocked;
    unsigned wanted = system::kReadable;
    while (!reader.IsComplete()) {
        if (Clock::now() >= deadline || (io == Io::Blocked && m_socket.Wait(wanted, deadline) == 0))
            return {QXNET_ERROR_ANSWER_TIMEOUT};
        if (const Failure failure = TakeWhatCame(reader, io))
            return failure;
        wanted = m_stream->Wanted();
    }
    return {};
}

Failure CConnection::Look(CAnswerReader& reader)
{
    Io ignored = Io::Blocked;
    return TakeWhatCame(reader, ignored);
}

Failure CConnection::TakeWhatCame(CAnswerReader& reader, Io& io)
{
    char bytes[kReceiveBytes];
    std::size_t came = 0;
    io = m_stream->Receive(bytes, sizeof bytes, came);
    if (io == Io::Ended || io == Io::Lost)
        return Lost();
    return came == 0 ? Failure{} : reader.Take(bytes, came);
}

Failure CConnection::Lost() const
{
    return {QXNET_ERROR_CONNECTION_LOST, static_cast<std::uint32_t>(m_socket.Error())};
}

} // namespace sdk
