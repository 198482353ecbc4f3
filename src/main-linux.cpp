#include "process-signals.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QGuiApplication>

int main(int argc, char **argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    ServiceObjects objects;
    registerTypes();
    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("com.kelvane"));
    QCoreApplication::setApplicationName(QStringLiteral("UavVesper"));
    const ProcessSignals processSignals;
    ScreenEngine screens(objects);
    screens.load();
    return QGuiApplication::exec();
}
