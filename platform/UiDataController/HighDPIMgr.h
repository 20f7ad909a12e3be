#pragma once

namespace UiDataController {

/// The policy for screens of high resolution: sizes in the program are device-independent pixels, pictures
/// are drawn at the screen's own resolution, and fractional factors (125 %, 150 %) are taken as they are.
class CHighDPIMgr
{
public:
    /// Applies the policy. Call before the application object exists, with the arguments of main; Qt's own
    /// environment variables (QT_SCALE_FACTOR) still hold. False, with one log line and no effect, when it
    /// comes too late.
    static bool doHighDPI(int argc, char** argv);
};

} // namespace UiDataController
