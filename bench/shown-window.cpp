// shown-window [DIR [DESCRIPTOR]]: shows a window that another process measures or takes a picture of. With
// a folder it is the program's window. The program then connects by itself to a detector that has its link in
// the folder. Without a folder, or with an empty name, it is an empty window that changes its colour as often
// as a detector scans. After the first frame a byte is written to the descriptor.

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

/// Calls `then` once, on the UI thread.
void atFirstFrame(QQmlApplicationEngine &engine, const std::function<void()> &then) {
    auto *once = new QObject(&engine);
    const auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    QObject::connect(window, &QQuickWindow::frameSwapped, once, [window, once, then] {
        QObject::disconnect(window, &QQuickWindow::frameSwapped, once, nullptr);
        then();
    });
}

void reportFrame(int argc, char **argv) {
    if (argc > 2 && ::write(std::atoi(argv[2]), "s", 1) != 1)
        QCoreApplication::exit(1);
}

/// Starts like the program, and connects by itself.
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
        reportFrame(argc, argv);
        untilConnected.start(500);
    });
    return QGuiApplication::exec();
}

int showNothing(int argc, char **argv) {
    const QGuiApplication app(argc, argv);
    chooseRenderer();
    QQmlApplicationEngine engine;
    engine.loadData(EMPTY_WINDOW);
    atFirstFrame(engine, [&] { reportFrame(argc, argv); });
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // as in the program
    return argc > 1 && *argv[1] ? showProgram(argc, argv) : showNothing(argc, argv);
}
