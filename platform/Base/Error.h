#pragma once

namespace Base::Error {

/// The calling thread's last error number; 0 when nothing failed yet.
int GetLastError();
void SetLastError(int error);

} // namespace Base::Error
