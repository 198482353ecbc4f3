#pragma once

#include "msg-to-json-parser.h"
#include "pty-device.h"
#include "screen-driver.h"
#include "screen-engine.h"
#include "service-objects.h"

#include <QDir>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>
#include <mutex>
#include <optional>

/// Keeps what Qt warns of, on any thread, while it lives. One at a time.
class QtWarnings {
public:
    QtWarnings() {
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            const std::lock_guard lock(mutex);
            if (type != QtDebugMsg && type != QtInfoMsg)
                texts.push_back(text.toStdString());
        });
    }
    ~QtWarnings() { qInstallMessageHandler(nullptr); }

    static std::vector<std::string> take() {
        const std::lock_guard lock(mutex);
        return std::exchange(texts, {});
    }

private:
    static inline std::mutex mutex;
    static inline std::vector<std::string> texts;
};

/// The application's window as a user has it, and a device to plug in. A warning of Qt's fails the test.
class ScreenFixture : public testing::Test {
protected:
    explicit ScreenFixture(const QString &workingDirectory = ".") {
        const QString usual = QDir::currentPath();
        QDir::setCurrent(workingDirectory);
        screens = std::make_unique<ScreenEngine>(objects);
        screens->load();
        QDir::setCurrent(usual);
        window = qobject_cast<QQuickWindow *>(screens->qmlEngine().rootObjects().value(0));
        if (!window || !QTest::qWaitForWindowExposed(window))
            throw std::runtime_error("the window does not show");
        driver.emplace(*window);
        // Made behind the documents' own connections: what is counted, the screens have taken.
        const auto count = [this](auto signal, MsgTypeEnum type) {
            QObject::connect(&objects.usbService, signal, window, [this, type] { ++taken[type]; });
        };
        count(&UsbService::gotConfig, MsgTypeEnum::CONFIG);
        count(&UsbService::gotAiPrior, MsgTypeEnum::AI_PRIOR);
        count(&UsbService::gotConfigK7, MsgTypeEnum::CONFIG_K7);
        count(&UsbService::gotBatteryState, MsgTypeEnum::STATE);
        count(&UsbService::gotScanResult, MsgTypeEnum::SCAN_RESULT);
        count(&UsbService::usbStateChanged, MsgTypeEnum::OK);
    }

    /// Ends as the application does: a device that is connected is told to stop its scan.
    void TearDown() override {
        if (window) {
            QTimer::singleShot(0, window, &QWindow::close);
            EXPECT_EQ(QCoreApplication::exec(), 0);
        }
        EXPECT_FALSE(device && (!device->waitForOpen(false) || device->isScanning()));
        screens.reset();
        EXPECT_THAT(QtWarnings::take(), testing::IsEmpty());
    }

    /// Plugs in a device in place of the one before, which scans only when it is told what.
    void plugIn(ProtoEnum generation) {
        device.reset();
        device.emplace(directory, generation);
        device->setScanPeriod(std::chrono::milliseconds(0));
    }
    /// Presses the USB button until the screens have the device's settings: on a busy machine the device may
    /// answer too late for an attempt.
    void connectByButton() {
        const int known = taken[MsgTypeEnum::CONFIG];
        for (int presses = 0; presses < 50 && (!isConnected() || taken[MsgTypeEnum::CONFIG] == known);
             ++presses) {
            const int seen = taken[MsgTypeEnum::OK];
            click("usb");
            ScreenDriver::waitFor([&] { return taken[MsgTypeEnum::OK] > seen; });
        }
        ASSERT_TRUE(isConnected());
        drainWire();
    }
    void connectTo(ProtoEnum generation) {
        plugIn(generation);
        connectByButton();
    }
    void disconnectByButton() {
        click("usb");
        ASSERT_FALSE(isConnected());
    }
    bool isConnected() const { return objects.usbService.isUsbActive(); }

    /// Clicks the visible control with this word or picture on it.
    void click(const QString &word) {
        ASSERT_TRUE(driver->control(word)) << qPrintable(word);
        driver->click(*driver->control(word));
    }

    /// The texts that reach the connected device because of a gesture.
    std::vector<std::string> sentBy(const std::function<void()> &gesture) {
        device->clearRecord();
        gesture();
        drainWire();
        auto texts = device->requests();
        texts.pop_back();
        return texts;
    }
    /// The texts that set these settings of the connected device ("CONFIG indLedLvl, CONFIG_K7 dispLvl") to a
    /// value in JSON. Each is on the wire twice: the documents' connections to the service are doubled.
    std::vector<std::string> edits(const QString &settings, const QString &value) const {
        std::vector<std::string> texts;
        std::string error;
        for (const QString &setting : settings.split(", ")) {
            const std::string type = setting.section(' ', 0, 0).toStdString();
            auto message = device->settingsOf(type);
            message["type"] = type;
            message[setting.section(' ', 1).toStdString()] = json11::Json::parse(value.toStdString(), error);
            texts.insert(texts.end(), 2,
                         MsgToJsonParser::toJson(Msg::parseJson(json11::Json(message).dump())));
        }
        return texts;
    }

    /// Has the connected device send a message, and waits until the screens have taken it.
    void deviceSays(const std::string &text) {
        const int &count = taken[Msg::parseJson(text)->getType()];
        const int seen = count;
        device->sendText(text + "\n");
        ASSERT_TRUE(ScreenDriver::waitFor([&] { return count > seen; })) << text;
    }

    SerialDirectory directory;
    std::optional<PtyDevice> device;
    ServiceObjects objects{directory.path()};
    QtWarnings warnings;
    std::unique_ptr<ScreenEngine> screens;
    QPointer<QQuickWindow> window;
    std::optional<ScreenDriver> driver;

private:
    /// Waits until the device has all that was sent: the request sent last, which changes nothing on the
    /// screens, has arrived.
    void drainWire() {
        const auto count = device->requests().size();
        objects.usbService.sendGetAiPrior();
        ASSERT_TRUE(ScreenDriver::waitFor([&] {
            const auto types = device->requestTypes();
            return types.size() > count && types.back() == "GET_AI_PRIOR";
        }));
    }

    std::map<MsgTypeEnum, int> taken; // messages on the UI thread; OK stands for a change of the connection
};
