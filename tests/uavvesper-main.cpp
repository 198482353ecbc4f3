#include "screen-engine.h"

#include <QGuiApplication>
#include <gtest/gtest.h>
#include <memory>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>

// Qt's software scene graph keeps the pictures of windows that are gone, and the font library that it loads
// keeps its settings: their own code, nothing of ours to free.
extern "C" const char *__lsan_default_suppressions() {
    return "leak:libQt5Gui\nleak:libQt5Quick\nleak:libfontconfig\n";
}
#endif

/// The application object. Qt's offscreen platform never frees the screen that it makes in here, so the leak
/// checker is not to look at what this call allocates.
static std::unique_ptr<QGuiApplication> makeApplication(int &argc, char **argv) {
#ifdef __SANITIZE_ADDRESS__
    const __lsan::ScopedDisabler disabler;
#endif
    return std::make_unique<QGuiApplication>(argc, argv);
}

/// The screens are drawn without a display and without a graphics card, as on a server.
int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const auto app = makeApplication(argc, argv);
    registerTypes();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
