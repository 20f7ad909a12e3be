#include "lpc/host/InterruptWatch.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/signal_set.hpp>

#include <csignal>
#include <thread>

namespace lpctool {

struct CInterruptWatch::State
{
    boost::asio::io_context context;
    boost::asio::signal_set signals{context, SIGINT, SIGTERM};
    std::thread thread;
};

CInterruptWatch::CInterruptWatch(std::function<void()> onInterrupt) : m_state(std::make_unique<State>())
{
    m_state->signals.async_wait([onInterrupt](const boost::system::error_code& error, int) {
        if (!error)
            onInterrupt();
    });
    m_state->thread = std::thread([state = m_state.get()] { state->context.run(); });
}

CInterruptWatch::~CInterruptWatch()
{
    m_state->context.stop();
    m_state->thread.join();
}

} // namespace lpctool
