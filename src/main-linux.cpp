#include "process-signals.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // each log line is written at once, also to a file or a pipe
    followDesktop(argc, argv);
    ServiceObjects objects;
    registerTypes();
    QGuiApplication app(argc, argv);
    introduceProgram();
    const ProcessSignals processSignals;
    ScreenEngine screens(objects);
    screens.load();
    screens.fitToScreen();
    return QGuiApplication::exec();
}
