#include "cdc-acm-line.h"
#include "keyboard.h"
#include "process-signals.h"
#include "screen-fixture.h"

#include <QQmlContext>
#include <QScreen>
#include <QTemporaryDir>
#include <csignal>

/// The built program as a user starts it. The platform writes each picture of the window into the working
/// directory and says so.
TEST(Program, ShowsItsWindowInTheLanguageOfTheDirectoryAndEndsWhenToldTo) {
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        std::signal(number, SIG_DFL); // whatever the tests were started with
    struct {
        const char *command; // in front of the program
        int signal;
        int ignored;
        int dpi;
        double scale;
        bool russian;
    } const starts[] = {{"env", SIGINT, 0, 120, 1.25, false},
                        {"env", SIGHUP, 0, 192, 2, false},
                        {"setsid", SIGTERM, 0, 100, 1, false},
                        {"nohup", SIGTERM, SIGHUP, 0, 1, true}};
    QImage pictures[2];
    for (const auto &[command, signal, ignored, dpi, scale, russian] : starts) {
        SCOPED_TRACE(command);
        const QTemporaryDir directory;
        const Keyboard keyboard;
        if (russian)
            QFile::copy(RUSSIAN_DIR "/UavVesper-ru.qm", directory.filePath("UavVesper-ru.qm"));
        QProcess program;
        program.setWorkingDirectory(directory.path());
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.start("env",
                      {"XDG_CACHE_HOME=" + directory.path(), "QT_FONT_DPI=" + QString::number(dpi),
                       "QT_DEBUG_BACKINGSTORE=1",
                       "QT_QUICK_BACKEND=", "QT_QPA_GENERIC_PLUGINS=evdevkeyboard:" + keyboard.path,
                       "ASAN_OPTIONS=detect_leaks=0", command, PROGRAM, "-platform", "minimal:enable_fonts"});
        QByteArray output;
        const auto writes = [&](const char *text) {
            while (!output.contains(text) && program.waitForReadyRead(20000))
                output += program.readAll();
            return output.contains(text);
        };
        EXPECT_TRUE(writes("OpenGL, which the environment asks for, does not work here"));
        EXPECT_TRUE(writes("output0000.png"));
        if (russian) {
            keyboard.press(KEY_TAB); // to the help: twelve looks at it start the simulator
            for (int look = 0; look < 12; ++look) {
                keyboard.press(KEY_ENTER);
                keyboard.press(KEY_ESC); // back from the drawer to its button
            }
            EXPECT_TRUE(writes("starting scan\n")) << "what is logged into a pipe, at once";
        }
        QFile status(QString("/proc/%1/status").arg(program.processId()));
        EXPECT_TRUE(status.open(QIODevice::ReadOnly)) << output.data();
        const auto mask = QString(status.readAll()).section("SigIgn:\t", 1).left(16).toULong(nullptr, 16);
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            EXPECT_EQ(mask >> (number - 1) & 1, number == ignored) << number;
        EXPECT_TRUE(mask >> (SIGPIPE - 1) & 1);
        ::kill(static_cast<pid_t>(program.processId()), signal);
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        pictures[russian] = QImage(directory.filePath("output0000.png"));
        EXPECT_EQ(pictures[russian].size(), QSize(800, 1000) * scale) << dpi;
        EXPECT_TRUE(QFile::exists(directory.filePath("com.kelvane/UavVesper")));
    }
    EXPECT_FALSE(pictures[0] == pictures[1]);
}

TEST(Program, EndsAtOnceWhenAskedAgainASecondLater) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto asked = [](std::chrono::milliseconds later) {
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            std::signal(number, SIG_DFL); // whatever the tests were started with
        const ProcessSignals processSignals;
        ::raise(SIGINT);
        std::this_thread::sleep_for(later);
        ::raise(SIGHUP);
        ::raise(SIGTERM);
        std::_Exit(QCoreApplication::exec());
    };
    EXPECT_EXIT(asked(50ms), ExitedWithCode(0), "");
    EXPECT_EXIT(asked(1001ms), KilledBySignal(SIGTERM), "");
}

