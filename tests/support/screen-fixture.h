#pragma once

#include "messages.h"
#include "screens.h"

#include <QAccessible>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// Collects Qt's warnings from any thread while it lives. At most one object at a time.
class QtWarnings {
public:
    QtWarnings() {
        qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
            const std::lock_guard lock(mutex);
            if (type != QtDebugMsg && type != QtInfoMsg)
                warnings.push_back(text.toStdString());
        });
    }
    ~QtWarnings() { qInstallMessageHandler(nullptr); }

    static std::vector<std::string> take() {
        const std::lock_guard lock(mutex);
        return std::exchange(warnings, {});
    }

private:
    static inline std::mutex mutex;
    static inline std::vector<std::string> warnings;
};

/// The application's screens as a user has them. A warning of Qt fails the test.
class ScreenFixture : public testing::Test, protected QtWarnings, protected Screens {
protected:
    using Screens::Screens;

    /// Ends like the application, and checks that a connected device got the request to stop its scan.
    void TearDown() override {
        if (window) {
            QTimer::singleShot(0, window, &QWindow::close);
            EXPECT_EQ(QCoreApplication::exec(), 0);
        }
        EXPECT_FALSE(device && (!device->waitForOpen(false) || device->isScanning()));
        engine.reset();
        EXPECT_THAT(QtWarnings::take(), IsEmpty());
    }

    /// The texts that the connected device gets because of a gesture.
    std::vector<std::string> sentBy(const std::function<void()> &gesture) {
        drainWire();
        device->clearRecord();
        gesture();
        drainWire();
        auto texts = device->requests();
        texts.pop_back();
        return texts;
    }
    /// The texts that set these settings of the connected device ("CONFIG indLedLvl, CONFIG_K7 dispLvl") to a
    /// value in JSON. Each text is sent twice, because the documents make each connection to the service
    /// twice.
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
    /// Makes the connected device send a message, waits until the screens have accepted it, and checks that
    /// nothing is sent back.
    void deviceSays(const std::string &text) {
        const int &count = taken(Msg::parseJson(text)->getType());
        const auto sent = sentBy([&, seen = count] {
            device->sendText(text + "\n");
            EXPECT_TRUE(ScreenDriver::waitFor([&] { return count > seen; })) << text;
        });
        EXPECT_THAT(sent, IsEmpty()) << text;
    }

private:
    /// Waits until the device has everything that was sent. It sends a last request, which changes nothing on
    /// the screens, and waits for its arrival.
    void drainWire() {
        const auto count = device->requests().size();
        objects.usbService.sendGetAiPrior();
        ASSERT_TRUE(ScreenDriver::waitFor([&] {
            const auto types = device->requestTypes();
            return types.size() > count && types.back() == "GET_AI_PRIOR";
        }));
    }
};
