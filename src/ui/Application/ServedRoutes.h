#pragma once

namespace video {

class CLPCClientPackage;
class CSignalTransmit;

/// Puts the rows of every subsystem into the link's tables. Before the link is opened; GUI thread.
void ServeAllRoutes(CLPCClientPackage& link, CSignalTransmit& transmitter);

} // namespace video
