#pragma once

/// For programs of the tests that use Qt without a screen: Qt's offscreen platform leaves its one screen
/// behind when the application ends, which the leak check would report. Full stacks are needed to know these
/// from other leaks. Include in the file with main.
#ifdef __SANITIZE_ADDRESS__
extern "C" inline __attribute__((used, visibility("default"))) const char* __asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}

extern "C" inline __attribute__((used, visibility("default"))) const char* __lsan_default_suppressions()
{
    return "leak:QGuiApplicationPrivate::createPlatformIntegration\n";
}
#endif
