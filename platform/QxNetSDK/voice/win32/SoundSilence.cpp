#include "QxNetSDK/voice/SoundInput.h"

namespace sdk {

// The sound libraries of this system write nothing.
void SilenceSoundLibraries() {}

} // namespace sdk
