#pragma once

#include <string>
#include <vector>

/// What this machine can decode in hardware. Any thread.
namespace multimediacomm {

/// One kind of device that an H.264 or H.265 decoder of the multimedia library can use, for example "vaapi".
struct HardwareDecoder
{
    std::string name;
    bool usable; ///< A device of this kind could be opened.
};

/// Allows HardwareDecoders to look. Takes no time, so that a start may wait for it. False, with one log line,
/// when the library that looks is not there.
bool Init();

/// Forgets what was found; nothing is looked for until the next Init.
void UnInit();

/// Every kind that was looked for, in the library's order of preference; empty before Init and after UnInit.
/// The first call after Init loads the multimedia library, looks which devices can be opened, and writes one
/// line to the log; that takes up to a second, so it belongs on a worker thread. Others wait for it
/// meanwhile.
std::vector<HardwareDecoder> HardwareDecoders();

} // namespace multimediacomm
