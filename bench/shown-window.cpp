// shown-window [DIR [DESCRIPTOR]]: a window for whoever measures or looks at it from outside. With a folder
// it is the program's, which connects by itself to a detector that has its link there; without one, or with
// an empty name, an empty one that changes its colour as often as a detector scans. A byte to the descriptor
// tells of the first frame.

#include "process-signals.h"
#include "renderer.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>
#include <unistd.h>

namespace {

constexpr const char *EMPTY_WINDOW = "import QtQuick 2.7\n"
                                     "import QtQuick.Controls 2.0\n"
                                     "ApplicationWindow {\n"
                                     "    id: window\n"
                                     "    property bool dark: true\n"
                                     "    width: 800; height: 1000; visible: true\n"
                                     "    color: dark ? 'black' : 'gray'\n"
                                     "    Timer {\n"
                                     "        running: true; repeat: true; interval: 500\n"
                                     "        onTriggered: window.dark = !window.dark\n"
                                     "    }\n"
                                     "}\n";

/// UI thread.
void atFirstFrame(QQmlApplicationEngine &engine, const std::function<void()> &then) {
    auto *once = new QObject(&engine);
    const auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    QObject::connect(window, &QQuickWindow::frameSwapped, once, [window, once, then] {
        QObject::disconnect(window, &QQuickWindow::frameSwapped, once, nullptr);
        then();
    });
}

void tell(int argc, char **argv) {
    if (argc > 2 && ::write(std::atoi(argv[2]), "s", 1) != 1)
        QCoreApplication::exit(1);
}

/// As the program starts, but for the connection.
int showProgram(int argc, char **argv) {
    followDesktop(argc, argv);
    ServiceObjects objects(argv[1]);
    registerTypes();
    const QGuiApplication app(argc, argv);
    introduceProgram();
    const ProcessSignals processSignals;
    ScreenEngine screens(objects);
    screens.load();
    screens.fitToScreen();
    QTimer untilConnected;
    QObject::connect(&untilConnected, &QTimer::timeout, [&] {
        if (objects.usbService.isUsbActive())
            untilConnected.stop();
        else
            objects.usbService.startUsb();
    });
    atFirstFrame(screens.qmlEngine(), [&] {
        tell(argc, argv);
        untilConnected.start(500);
    });
    return QGuiApplication::exec();
}

int showNothing(int argc, char **argv) {
    const QGuiApplication app(argc, argv);
    chooseRenderer();
    QQmlApplicationEngine engine;
    engine.loadData(EMPTY_WINDOW);
    atFirstFrame(engine, [&] { tell(argc, argv); });
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // as in the program
    return argc > 1 && *argv[1] ? showProgram(argc, argv) : showNothing(argc, argv);
}
