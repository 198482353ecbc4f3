#include "screen-fixture.h"
#include "wire-text.h"

using namespace testing;

static const std::string CONFIG =
    wire(R"({|"proto" : "K7",|"indLed" : true,|"indSnd" : true,|"indVibro" : false,|"indLedLvl" : 50,|)"
         R"("indSndLvl" : 100,|"mode" : "AUTO",|"wifiDet" : false,|"uavDet" : true,|)"
         R"("ranges" : [|"STD_1200",|"EXT_2400",|"EXT_5800"|],|"hwVers" : "7.1",|"fwVers" : "2.30",|)"
         R"("bootVers" : "1.4",|"md5Serial" : "5d41",|"atten" : 6,|"type" : "CONFIG"|})");

static std::string configWith(const std::string &part, const std::string &other) {
    std::string config = CONFIG;
    const std::string old = wire(part);
    return config.replace(config.find(old), old.size(), wire(other));
}

static std::string configWithRanges(const std::string &ranges) {
    return configWith(R"("STD_1200",|"EXT_2400",|"EXT_5800")", ranges);
}

class SettingsRowTest : public ScreenFixture {
protected:
    void connectTo(ProtoEnum generation) {
        plugIn(generation);
        connectByButton();
    }

    static bool isControl(const QQuickItem &item) {
        return ScreenDriver::isA(item, "UavThreeSwitch") || ScreenDriver::isA(item, "UavSwitch") ||
               ScreenDriver::isA(item, "Button");
    }

    /// The switch or button whose word begins so: bands and buttons change the rest of it.
    const QQuickItem &control(const QString &word) const {
        const QQuickItem *found = driver->find([&](const QQuickItem &item) {
            return isControl(item) && item.property("text").toString().startsWith(word);
        });
        return found ? *found : throw std::runtime_error("no control shows " + word.toStdString());
    }

    void press(const QString &word) { driver->click(control(word)); }

    /// What a person sees of a control: its word, and the disc of a switch.
    static std::string look(const QQuickItem &item, const QImage &picture) {
        const std::string text = item.property("text").toString().toStdString();
        if (ScreenDriver::isA(item, "Button"))
            return item.isEnabled() ? text : text + " dead";
        const auto isColor = [&](const QPointF &point, const char *color) {
            return picture.pixelColor(item.mapToScene(point).toPoint()) == QColor(color);
        };
        const int line = item.property("lineWidth").toInt();
        const qreal h = item.height() - 2 * line;
        const qreal start = 0.25 * h - 2 * line, end = 0.875 * h, middle = (start + end) / 2;
        const bool upper = isColor({middle, start + (end - start) / 4}, "#41709a");
        const bool lower = isColor({middle, end - (end - start) / 4}, "#41709a");
        if (!isColor({item.width() * 0.95, h * 0.85}, "#5b9bd5"))
            return text + (upper || lower ? " greyed with a disc" : " dead");
        return text + (upper ? lower ? " full" : " upper half" : lower ? " half" : " off");
    }

    std::string look(const QString &word) const {
        const QImage picture = driver->picture(); // before the search: it brings the window up to date
        return look(control(word), picture);
    }

    std::vector<std::string> bands() const {
        std::vector<std::string> looks;
        const QImage picture = driver->picture();
        for (const QQuickItem *band : driver->findAll(
                 [](const QQuickItem &item) { return ScreenDriver::isA(item, "UavThreeSwitch"); }))
            looks.push_back(look(*band, picture));
        return looks;
    }
};

TEST_F(SettingsRowTest, SendsEachEditTwiceAndFollowsTheDevice) {
    struct Edit {
        const char *control;
        const char *part, *edited; // of the CONFIG
        const char *before, *after;
    };
    const Edit edits[] = {
        {"1.2", "STD_1200", "EXT_1200", "1.2 half", "1.2+ full"},
        {"2.4", R"("EXT_2400",|)", "", "2.4+ full", "2.4 off"},
        {"4.9", R"("EXT_5800")", R"("STD_4900",|"EXT_5800")", "4.9 off", "4.9 half"},
        {"Sound", R"("indSnd" : true)", R"("indSnd" : false)", "Sound full", "Sound off"},
        {"Vibro", R"("indVibro" : false)", R"("indVibro" : true)", "Vibro off", "Vibro full"},
        {"Wi-Fi", R"("wifiDet" : false)", R"("wifiDet" : true)", "Wi-Fi off", "Wi-Fi full"},
        {"Dig", R"("uavDet" : true)", R"("uavDet" : false)", "Dig full", "Dig off"},
        {"Sens", R"("atten" : 6)", R"("atten" : 3)", "Sens: Low", "Sens: Mid"},
    };
    connectTo(ProtoEnum::K7);
    for (const Edit &edit : edits) {
        SCOPED_TRACE(edit.control);
        EXPECT_THAT(sentBy([&] { deviceSays(CONFIG); }), IsEmpty());
        EXPECT_EQ(look(edit.control), edit.before);
        const std::string edited = configWith(edit.part, edit.edited);
        EXPECT_THAT(sentBy([&] { press(edit.control); }), ElementsAre(edited, edited));
        EXPECT_EQ(look(edit.control), edit.after) << "with the device's OK";
        deviceSays(CONFIG);
        EXPECT_EQ(look(edit.control), edit.before);
    }
}

TEST_F(SettingsRowTest, KeepsTheChosenAiModeWhateverTheDeviceSays) {
    const std::string field = wire(R"({|"aiPrior" : "FIELD",|"type" : "AI_PRIOR"|})");
    connectTo(ProtoEnum::K7);
    EXPECT_EQ(look("AI"), "AI: Default");
    EXPECT_THAT(sentBy([&] { press("AI"); }), ElementsAre(field, field));
    EXPECT_EQ(look("AI"), "AI: Field");
    for (const std::string &said : {CONFIG, std::string(R"({"type":"AI_PRIOR","aiPrior":"CITY"})")}) {
        EXPECT_THAT(sentBy([&] { deviceSays(said); }), IsEmpty());
        EXPECT_EQ(look("AI"), "AI: Field");
    }
}

