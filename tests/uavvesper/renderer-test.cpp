#include "renderer.h"

#include "testing.h"

#include <QQuickWindow>

/// In a process of its own, before it has a window. The platform is "offscreen".
TEST(Renderer, DrawsWithoutOpenGLUnlessTheUserNamesAnotherRenderer) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    struct {
        const char *name, *value; // in the environment
        const char *renderer;
    } const cases[] = {{"QT_QUICK_BACKEND", "", "as named"},
                       {"QT_QUICK_BACKEND", "softwarecontext", "as named"},
                       {"QMLSCENE_DEVICE", "openvg", "as named"},
                       {"QSG_RHI", "1", "as named"},
                       {"QSG_RHI_BACKEND", "vulkan", "as named"},
                       {"QT_SCALE_FACTOR", "1", "software"},
                       {"QT_XCB_GL_INTEGRATION", "xcb_egl", "software"}};
    const auto choose = [&] {
        int failed = 0;
        for (const auto &[name, value, renderer] : cases) {
            qunsetenv("QT_QUICK_BACKEND");
            qputenv(name, value);
            QQuickWindow::setSceneGraphBackend("as named");
            chooseRenderer();
            const QString chosen = QQuickWindow::sceneGraphBackend();
            if (chosen != renderer)
                failed = std::fprintf(stderr, "%s=%s: %s\n", name, value, qPrintable(chosen));
            qunsetenv(name);
        }
        std::_Exit(failed != 0);
    };
    EXPECT_EXIT(choose(), ExitedWithCode(0), "");
}
