#pragma once

namespace UiDataController {

/// Around the making of the application object: without a screen that can be used, Qt would abort there,
/// which looks like a crash. This ends the process at once with an exit code, after one line in the log and
/// on standard error. Every other fatal message of Qt ends it as before. GUI thread, one at a time.
class CScreenGuard
{
public:
    explicit CScreenGuard(int exitCode);
    ~CScreenGuard();

    CScreenGuard(const CScreenGuard&) = delete;
    CScreenGuard& operator=(const CScreenGuard&) = delete;
};

} // namespace UiDataController