TEST_F(SettingsRowTest, OutlivesAConfigWithRangesOfNoBandAndKeepsTheLastBandOn) {
    connectTo(ProtoEnum::K6);
    const auto k6 = [](const std::string &ranges) {
        const std::string config = configWithRanges(ranges);
        return "{\n\"proto\" : \"K6" + config.substr(config.find("K7") + 2);
    };
    for (const auto &[ranges, logged] :
         {std::pair(R"("EXT_2400",|"CUSTOM")", "[ERROR] [RangesListModel] no band has the range CUSTOM\n"),
          {R"("STD_1200",|"EXT_2400")", "[ERROR] [RangesListModel] no band has the range STD_1200\n"},
          {"", ""}}) {
        internal::CaptureStdout();
        EXPECT_THAT(sentBy([&] { deviceSays(k6(ranges)); }), IsEmpty());
        EXPECT_EQ(internal::GetCapturedStdout(), logged);
    }
    EXPECT_THAT(bands(), ElementsAre("2.4 off", "4.9 off", "5.8 off"));
    for (const auto &[range, shown] : {std::pair(R"("STD_2400")", "2.4 half"),
                                       {R"("EXT_2400")", "2.4+ full"},
                                       {R"("STD_2400")", "2.4 half"}}) {
        EXPECT_THAT(sentBy([&] { press("2.4"); }), ElementsAre(k6(range), k6(range)));
        EXPECT_THAT(bands(), ElementsAre(shown, "4.9 off", "5.8 off"));
    }
    deviceSays(CONFIG);
    EXPECT_THAT(bands(), ElementsAre("1.2 half", "2.4+ full", "4.9 off", "5.8+ full"));
}

TEST_F(SettingsRowTest, FollowsTheGeneration) {
    const std::string none = wire(R"({|"aiPrior" : "NONE",|"type" : "AI_PRIOR"|})");
    connectTo(ProtoEnum::K1);
    EXPECT_THAT(bands(), ElementsAre("2.4+ full", "4.9+ full", "5.8+ full"));
    EXPECT_EQ(look("AI"), "AI: None");
    EXPECT_THAT(sentBy([&] { press("AI"); }), ElementsAre(none, none));
    EXPECT_EQ(look("AI"), "AI: None");
    for (const auto &[generation, bandCount, mode] : {std::tuple(ProtoEnum::K6, 3u, "AI: Default"),
                                                      {ProtoEnum::K7EW, 4u, "AI: Default"},
                                                      {ProtoEnum::K7, 4u, "AI: Default"},
                                                      {ProtoEnum::K1, 3u, "AI: None"}}) {
        disconnectByButton();
        connectTo(generation);
        EXPECT_THAT(bands(), SizeIs(bandCount));
        EXPECT_EQ(look("AI"), mode);
    }
    EXPECT_THAT(sentBy([&] { press("AI"); }), IsEmpty())
        << "a generation without modes behind one that has them";
    EXPECT_EQ(look("AI"), "AI: None");
}

TEST_F(SettingsRowTest, IsDeadWithoutAConnection) {
    const auto looks = [this] {
        auto all = bands();
        for (const char *word : {"Sound", "Vibro", "Wi-Fi", "Dig", "Sens", "AI"})
            all.push_back(look(word));
        return all;
    };
    EXPECT_THAT(looks(), AllOf(SizeIs(6), Each(EndsWith(" dead"))));
    connectTo(ProtoEnum::K7);
    deviceSays(CONFIG);
    EXPECT_THAT(looks(), AllOf(SizeIs(10), Each(Not(EndsWith(" dead")))));
    EXPECT_EQ(driver->control("TEST MODE"), nullptr);
    disconnectByButton();
    const auto dead = looks();
    EXPECT_THAT(dead, AllOf(SizeIs(10), Each(EndsWith(" dead"))));
    for (const std::string &shown : dead)
        press(QString::fromStdString(shown.substr(0, shown.rfind(' '))));
    EXPECT_EQ(looks(), dead);
    EXPECT_TRUE(control("Sound").property("checked").toBool());
}

TEST_F(SettingsRowTest, FitsEveryWindowAndTellsTestMode) {
    for (int i = 0; i < 12; ++i)
        click("info");
    const auto paintedBand = [this](int windowHeight) {
        window->resize(800, windowHeight);
        const QImage picture = driver->picture();
        const QQuickItem &band = control("2.4");
        return picture.copy(band.mapRectToScene(band.boundingRect()).toRect());
    };
    const QImage painted = paintedBand(1000), withLargerText = paintedBand(1400);
    EXPECT_EQ(withLargerText.size(), painted.size());
    EXPECT_FALSE(withLargerText == painted);
    const auto isInside = [this](const QQuickItem &item) {
        return QRectF(QPointF(), window->size()).contains(item.mapRectToScene(item.boundingRect()));
    };
    for (const QSize size : {QSize(300, 400), QSize(2560, 1440), QSize(300, 1440), QSize(1440, 400)}) {
        window->resize(size);
        driver->picture();
        for (const char *word : {"1.2", "5.8", "Sound", "Dig", "Sens", "AI"})
            EXPECT_TRUE(isInside(control(word))) << word << " " << size.width();
        EXPECT_TRUE(isInside(*driver->control("TEST MODE"))) << size.width();
    }
    click("usb");
    EXPECT_EQ(driver->control("TEST MODE"), nullptr);
}
