#pragma once

#include "QxNetSDK/library/session/TrustStore.h"
#include "QxNetSDK/library/transport/Connection.h"

#include <condition_variable>

namespace sdk {

/// The connections of one session: at most 8, of which at most 2 wait for the next exchange. For any thread.
class CConnectionPool : public IWaiting
{
public:
    CConnectionPool(DeviceEndpoint device, std::chrono::milliseconds connectTimeout, CTrustStore& trust);

    /// A connection for one exchange.
    class CLease
    {
    public:
        explicit CLease(CConnectionPool& pool) : m_pool(pool) {}
        ~CLease();
        CLease(const CLease&) = delete;
        CLease& operator=(const CLease&) = delete;

        CConnection& Connection() { return *m_connection; }
        /// Whether it served an exchange before.
        bool IsUsed() const { return m_isUsed; }
        /// The next exchange may use it.
        void Keep() { m_isKept = true; }

    private:
        friend class CConnectionPool;
        CConnectionPool& m_pool;
        std::unique_ptr<CConnection> m_connection;
        bool m_hasPlace = false;
        bool m_isUsed = false;
        bool m_isKept = false;
    };

    /// Waits for one of the places, and connects if need be: no longer than the deadline, and for connecting
    /// the connect timeout. mustBeFresh: none that served before, as those
    /// who wait have most likely been closed with another one.
    Failure Take(CLease& lease, bool mustBeFresh, Deadline deadline, CInterrupt& interrupt);

    /// A connection beyond the places, for one long exchange.
    Failure TakeExtra(CLease& lease, Deadline deadline, CInterrupt& interrupt);

    /// After a login: keeps the device's certificate for good.
    Failure Trust();

    void Wake() override;

private:
    Failure WaitForPlace(CLease& lease, Deadline deadline, const CInterrupt& interrupt);
    void CloseIdle();
    bool TakeIdle(CLease& lease);
    Failure Connect(CLease& lease, Deadline deadline, CInterrupt& interrupt);
    Failure CheckFingerprint(const std::string& fingerprint);

    const DeviceEndpoint m_device;
    const std::string m_name;
    const std::chrono::milliseconds m_connectTimeout;
    CTrustStore& m_trust;

    std::mutex m_mutex;
    std::condition_variable m_placeFree;
    std::size_t m_places = 0; ///< taken
    std::vector<std::unique_ptr<CConnection>> m_idle;
    std::string m_fingerprint; ///< of the first connection
};

} // namespace sdk
