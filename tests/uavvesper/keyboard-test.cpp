#include "screen-fixture.h"

/// The screens as someone has them who has no mouse. What a screen reader finds and does there is tested over
/// its bus.
class KeyboardTest : public ScreenFixture {
protected:
    void open() {
        connectTo(ProtoEnum::K7);
        deviceSays(config);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    void press(Qt::Key key) { QTest::keyClick(window, key); }
    /// A key that is down and repeats itself.
    void hold(Qt::Key key, int repeats) {
        for (int step = 0; step <= repeats; ++step) {
            QKeyEvent down(QEvent::KeyPress, key, {}, {}, step > 0),
                up(QEvent::KeyRelease, key, {}, {}, true);
            QCoreApplication::sendEvent(window, &down);
            if (step < repeats)
                QCoreApplication::sendEvent(window, &up);
        }
    }
    std::string name() const {
        const auto *reader = QAccessible::queryAccessibleInterface(window->activeFocusItem());
        return reader ? reader->text(QAccessible::Name).toStdString() : "none";
    }
    /// Everything that a key goes to, from the one after the focus until it is there again.
    std::string walk(Qt::Key key) {
        press(key);
        const QQuickItem *first = window->activeFocusItem();
        std::string names;
        for (int steps = 0; steps < 60 && (steps == 0 || window->activeFocusItem() != first); ++steps) {
            names += name() + '|';
            press(key);
        }
        return names;
    }
    /// Walks to the first control with a name after one of another.
    void walkTo(const std::string &wanted, const std::string &after = {}) {
        for (const std::string &each : {after, wanted})
            for (int steps = 0; !each.empty() && name() != each && steps < 60; ++steps)
                press(Qt::Key_Tab);
        EXPECT_EQ(name(), wanted);
    }
    std::string views() const {
        ScreenDriver::waitFor([this] { return driver->findAll("LayeredPlot").size() == 4; });
        std::string views;
        for (const QQuickItem *view : driver->findAll("LayeredPlot"))
            views += view->metaObject()->className()[0];
        return views;
    }

    static constexpr auto config =
        R"({"type":"CONFIG","proto":"K7","mode":"BASE","ranges":["STD_1200","EXT_2400"],"indSnd":true,"indSndLvl":99})";
};

TEST_F(KeyboardTest, TabWalksEveryControlInReadingOrder) {
    EXPECT_EQ(walk(Qt::Key_Tab), "Information|Connect|");
    open();
    const std::string bands = "Bars 1.2|Bars 2.4|Bars 4.9|Bars 5.8|";
    const std::string drawer = "Scan mode|AI mode|Voice alarm|Alarm level|Sound volume|Headphones volume|"
                               "Headphones output|Sound|Vibro|Brightness|Display timeout|";
    const std::string menu = "Battery 87%|Mask|Fabric settings|Settings|Information|Disconnect|"
                             "1.2|2.4+|4.9|5.8|Sound|Vibro|Wi-Fi|Dig|Sens: High|AI: Default|";
    walkTo("AI: Default");
    EXPECT_EQ(walk(Qt::Key_Tab), bands + menu);
    click("cfg");
    walkTo("AI: Default");
    EXPECT_EQ(walk(Qt::Key_Tab), drawer + menu) << "bands under the drawer are left out";
    driver->resize({400, 500});
    for (const char *title : {"Display timeout", "Scan mode"}) {
        walkTo(title, "Settings");
        EXPECT_TRUE(ScreenDriver::isInView(*window->activeFocusItem(), *driver->find("DrawerFrame")));
    }
    press(Qt::Key_Space);
    EXPECT_EQ(name(), "Standard") << "the current entry";
    EXPECT_EQ(walk(Qt::Key_Tab), "Automatic|Continuous|Efficient|Standard|");
    EXPECT_EQ(walk(Qt::Key_Backtab), "Standard|Efficient|Continuous|Automatic|");
    press(Qt::Key_Escape);
    EXPECT_EQ(name(), "Scan mode");
    click("info");
    EXPECT_EQ(name(), "Settings") << "what has closed has no keys";
    walkTo("Bars 1.2");
    press(Qt::Key_Backtab);
    EXPECT_EQ(name(), "AI: Default");
}

TEST_F(KeyboardTest, PressesAsAClickDoes) {
    open();
    click("cfg");
    const auto sent = [&](const QString &control, const std::function<void()> &gesture) {
        for (const char *text :
             {config, R"({"type":"CONFIG_K7","voiceEn":true})", R"({"type":"AI_PRIOR","aiPrior":"FIELD"})",
              R"({"type":"SCAN_RESULT","mask":false})"})
            deviceSays(text);
        walkTo(control.section('/', 1).toStdString(), control.section('/', 0, 0).toStdString());
        // What was answered in 5 ms is read back, which is a matter of the machine's pace.
        auto texts = sentBy(gesture);
        const auto isReadBack = [](const std::string &text) {
            return std::regex_search(text, std::regex("\"GET_(CONFIG|AI)"));
        };
        texts.erase(std::remove_if(texts.begin(), texts.end(), isReadBack), texts.end());
        return texts;
    };
    const Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
    int presses = 0;
    for (const char *control : {"Bars 1.2/Voice alarm", "Bars 1.2/Vibro", "/Battery 87%", "/Mask",
                                "/Fabric settings", "Settings/1.2", "Settings/2.4+", "Settings/Sound",
                                "Settings/Vibro", "Settings/Wi-Fi", "Settings/Dig", "Settings/Sens: High"}) {
        const auto byClick = sent(control, [this] { driver->click(*window->activeFocusItem()); });
        EXPECT_THAT(byClick, Not(IsEmpty())) << control;
        EXPECT_EQ(sent(control, [&] { press(keys[++presses % 3]); }), byClick) << control;
    }
    walkTo("Vibro", "Settings");
    EXPECT_EQ(sentBy([this] { hold(Qt::Key_Space, 3); }).size(), 2U) << "one press";
    walkTo("4.9");
    std::string modes;
    for (int step = 0; step < 4; ++step) {
        press(Qt::Key_Space);
        modes += name() + ' ';
    }
    deviceSays(config);
    EXPECT_EQ(modes + name(), "4.9 4.9+ 4.9 4.9 4.9") << "a replaced switch keeps the focus";

    walkTo("Scan mode");
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    const auto isAuto = HasSubstr(R"("mode" : "AUTO")");
    EXPECT_THAT(sentBy([this] { press(Qt::Key_Return); }), ElementsAre(isAuto, isAuto));
    press(Qt::Key_Space);
    EXPECT_THAT(sentBy([this] { press(Qt::Key_Escape); }), IsEmpty());
    EXPECT_TRUE(!driver->find("ListButtonDialog") && driver->find("DrawerFrame"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(driver->find("DrawerFrame"));
    EXPECT_EQ(name(), "Settings");
    press(Qt::Key_Space);
    EXPECT_EQ(name(), "Scan mode") << "the first control of a drawer that the keyboard opens";
    walkTo("Mask");
    press(Qt::Key_Space);
    press(Qt::Key_Escape);
    EXPECT_FALSE(driver->find("DrawerFrame")) << "with the keyboard on what can't take it";
    walkTo("Disconnect");
    press(Qt::Key_Space);
    EXPECT_FALSE(isConnected());
    press(Qt::Key_Space);
    EXPECT_TRUE(ScreenDriver::waitFor([this] { return isConnected(); }));
}

TEST_F(KeyboardTest, StepsASliderAndSendsOnceTheKeyIsReleased) {
    connectTo(ProtoEnum::K7);
    click("cfg");
    struct {
        const char *title;
        Qt::Key key;
        int repeats;
        const char *settings, *value;
    } const steps[] = {{"Sound volume", Qt::Key_Left, 2, "CONFIG indSndLvl", "97"},
                       {"Sound volume", Qt::Key_Right, 9, "CONFIG indSndLvl", "100"},
                       {"Headphones volume", Qt::Key_Left, 29, "CONFIG_K7 indHeadLvl", "0"},
                       {"Display timeout", Qt::Key_Right, 1, "CONFIG_K7 dispOffTime", "40"}};
    for (const auto &[title, key, repeats, settings, value] : steps) {
        walkTo(title);
        const auto expected = edits(settings, value);
        EXPECT_THAT(sentBy([&, k = key, n = repeats] { hold(k, n); }), IsEmpty()) << title;
        EXPECT_EQ(sentBy([&, k = key] { QTest::keyRelease(window, k); }), expected) << title << value;
    }
    const auto told = R"({"type":"CONFIG_K7","dispOffTime":32})";
    for (const auto &[key, value] : {std::pair(Qt::Key_Left, "30"), {Qt::Key_Right, "35"}}) {
        deviceSays(told);
        hold(key, 0);
        deviceSays(told);
        const auto isOnStep = HasSubstr(std::string("\"dispOffTime\" : ") + value);
        EXPECT_THAT(sentBy([&, k = key] { QTest::keyRelease(window, k); }), ElementsAre(isOnStep, isOnStep));
    }
    const auto left = sentBy([&] {
        hold(Qt::Key_Right, 0);
        press(Qt::Key_Tab);
        QTest::keyRelease(window, Qt::Key_Right);
    });
    EXPECT_EQ(left.size(), 2U) << "a slider that the keyboard leaves";
    walkTo("Sound volume");
    const auto escaped = sentBy([&] {
        hold(Qt::Key_Left, 0);
        press(Qt::Key_Escape);
        QTest::keyRelease(window, Qt::Key_Left);
    });
    EXPECT_THAT(escaped, IsEmpty());
    click("cfg");
    EXPECT_TRUE(driver->find("QQuickText", "100")) << "the value before the key";
}

TEST_F(KeyboardTest, SwipesTheBandInFocus) {
    open();
    walkTo("Bars 2.4");
    std::string shown;
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}) {
        press(key);
        shown += views() + '|';
    }
    EXPECT_EQ(shown, "BBBB|BFBB|BHBB|BHBB|BFBB|");
    EXPECT_EQ(name(), "Course 2.4");
    deviceSays(config);
    EXPECT_EQ(views() + name(), "BBBBBars 2.4") << "a replaced row keeps the focus";
}

TEST_F(KeyboardTest, ARingShowsTheFocusWhileTheKeyboardIsUsedAlone) {
    driver->resize({800, 2200});
    open();
    driver->drag({500, 600}, {300, 600});
    QImage without;
    const auto look = [&] { // until the switches have glided to their places
        EXPECT_TRUE(ScreenDriver::waitFor([&] {
            QTest::qWait(100);
            return std::exchange(without, driver->picture()) == without;
        }));
    };
    const auto expectRing = [&](const char *control) {
        walkTo(control);
        const QImage with = driver->picture();
        const QQuickItem &item = *window->activeFocusItem();
        const QRectF plotArea = item.property("plotArea").toRectF(); // the labels are around it
        const QRectF area = plotArea.isEmpty() ? item.boundingRect() : plotArea;
        const QRect place = item.mapRectToScene(area).toRect() & without.rect();
        QRect changed;
        for (int i = 0; i < with.width() * with.height(); ++i)
            if (const QPoint at(i % with.width(), i / with.width()); with.pixel(at) != without.pixel(at))
                changed |= QRect(at, at);
        // Around the words of a row that opens a dialog, in the gap between the rows.
        const int gap = driver->find("ConfigPreference", control) ? 6 : 0;
        EXPECT_TRUE(place.adjusted(-gap, -gap, gap, gap).contains(changed)) << control;
        EXPECT_GT(changed.width() * changed.height(), 0.8 * place.width() * place.height()) << control;
        driver->clickAt({1, 660});
        EXPECT_EQ(driver->picture(), without) << control;
    };
    look();
    for (const char *band : {"Bars 1.2", "Course 2.4"})
        expectRing(band);
    click("cfg");
    look();
    for (const char *control : {"Scan mode", "Voice alarm", "Sound volume", "Mask", "1.2", "Dig"})
        expectRing(control);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Backtab}) {
        press(key);
        EXPECT_NE(driver->picture(), without) << key;
        driver->clickAt({1, 660});
    }
}
