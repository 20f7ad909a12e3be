#include "ui/Application/VantorEventFilter.h"

namespace video {

namespace {

constexpr unsigned int kSystemKeyDown = 0x104; ///< WM_SYSKEYDOWN: a key together with Alt
constexpr unsigned int kKeyF4 = 0x73;          ///< VK_F4

} // namespace

bool CVantorEventFilter::nativeEventFilter(const QByteArray& eventType, void* message, long* result)
{
    if (eventType != "windows_generic_MSG" && eventType != "windows_dispatcher_MSG")
        return false;
    MSG* native = static_cast<MSG*>(message);
    if (native->message == kSystemKeyDown && native->wParam == kKeyF4)
        return true;
    return emit SignalEventFilter(native, result);
}

} // namespace video
