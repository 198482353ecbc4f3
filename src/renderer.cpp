#include "renderer.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QScreen>
#include <algorithm>
#include <cstdio>

namespace {

/// The largest screen, in pixels, that needs no graphics card: 5120 x 2880 and somewhat more. Up to this size
/// swipes and scrolling reach 55 frames a second on two cores.
constexpr qint64 MOST_PIXELS = 16'000'000;

bool isHuge(const QScreen *screen) {
    const QSizeF pixels = QSizeF(screen->size()) * screen->devicePixelRatio();
    return pixels.width() * pixels.height() > MOST_PIXELS;
}

/// The name of OpenGL's renderer; empty if OpenGL does not work.
QByteArray openGLRenderer() {
    QOpenGLContext context;
    QOffscreenSurface surface;
    if (!context.create())
        return {};
    surface.setFormat(context.format());
    surface.create();
    if (!context.makeCurrent(&surface))
        return {};
    const auto *name = context.functions()->glGetString(GL_RENDERER);
    return reinterpret_cast<const char *>(name);
}

bool isGraphicsCard(const QByteArray &openGL) {
    const QByteArray onProcessor[] = {"llvmpipe", "softpipe", "swrast", "Software"};
    return !openGL.isEmpty() && std::none_of(std::begin(onProcessor), std::end(onProcessor),
                                             [&](const QByteArray &name) { return openGL.contains(name); });
}

/// Whether the user's environment names a renderer or a way to OpenGL. An empty QT_XCB_GL_INTEGRATION means
/// Qt's own choice.
bool isChosenByUser() {
    const char *const names[] = {"QT_QUICK_BACKEND", "QMLSCENE_DEVICE", "QSG_RHI", "QSG_RHI_BACKEND"};
    if (std::any_of(std::begin(names), std::end(names), qEnvironmentVariableIsSet))
        return true;
    return !qEnvironmentVariableIsEmpty("QT_XCB_GL_INTEGRATION") &&
           qgetenv("QT_XCB_GL_INTEGRATION") != "none" && QGuiApplication::platformName() == "xcb";
}

/// Whether the renderer that the user names uses OpenGL.
bool isOpenGLWanted() {
    const QByteArray backend = qgetenv("QT_QUICK_BACKEND") + qgetenv("QMLSCENE_DEVICE");
    const QByteArray api = qgetenv("QSG_RHI_BACKEND");
    return (backend.isEmpty() || backend == "rhi" || backend == "opengl") &&
           (api.isEmpty() || api == "gl" || api == "opengl");
}

} // namespace

/// Draws without OpenGL, unless the user's environment asks for it. A picture that changes twice a second
/// then costs a quarter of the processor time and two fifths of the memory. Swipes are as smooth, and no
/// driver is needed. Only a huge screen uses a graphics card.
void chooseRenderer() {
    if (isChosenByUser()) {
        const QString platform = QGuiApplication::platformName();
        if (!isOpenGLWanted() || platform == "offscreen" || !openGLRenderer().isEmpty())
            return;
        std::fputs("OpenGL, which the environment asks for, does not work here: drawing without it.\n",
                   stderr);
    } else {
        const auto screens = QGuiApplication::screens();
        if (std::any_of(screens.begin(), screens.end(), isHuge) && isGraphicsCard(openGLRenderer()))
            return;
    }
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}
