#include "screen-engine.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

// The font library that Qt loads holds its settings by pointers that the leak checker does not recognise.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
#endif

#ifdef __SANITIZE_THREAD__
// Qt is built without the sanitizer, which therefore sees the queue of posted signals move and free its
// memory, but not the mutex that guards it. Only calls that Qt itself makes are passed over: a frame of ours
// stays seen.
extern "C" const char *__tsan_default_suppressions() {
    return "race:libQt5Core\nrace:libQt6Core\n";
}
#endif

/// The screens are drawn without a display and without a graphics card, as on a server.
int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication app(argc, argv);
    registerTypes();
    testing::InitGoogleTest(&argc, argv);
    const int result = RUN_ALL_TESTS();
#ifdef __SANITIZE_ADDRESS__
    // While Qt still holds what it does not free when it ends: its offscreen screen and pictures' textures.
    __lsan_do_leak_check();
#endif
    return result;
}
