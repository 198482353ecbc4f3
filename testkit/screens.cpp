#include "screens.h"

#include <QDir>
#include <QTest>
#include <stdexcept>

Screens::Screens(const QString &workingDirectory) {
    const QString usual = QDir::currentPath();
    QDir::setCurrent(workingDirectory);
    engine->load();
    QDir::setCurrent(usual);
    window = qobject_cast<QQuickWindow *>(engine->qmlEngine().rootObjects().value(0));
    if (!window || !QTest::qWaitForWindowExposed(window))
        throw std::runtime_error("The window does not show.");
    driver.emplace(*window);
    // These connections are made after those of the documents. So a message is counted after the screens have
    // accepted it.
    const auto count = [this](auto signal, int &counter) {
        QObject::connect(&objects.usbService, signal, window, [&counter] { ++counter; });
    };
    count(&UsbService::gotConfig, counts[MsgTypeEnum::CONFIG]);
    count(&UsbService::gotConfigK7, counts[MsgTypeEnum::CONFIG_K7]);
    count(&UsbService::gotAiPrior, counts[MsgTypeEnum::AI_PRIOR]);
    count(&UsbService::gotBatteryState, counts[MsgTypeEnum::STATE]);
    count(&UsbService::gotScanResult, counts[MsgTypeEnum::SCAN_RESULT]);
    count(&UsbService::usbStateChanged, stateChanges);
}

PtyDevice &Screens::plugIn(ProtoEnum generation) {
    device.reset();
    device.emplace(directory, generation).setScanPeriod(std::chrono::milliseconds(0));
    return *device;
}

void Screens::connect() {
    const int known = taken(MsgTypeEnum::CONFIG);
    for (int presses = 0; !isConnected() || taken(MsgTypeEnum::CONFIG) == known; ++presses) {
        if (presses == 50)
            throw std::runtime_error("The device is not found.");
        const int seen = stateChanges;
        click("usb");
        ScreenDriver::waitFor([&] { return stateChanges > seen; });
    }
}

void Screens::click(const QString &word, int times) {
    for (int time = 0; time < times; ++time) {
        if (!driver->control(word))
            throw std::runtime_error("Not on the screen: " + word.toStdString());
        driver->click(*driver->control(word));
    }
}

void Screens::choose(const QString &word) {
    const QQuickItem *entry = driver->find("Button", word, driver->find("ListButtonDialog"));
    driver->click(entry ? *entry : *driver->control(word));
    if (!ScreenDriver::waitFor([this] { return !driver->find("ListButtonDialog"); }))
        throw std::runtime_error("The dialog stays open.");
}
