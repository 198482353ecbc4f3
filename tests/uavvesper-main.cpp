#include "screen-engine.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

// Qt's font library keeps its settings by pointers that the leak checker does not recognise. Newer message
// buses keep a text of their own.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libfontconfig\nleak:libdbus-1\n";
}
#endif

#ifdef __SANITIZE_THREAD__
// Qt is built without the sanitizer. So the sanitizer sees how the queue of posted signals moves and frees
// its memory, but not the mutex that guards it. Only Qt's own calls are suppressed; our code is still
// checked.
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
    // Checks while Qt still refers to memory that it does not free at its end: the offscreen screen and
    // textures.
    __lsan_do_leak_check();
#endif
    return result;
}
