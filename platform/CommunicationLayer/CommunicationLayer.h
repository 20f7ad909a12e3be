#pragma once

#include "CommunicationLayer/Transport.h"

#include <memory>

namespace commlayer {

/// Installs the transport of the process's requests. Any thread.
void CommunicationLayerInit(std::shared_ptr<ITransport> transport);

/// Removes it; requests then fail with kNoTransport. One that is under way keeps the transport until it ends.
/// May be called again.
void CommunicationLayerUnInit();

/// Passes every request to the transport that is installed at that moment. Lives as long as the process.
ITransport& CurrentTransport();

} // namespace commlayer
