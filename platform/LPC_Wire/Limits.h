#pragma once

#include <cstddef>
#include <cstdint>

/// The limits of the local channel, as docs/lpc-protocol.md states them.
namespace lpc {

constexpr std::uint8_t kProtocolVersion = 1;

constexpr std::size_t kKiB = 1024;
constexpr std::size_t kMiB = 1024 * kKiB;

/// One message: its headers, its body, and how much of the body a frame carries.
constexpr std::size_t kMaxHeaderBytes = 64 * kKiB;
constexpr std::size_t kMaxHeaders = 256;
constexpr std::size_t kMaxFrameBody = 1 * kMiB;
constexpr std::size_t kMaxBody = 64 * kMiB;

/// Bodies of which a connection has sent some but not all frames.
constexpr std::size_t kMaxPartialBodies = 16;
constexpr std::size_t kMaxPartialBytes = 128 * kMiB;

constexpr std::size_t kMaxClientName = 128;

/// Bytes that may wait to be written to one connection, and bytes of messages that may wait for a receiver or
/// be kept by it. A message that finds its queue empty is always taken.
constexpr std::size_t kSendQueueBytes = 16 * kMiB;
constexpr std::size_t kReceiveQueueBytes = 16 * kMiB;

/// How far a caller that waits for its answer reads on: what a full send queue of the other end may have put
/// before the answer finds room.
constexpr std::size_t kReceiveQueueBytesOfCallers = kReceiveQueueBytes + kSendQueueBytes;

/// Requests of one side that wait for their answers without a waiting caller.
constexpr std::size_t kMaxPendingAnswers = 65536;

constexpr int kConnectTimeoutMs = 5000;

/// How long a client that disconnects goes on writing what waits.
constexpr int kFarewellMs = 2000;

/// The same for a server that stops, for all clients together.
constexpr int kServerFarewellMs = 500;

} // namespace lpc
