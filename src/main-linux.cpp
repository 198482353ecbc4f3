#include "process-signals.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QGuiApplication>
#include <QIcon>
#include <cstdio>

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines of the log show at once, also in a file or a pipe
    followDesktopScale(argc, argv);
    ServiceObjects objects;
    registerTypes();
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("com.kelvane"));
    QCoreApplication::setApplicationName(QStringLiteral("UavVesper"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kelvane.UavVesper"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/program")));
    const ProcessSignals processSignals;
    ScreenEngine screens(objects);
    screens.load();
    screens.fitToScreen();
    return QGuiApplication::exec();
}
