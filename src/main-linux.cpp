#include "process-signals.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QGuiApplication>
#include <cstdio>

int main(int argc, char **argv) {
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines of the log show at once, also in a file or a pipe
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // Words have their places in pixels, so a larger text of the desktop enlarges the window as a whole.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    ServiceObjects objects;
    registerTypes();
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("com.kelvane"));
    QCoreApplication::setApplicationName(QStringLiteral("UavVesper"));
    const ProcessSignals processSignals;
    ScreenEngine screens(objects);
    screens.load();
    screens.fitToScreen();
    return QGuiApplication::exec();
}
