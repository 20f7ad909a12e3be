#pragma once

namespace video {

/// Sets crash reports up for the process: where they go, how full they are and that one is kept. Runs on a
/// worker thread at start; failures are logged, and the process then runs without reports.
void crashAPIInit();

} // namespace video
