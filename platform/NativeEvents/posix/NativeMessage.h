#pragma once

#include <cstdint>

/// The native message record, with the fields that the event filter reads, for systems that have none of
/// their own.
struct MSG
{
    void* hwnd;
    unsigned int message;
    std::uintptr_t wParam;
    std::intptr_t lParam;
};
