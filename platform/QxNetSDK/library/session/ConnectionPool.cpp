#include "QxNetSDK/library/session/ConnectionPool.h"

namespace sdk {

namespace {

constexpr std::size_t kMostConnections = 8;
constexpr std::size_t kMostIdle = 2;

} // namespace

CConnectionPool::CConnectionPool(DeviceEndpoint device, std::chrono::milliseconds connectTimeout,
                                 CTrustStore& trust)
    : m_device(std::move(device)),
      m_name(HostText(m_device.address, m_device.port) + ZoneOf(m_device.address)),
      m_connectTimeout(connectTimeout), m_trust(trust)
{
    m_idle.reserve(kMostIdle); // so that giving a connection back cannot fail
}

CConnectionPool::CLease::~CLease()
{
    if (!m_hasPlace)
        return;
    std::unique_lock lock(m_pool.m_mutex);
    if (m_isKept && m_pool.m_idle.size() < kMostIdle) {
        m_pool.m_idle.push_back(std::move(m_connection));
    } else {
        // Closed before somebody else opens one in its place.
        lock.unlock();
        m_connection.reset();
        lock.lock();
    }
    --m_pool.m_places;
    m_pool.m_placeFree.notify_one();
}

Failure CConnectionPool::Take(CLease& lease, bool mustBeFresh, Deadline deadline, CInterrupt& interrupt)
{
    if (const Failure failure = WaitForPlace(lease, deadline, interrupt))
        return failure;
    if (mustBeFresh)
        CloseIdle();
    while (TakeIdle(lease)) {
        if (!lease.m_connection->CheckQuiet())
            return {};
    }
    lease.m_isUsed = false;
    return Connect(lease, deadline, interrupt);
}

Failure CConnectionPool::TakeExtra(CLease& lease, Deadline deadline, CInterrupt& interrupt)
{
    return Connect(lease, deadline, interrupt);
}

Failure CConnectionPool::WaitForPlace(CLease& lease, Deadline deadline, const CInterrupt& interrupt)
{
    std::unique_lock lock(m_mutex);
    const auto mayGo = [&] { return m_places < kMostConnections || interrupt.IsSet(); };
    if (!m_placeFree.wait_until(lock, deadline, mayGo))
        return {QXNET_ERROR_ANSWER_TIMEOUT};
    if (interrupt.IsSet())
        return {QXNET_ERROR_CLOSED};
    ++m_places;
    lease.m_hasPlace = true;
    return {};
}

void CConnectionPool::CloseIdle()
{
    const std::lock_guard lock(m_mutex);
    m_idle.clear();
}

bool CConnectionPool::TakeIdle(CLease& lease)
{
    const std::lock_guard lock(m_mutex);
    if (m_idle.empty())
        return false;
    lease.m_connection = std::move(m_idle.back());
    lease.m_isUsed = true;
    m_idle.pop_back();
    return true;
}

Failure CConnectionPool::Connect(CLease& lease, Deadline deadline, CInterrupt& interrupt)
{
    const Deadline connectDeadline = std::min(deadline, Clock::now() + m_connectTimeout);
    if (const Failure failure = CConnection::Open(m_device, connectDeadline, interrupt, lease.m_connection))
        return failure;
    if (m_device.useTls) {
        if (const Failure failure = CheckFingerprint(lease.m_connection->Fingerprint()))
            return failure;
    }
    return lease.m_connection->CheckQuiet();
}

Failure CConnectionPool::CheckFingerprint(const std::string& fingerprint)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_fingerprint.empty())
            m_fingerprint = fingerprint;
        else if (m_fingerprint != fingerprint)
            return {QXNET_ERROR_CERTIFICATE_CHANGED};
    }
    return m_trust.Check(m_name, fingerprint);
}

Failure CConnectionPool::Trust()
{
    return m_device.useTls ? m_trust.Keep(m_name, m_fingerprint) : Failure{};
}

void CConnectionPool::Wake()
{
    const std::lock_guard lock(m_mutex);
    m_placeFree.notify_all();
}

} // namespace sdk