/// The program itself on a small display that nobody sees. Another run of this test takes a picture of it.
TEST(Program, FitsItsWindowIntoTheScreensFreeArea) {
    if (QGuiApplication::platformName() == "offscreen") {
        EXPECT_EQ(QProcess::execute("xvfb-run", {"-a", "-s", "-screen 0 900x600x24",
                                                 QCoreApplication::applicationFilePath(), "-platform", "xcb",
                                                 "--gtest_filter=Program.Fits*"}),
                  0);
    } else {
        QProcess program;
        program.start(PROGRAM, {"-platform", "xcb"});
        const auto lastDeadRow = [] { // by the colour of what is disabled: that of the settings, if it shows
            const QImage picture = QGuiApplication::primaryScreen()->grabWindow(0).toImage();
            int i = picture.width() * picture.height();
            while (i-- > 0 &&
                   picture.pixelColor(i % picture.width(), i / picture.width()) != QColor("#808080"))
                continue;
            return i / picture.width();
        };
        int row = 0;
        EXPECT_TRUE(ScreenDriver::waitFor([&] { return (row = lastDeadRow()) > 560 && row < 590; })) << row;
        program.terminate();
        EXPECT_TRUE(program.waitForFinished());
        introduceProgram();
        EXPECT_FALSE(QGuiApplication::windowIcon().pixmap(48).isNull());
        EXPECT_EQ(QGuiApplication::desktopFileName(), "com.kelvane.UavVesper") << "as its entry is named";
        return;
    }
    struct {
        QSize freeArea;
        QMargins frame;
        QSize size;
    } const screens[] = {{{1920, 1080}, {0, 24, 0, 0}, {800, 1000}},
                         {{1366, 728}, {}, {800, 728}},
                         {{1366, 728}, {2, 24, 3, 4}, {800, 700}},
                         {{683, 384}, {2, 0, 3, 0}, {678, 400}},
                         {{240, 320}, {0, 24, 0, 0}, {300, 400}}};
    for (const auto &[freeArea, frame, size] : screens)
        EXPECT_EQ(fittingSize({800, 1000}, {300, 400}, freeArea, frame), size) << freeArea.width();
}

TEST(Program, EndsWithAnErrorWithoutItsRootDocument) {
    const QtWarnings warnings;
    ServiceObjects objects;
    ScreenEngine screens(objects);
    screens.load(QUrl("qrc:/qml/damaged.qml"));
    QTimer::singleShot(10000, qApp, &QCoreApplication::quit);
    EXPECT_EQ(QCoreApplication::exec(), -1);
    EXPECT_THAT(QtWarnings::take(), Not(IsEmpty()));
    QTimer::singleShot(0, &screens.qmlEngine(), &QQmlEngine::quit); // as a document would
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

class MainWindowTest : public ScreenFixture {};

TEST_F(MainWindowTest, DividesItselfInEverySize) {
    EXPECT_EQ(window->title(), "Kelvane 1.1");
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME")) << "a viewer would inherit it";
    EXPECT_EQ(window->objectName(), "applicationWindow");
    EXPECT_EQ(window->minimumSize(), QSize(300, 400));
    EXPECT_EQ(driver->find("MainPage")->objectName(), "mainPage");
    click("info");
    QSignalSpy changes(&objects.themeData, SIGNAL(sizeChanged()));
    const std::pair<QSize, const char *> sizes[] = {
        {{800, 1000}, "800x667+0+0 800x71.5+0+667 800x71.5+0+738.5 800x190+0+810 720x667+40+0 0"},
        {{600, 1000}, "600x745+0+0 600x54.5+0+745 600x54.5+0+799.5 600x146+0+854 540x745+30+0 1"},
        {{600, 700}, "600x454+0+0 600x53+0+454 600x53+0+507 600x140+0+560 540x454+30+0 2"},
        {{500, 800}, "500x587+0+0 500x45.5+0+587 500x45.5+0+632.5 500x122+0+678 450x587+25+0 4"}};
    for (const auto &[size, places] : sizes) {
        driver->resize(size);
        std::string found;
        for (const char *part :
             {"MainPage", "LegendLayout", "ButtonLayout", "SettingsLayout", "HelpFragment"})
            found += ScreenDriver::place(*driver->find(part)) + ' ';
        EXPECT_EQ(found + std::to_string(changes.count()), places);
        EXPECT_EQ(driver->picture().pixelColor(5, 5), QColor("#81909f"));
    }
}

/// Whatever is drawn at one size, it is so at another, and painted as if it had begun there.
TEST_F(MainWindowTest, GrowsInAllItsParts) {
    connectTo(ProtoEnum::K7);
    click("info");
    const auto sizes = [this] {
        driver->picture();
        std::map<const QQuickItem *, std::vector<int>> found;
        for (const QQuickItem *item : driver->findAll({}))
            for (const char *name : {"textSize", "lineWidth", "font"})
                if (const QVariant size = item->property(name); size.isValid())
                    found[item].push_back(
                        size.userType() == QMetaType::QFont ? size.value<QFont>().pointSize() : size.toInt());
        return found;
    };
    driver->resize({600, 800});
    const auto small = sizes();
    driver->resize({1200, 1600});
    auto large = sizes();
    EXPECT_GT(small.size(), 40U);
    for (const auto &[item, size] : small) {
        ASSERT_EQ(large[item].size(), size.size()) << driver->look(*item);
        for (std::size_t i = 0; i < size.size(); ++i)
            EXPECT_NEAR(large[item][i], 2 * size[i], 1.5) << driver->look(*item);
    }
    click("info");
    const QImage grown = driver->picture();
    for (QQuickItem *item : driver->findAll("QQuickPaintedItem"))
        item->update();
    for (QQuickItem *plot : driver->findAll("LayeredPlot"))
        QMetaObject::invokeMethod(plot, "sizeChanged");
    EXPECT_EQ(driver->picture(), grown);
}

TEST_F(MainWindowTest, AcceptsEachMessageTwiceAndEndsTheConnectionWithItself) {
    connectTo(ProtoEnum::K7);
    const std::tuple<const char *, const char *, MsgTypeEnum> handlers[] = {
        {"confHndlr", SIGNAL(protoChanged()), MsgTypeEnum::CONFIG},
        {"confK7Hndlr", SIGNAL(btEnChanged()), MsgTypeEnum::CONFIG_K7},
        {"aiPriorHndlr", SIGNAL(aiChanged()), MsgTypeEnum::AI_PRIOR}};
    for (const auto &[name, signal, type] : handlers) {
        QSignalSpy accepted(engine->qmlEngine().rootContext()->contextProperty(name).value<QObject *>(),
                            signal);
        const int before = taken(type);
        deviceSays(R"({"type":")" + MsgType(type).name() + "\"}");
        EXPECT_EQ(accepted.count(), 2 * (taken(type) - before)) << name;
    }
    EXPECT_TRUE(device->isScanning());
    engine.reset();
    EXPECT_TRUE(device->waitForOpen(false) && !device->isScanning());
}

