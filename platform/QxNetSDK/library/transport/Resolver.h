#pragma once

#include "QxNetSDK/library/Failure.h"
#include "QxNetSDK/library/transport/Interrupt.h"
#include "QxNetSDK/library/transport/SystemSocket.h"

namespace sdk {

/// The addresses of a host, at least one. Waits at most until the deadline, though the system's own look-up
/// may wait longer: that goes on in a thread of its own, one for each name and at most 16. For any thread.
Failure Resolve(const std::string& host, std::uint16_t port, Deadline deadline, CInterrupt& interrupt,
                std::vector<system::Endpoint>& endpoints);

} // namespace sdk
