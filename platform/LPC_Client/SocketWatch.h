#pragma once

#include "LPC_Wire/Poller.h"

#include <mutex>

namespace lpcclient {

/// The bits for which the library's thread watches a socket, put together from the two sides that want them.
class CSocketWatch
{
public:
    CSocketWatch(lpc::CPoller& poller, lpc::SocketHandle handle, std::uint64_t key);

    /// Reading is wanted at first, writing is not.
    void Read(bool on) { Set(lpc::kReadable, on); }
    void Write(bool on) { Set(lpc::kWritable, on); }

    void Start();
    /// For good.
    void Stop();

private:
    enum class State { New, Watching, Stopped };

    void Set(unsigned bit, bool on);

    lpc::CPoller& m_poller;
    const lpc::SocketHandle m_handle;
    const std::uint64_t m_key;
    std::mutex m_mutex;
    unsigned m_wanted = lpc::kReadable;
    State m_state = State::New;
};

} // namespace lpcclient