/// What a device that has hung does not take is more than the line holds. That it has gone shows only in what
/// does not come.
TEST_F(MainWindowTest, GoesOnWithADeviceThatHasHungAndGone) {
    plugIn(ProtoEnum::K7);
    CdcAcmLine line(device->terminal());
    connect();
    line.hold();
    device->clearRecord();
    click("Vibro", 3);
    EXPECT_THAT(device->requests(), IsEmpty());
    device->unplug();
    click("87%");
    EXPECT_TRUE(isConnected());
    disconnect();
    EXPECT_FALSE(isConnected());
}

/// Registered first, so it is called last.
static const PtyDevice *deviceAtExit = nullptr;
static const int registered = std::atexit([] {
    if (deviceAtExit)
        std::_Exit(deviceAtExit->isScanning());
});

TEST_F(MainWindowTest, StopsTheScanWhenTheDisplayGoesAwayAndQtCallsExit) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto loseDisplay = [this] {
        connectTo(ProtoEnum::K7);
        deviceAtExit = &*device;
        device->isScanning() ? std::exit(2) : std::_Exit(3);
    };
    EXPECT_EXIT(loseDisplay(), ExitedWithCode(0), "") << registered;
}

TEST_F(MainWindowTest, EndsInGoodOrderOnASignalInEveryState) {
    plugIn(ProtoEnum::K7);
    const std::pair<const char *, std::function<void()>> states[] = {
        {"idle", [] {}},
        {"connecting", [this] { click("usb"); }},
        {"connected", [this] { connect(); }},
        {"hung", [this] { connect(), device->setManner(PtyDevice::Manner::DEAF); }},
        {"test mode", [this] { click("info", 12); }}};
    for (const auto &[name, reach] : states) {
        SCOPED_TRACE(name);
        const ProcessSignals processSignals;
        reach();
        ::raise(SIGTERM);
        QTimer::singleShot(60000, qApp, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        EXPECT_FALSE(isConnected());
        EXPECT_TRUE(device->waitForOpen(false));
        EXPECT_TRUE(!device->isScanning() || name == std::string("hung"));
        device->setManner(PtyDevice::Manner::OBLIGING);
        device->unplug(); // as it is when it is switched on
        device->plugIn();
        window->show(); // Qt 6 has closed it
    }
}
