#include "renderer.h"

#include <QQuickWindow>
#include <gtest/gtest.h>

/// In a process of its own, before it has a window. The platform is "offscreen".
TEST(Renderer, DrawsWithoutOpenGLUnlessTheUserNamesAnotherRenderer) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto choose = [] {
        const std::pair<const char *, const char *> chosenByUser[] = {{"QT_QUICK_BACKEND", ""},
                                                                      {"QT_QUICK_BACKEND", "softwarecontext"},
                                                                      {"QMLSCENE_DEVICE", "openvg"},
                                                                      {"QSG_RHI", "1"},
                                                                      {"QSG_RHI_BACKEND", "vulkan"},
                                                                      {"QT_SCALE_FACTOR", "1"},
                                                                      {"QT_XCB_GL_INTEGRATION", "xcb_egl"}};
        for (const auto &[name, value] : chosenByUser) {
            qunsetenv("QT_QUICK_BACKEND");
            qputenv(name, value);
            QQuickWindow::setSceneGraphBackend("as named");
            chooseRenderer();
            std::fprintf(stderr, "%s: %s|", name, qPrintable(QQuickWindow::sceneGraphBackend()));
            qunsetenv(name);
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(choose(), testing::ExitedWithCode(0),
                "QT_QUICK_BACKEND: as named\\|QT_QUICK_BACKEND: as named\\|QMLSCENE_DEVICE: as named\\|"
                "QSG_RHI: as named\\|QSG_RHI_BACKEND: as named\\|QT_SCALE_FACTOR: "
                "software\\|QT_XCB_GL_INTEGRATION: software\\|");
}
