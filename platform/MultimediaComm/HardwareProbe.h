#pragma once

namespace multimediacomm {

/// What the library "MultimediaProbe" exports under kProbeHardware: calls told once for each kind of device
/// that an H.264 or H.265 decoder can use, in the multimedia library's order of preference; usable: a device
/// of the kind could be opened. Takes a few milliseconds for each kind where there is no device, and up to a
/// second where there is one. One thread at a time.
using HardwareTold = void (*)(void* context, const char* name, bool usable);
using ProbeHardware = void(HardwareTold told, void* context);

constexpr const char* kProbeHardware = "VantorProbeHardware";

} // namespace multimediacomm
