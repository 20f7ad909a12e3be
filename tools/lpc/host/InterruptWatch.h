#pragma once

#include <functional>
#include <memory>

namespace lpctool {

/// Calls a function, on a thread of its own, when this process is asked to end (interrupt or terminate) while
/// the object lives.
class CInterruptWatch
{
public:
    explicit CInterruptWatch(std::function<void()> onInterrupt);
    ~CInterruptWatch();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace lpctool
