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

/// Of a screen, up to which a band is swiped and a drawer scrolls at 55 frames a second or more on two cores
/// without a graphics card: 5120 x 2880 and somewhat more.
constexpr qint64 MOST_PIXELS = 16'000'000;

bool isHuge(const QScreen *screen) {
    const QSizeF pixels = QSizeF(screen->size()) * screen->devicePixelRatio();
    return pixels.width() * pixels.height() > MOST_PIXELS;
}

/// The name of what OpenGL draws with; empty where it does not work.
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

/// Whether the user has named a renderer or the way to OpenGL. An empty name stands for Qt's own choice.
bool isChosenByUser() {
    const char *const names[] = {"QT_QUICK_BACKEND", "QMLSCENE_DEVICE", "QSG_RHI", "QSG_RHI_BACKEND"};
    if (std::any_of(std::begin(names), std::end(names), qEnvironmentVariableIsSet))
        return true;
    return !qEnvironmentVariableIsEmpty("QT_XCB_GL_INTEGRATION") &&
           qgetenv("QT_XCB_GL_INTEGRATION") != "none" && QGuiApplication::platformName() == "xcb";
}

/// Whether what the user has named ends in OpenGL.
bool isOpenGLWanted() {
    const QByteArray backend = qgetenv("QT_QUICK_BACKEND") + qgetenv("QMLSCENE_DEVICE");
    const QByteArray api = qgetenv("QSG_RHI_BACKEND");
    return (backend.isEmpty() || backend == "rhi" || backend == "opengl") &&
           (api.isEmpty() || api == "gl" || api == "opengl");
}

} // namespace

/// Without OpenGL, unless the user says otherwise: a picture that changes twice a second then costs a quarter
/// of the processor time and two fifths of the memory, swipes as smoothly, and needs no driver. Only a huge
/// screen is left to a graphics card.
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
