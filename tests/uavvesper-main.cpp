#include "plots.h"
#include "screen-driver.h"
#include "screen-engine.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <cstdio>
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

/// Explains the language of a failing row below it.
class Legends : public testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult &part) override {
        const QString text = part.message();
        if (part.failed() &&
            text.contains(QRegularExpression("#[0-9a-f]{6,8}(/#| r[0-9]| [0-9.]+x[0-9])|' #")))
            std::puts(ScreenDriver::LOOK_LEGEND);
        if (part.failed() && text.contains(QRegularExpression("#[0-9a-f]{6,8}:\\s")))
            std::puts(SHAPES_LEGEND);
    }
};

/// The screens are drawn without a display and without a graphics card, as on a server.
int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication app(argc, argv);
    registerTypes();
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new Legends);
    const int result = RUN_ALL_TESTS();
#ifdef __SANITIZE_ADDRESS__
    // Checks while Qt still refers to memory that it does not free at its end: the offscreen screen and
    // textures.
    __lsan_do_leak_check();
#endif
    return result;
}
