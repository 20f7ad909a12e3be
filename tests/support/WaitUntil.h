#pragma once

#include <chrono>
#include <thread>

/// Asks again and again until the condition holds; false when it still does not after the limit.
template<typename Condition>
bool WaitUntil(Condition&& condition, std::chrono::milliseconds limit = std::chrono::seconds(10))
{
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}
