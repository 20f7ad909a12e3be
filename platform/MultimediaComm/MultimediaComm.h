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

/// Looks once which devices can be opened and writes one line to the log. Takes a few milliseconds for each
/// kind where there is no device, and up to a second where there is one, so it belongs on a worker thread.
/// False when the library knows no kind at all; a machine without any device is a success.
bool Init();

/// Forgets what Init found.
void UnInit();

/// Every kind that was looked for, in the library's order of preference; empty before Init and after UnInit.
/// Waits for an Init that is under way.
std::vector<HardwareDecoder> HardwareDecoders();

} // namespace multimediacomm
