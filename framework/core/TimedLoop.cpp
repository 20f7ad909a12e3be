#include "framework/core/TimedLoop.h"

#include "Base/ProcessUtil.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include <thread>

namespace framework {

namespace asio = boost::asio;

struct CTimedLoop::State
{
    asio::io_context context{1};
    asio::executor_work_guard<asio::io_context::executor_type> work{context.get_executor()};
    std::thread thread;
};

CTimedLoop::CTimedLoop(const std::string& name) : m_state(std::make_unique<State>())
{
    m_state->thread = std::thread([state = m_state.get(), name] {
        Base::ProcessUtil::NameThisThread(name);
        state->context.run();
    });
}

CTimedLoop::~CTimedLoop()
{
    Stop();
}

void CTimedLoop::After(std::chrono::milliseconds pause, Base::Task task)
{
    const auto timer = std::make_shared<asio::steady_timer>(m_state->context, pause);
    timer->async_wait([timer, task = std::move(task)](const boost::system::error_code& error) {
        if (!error)
            Base::RunGuarded(task);
    });
}

void CTimedLoop::Post(Base::Task task)
{
    asio::post(m_state->context, [task = std::move(task)] { Base::RunGuarded(task); });
}

void CTimedLoop::Stop()
{
    m_state->context.stop();
    if (m_state->thread.joinable())
        m_state->thread.join();
}

} // namespace framework
