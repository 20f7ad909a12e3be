#pragma once

/// Fixed names of the local channel that its ends agree on.
namespace lpc {

/// The framework's server.
constexpr const char* kFrameworkServerName =
    "Vantor_ClientFramework_LPCServer_7F0AA04D76F64B58AB20037B4D99073F";

/// The video component as a client; the lower-case "d" is part of it.
constexpr const char* kVideoComponentName = "Video.C_9AA5C3F1D41D467D813dE671443AF127";

/// The method under which a client hears of the loss of its connection.
constexpr const char* kClientDisconnectedMethod = "clientDisconnected";

} // namespace lpc
