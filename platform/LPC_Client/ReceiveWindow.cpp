#include "LPC_Client/ReceiveWindow.h"

#include "LPC_Wire/Limits.h"

namespace lpcclient {

class CReceiveWindow::CReceipt
{
public:
    CReceipt(std::shared_ptr<CReceiveWindow> window, std::size_t bytes)
        : m_window(std::move(window)), m_bytes(bytes)
    {}
    ~CReceipt() { m_window->Release(m_bytes); }
    CReceipt(const CReceipt&) = delete;
    CReceipt& operator=(const CReceipt&) = delete;

private:
    const std::shared_ptr<CReceiveWindow> m_window;
    const std::size_t m_bytes;
};

std::shared_ptr<const void> CReceiveWindow::Charge(std::size_t bytes)
{
    auto receipt = std::make_shared<const CReceipt>(shared_from_this(), bytes);
    m_bytes += bytes;
    return receipt;
}

std::size_t CReceiveWindow::Bytes() const
{
    const std::size_t bytes = m_bytes;
    const std::size_t lent = m_lent;
    return bytes > lent ? bytes - lent : 0;
}

/// Reading stops at one of two limits and goes on below another: whoever crosses one tells.
void CReceiveWindow::Release(std::size_t bytes)
{
    const std::size_t before = m_bytes.fetch_sub(bytes);
    const auto crosses = [&](std::size_t limit) { return before >= limit && before - bytes < limit; };
    if (!crosses(lpc::kReceiveQueueBytes) && !crosses(lpc::kReceiveQueueBytes / 2))
        return;
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_onRoom)
        m_onRoom();
}

void CReceiveWindow::Close()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_onRoom = nullptr;
}

} // namespace lpcclient
