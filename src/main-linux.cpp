#include "process-signals.h"
#include "screen-engine.h"
#include "service-objects.h"
#include "usb-interface.h"

#include <QGuiApplication>

int main(int argc, char **argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);

    // The direct USB link is never opened, so nothing passes through it: the service's own connector finds
    // the device as a serial line.
    UsbInterface usbInterface;
    [[maybe_unused]] const auto transaction = std::make_shared<std::function<std::shared_ptr<Msg>(
        std::shared_ptr<Msg>, std::chrono::milliseconds, std::vector<MsgTypeEnum>)>>(
        [&usbInterface](const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout,
                        const std::vector<MsgTypeEnum> &expected) {
            return usbInterface.transaction(msg, timeout, expected);
        });

    ServiceObjects objects;
    const auto listener = std::make_shared<std::function<void(std::shared_ptr<Msg>)>>(
        [&objects](const std::shared_ptr<Msg> &msg) { objects.usbService.acceptMsg(msg); });
    usbInterface.addListener(listener);
    registerTypes();

    QGuiApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("com.kelvane"));
    QCoreApplication::setApplicationName(QStringLiteral("UavVesper"));
    const ProcessSignals processSignals;

    ScreenEngine screens(objects);
    // The documents' own handlers run when the engine ends, after the event loop.
    QObject::connect(&app, &QCoreApplication::aboutToQuit, [&objects] { objects.usbService.shutDown(); });
    screens.load();
    return QGuiApplication::exec();
}
