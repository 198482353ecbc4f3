#include "screen-fixture.h"

using namespace testing;

static const std::string LIVE = " #81909f/#000000:2 r12.8, ", DEAD = " #81909f/#808080:2 r12.8, ";

class SettingsRowTest : public ScreenFixture {
protected:
    const QQuickItem &control(const QString &word) const {
        return *driver->find({}, word, driver->find("SettingsLayout"));
    }
    std::vector<std::string> row(const QString &element) const {
        return driver->looks(element, "SettingsLayout");
    }
    /// The words of the bands and their positions.
    std::string bands() const {
        QString bands;
        for (const QQuickItem *band : driver->findAll("UavThreeSwitch"))
            bands += band->property("text").toString() + ':' +
                     QString::number(band->property("position").toInt()) + ' ';
        return bands.toStdString();
    }
};

TEST_F(SettingsRowTest, ShowsWhatWorksAndSendsEachEdit) {
    EXPECT_THAT(row("UavSwitch"), ElementsAre("160x40+7.5+810 'Sound' 20/1 #81909f 0 dead",
                                              "160x40+7.5+857.5 'Vibro' 20/1 #81909f 0 dead",
                                              "160x40+7.5+905 'Wi-Fi' 20/1 #81909f 0 dead",
                                              "160x40+7.5+952.5 'Dig' 20/1 #81909f 0 dead"));
    EXPECT_THAT(row("Button"), ElementsAre("160x64+175+810" + DEAD + "'Sens: ?\?\?' #808080 15",
                                           "160x64+175+889" + DEAD + "'AI: None' #808080 15"));
    connectTo(ProtoEnum::K7);
    EXPECT_THAT(row("UavThreeSwitch"),
                ElementsAre("160x40+7.5+810 '1.2' 15/1 #81909f 1", "160x40+7.5+857.5 '2.4+' 15/1 #81909f 2",
                            "160x40+7.5+905 '4.9+' 15/1 #81909f 2",
                            "160x40+7.5+952.5 '5.8+' 15/1 #81909f 2"));
    const auto live =
        ElementsAre("160x40+175+810 'Sound' 20/1 #81909f 1", "160x40+175+857.5 'Vibro' 20/1 #81909f 0",
                    "160x40+175+905 'Wi-Fi' 20/1 #81909f 0", "160x40+175+952.5 'Dig' 20/1 #81909f 1");
    EXPECT_THAT(row("UavSwitch"), live);
    EXPECT_THAT(row("Button"), ElementsAre("160x64+342.5+810" + LIVE + "'Sens: High' #ffffff 15",
                                           "160x64+342.5+889" + LIVE + "'AI: Default' #ffffff 15"));

    struct {
        const char *control, *setting, *value, *look;
    } const clicks[] = {
        {"1.2", "CONFIG ranges", R"(["EXT_1200","EXT_2400","EXT_4900","EXT_5800"])", "'1.2+' 15/1 #81909f 2"},
        {"1.2+", "CONFIG ranges", R"(["EXT_2400","EXT_4900","EXT_5800"])", "'1.2' 15/1 #81909f 0"},
        {"2.4+", "CONFIG ranges", R"(["EXT_4900","EXT_5800"])", "'2.4' 15/1 #81909f 0"},
        {"5.8+", "CONFIG ranges", R"(["EXT_4900"])", "'5.8' 15/1 #81909f 0"},
        {"4.9+", "CONFIG ranges", R"(["STD_4900"])", "'4.9' 15/1 #81909f 1"}, // the last band stays on
        {"1.2", "CONFIG ranges", R"(["STD_1200","STD_4900"])", "'1.2' 15/1 #81909f 1"},
        {"Sound", "CONFIG indSnd", "false", "'Sound' 20/1 #81909f 0"},
        {"Vibro", "CONFIG indVibro", "true", "'Vibro' 20/1 #81909f 1"},
        {"Wi-Fi", "CONFIG wifiDet", "true", "'Wi-Fi' 20/1 #81909f 1"},
        {"Dig", "CONFIG uavDet", "false", "'Dig' 20/1 #81909f 0"},
        {"Dig", "CONFIG uavDet", "true", "'Dig' 20/1 #81909f 1"},
        {"Sens: *", "CONFIG atten", "6", "'Sens: Low' #ffffff 15"},
        {"Sens: *", "CONFIG atten", "3", "'Sens: Mid' #ffffff 15"},
        {"Sens: *", "CONFIG atten", "0", "'Sens: High' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("FIELD")", "'AI: Field' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("CITY")", "'AI: City' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("DEFAULT")", "'AI: Default' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("FIELD")", "'AI: Field' #ffffff 15"},
    };
    for (const auto &[word, setting, value, look] : clicks) {
        const auto expected = edits(setting, value);
        const QQuickItem &item = control(word);
        EXPECT_THAT(sentBy([&] { driver->click(item); }), ElementsAreArray(expected)) << setting << value;
        EXPECT_THAT(driver->look(control(word[0] < '9' ? QString(word).left(3) + '*' : word)),
                    EndsWith(look));
    }
    EXPECT_THAT(
        sentBy([this] {
            deviceSays(R"({"type":"AI_PRIOR","aiPrior":"CITY"})");
            deviceSays(
                R"({"type":"CONFIG","proto":"K7","indSnd":true,"uavDet":true,"ranges":["STD_1200"],"atten":5})");
        }),
        IsEmpty());
    EXPECT_THAT(row("UavSwitch"), live) << "switches that were touched follow the device again";
    EXPECT_EQ(bands(), "1.2:1 2.4:0 4.9:0 5.8:0 ");
    EXPECT_EQ(driver->words("SettingsLayout"), "Sens: ???|AI: Field|");

    disconnectByButton();
    const auto dead = row("UavSwitch"), deadBands = row("UavThreeSwitch"), deadButtons = row("Button");
    EXPECT_THAT(dead, Each(EndsWith(" dead")));
    EXPECT_THAT(deadBands, AllOf(SizeIs(4), Each(EndsWith(" dead"))));
    EXPECT_THAT(deadButtons, Each(HasSubstr(DEAD)));
    for (const QString word : {"1.2", "Sound", "Vibro", "Wi-Fi", "Dig", "Sens: *", "AI: *"})
        driver->click(control(word));
    EXPECT_EQ(row("UavSwitch"), dead);
    EXPECT_EQ(row("UavThreeSwitch"), deadBands);
    EXPECT_EQ(row("Button"), deadButtons);
}

TEST_F(SettingsRowTest, FollowsTheGenerationAndOutlivesRangesOfNoBand) {
    connectTo(ProtoEnum::K1);
    EXPECT_THAT(sentBy([this] { click("AI: None"); }),
                ElementsAreArray(edits("AI_PRIOR aiPrior", R"("NONE")")));
    struct {
        const char *generation, *ranges, *bands, *words, *logged;
    } const configs[] = {
        {"K6", R"("STD_2400","EXT_5800")", "2.4:1 4.9:0 5.8+:2 ", "Sens: High|AI: Default|", ""},
        {"K6", R"("EXT_2400","CUSTOM")", "2.4+:2 4.9:0 5.8:0 ", "Sens: High|AI: Default|",
         "no band has the range CUSTOM"},
        {"K6", R"("STD_1200","EXT_2400")", "2.4:0 4.9:0 5.8:0 ", "Sens: High|AI: Default|",
         "no band has the range STD_1200"},
        {"K7EW", R"("EXT_1200")", "1.2+:2 2.4:0 4.9:0 5.8:0 ", "Sens: High|AI: Default|", ""},
        {"K1", R"("STD_4900")", "2.4:0 4.9:1 5.8:0 ", "Sens: High|AI: None|", ""},
        {"K7", "", "1.2:0 2.4:0 4.9:0 5.8:0 ", "Sens: High|AI: Default|", ""},
    };
    for (const auto &[generation, ranges, shown, words, logged] : configs) {
        internal::CaptureStdout();
        const std::string config =
            std::string(R"({"type":"CONFIG","proto":")") + generation + R"(","ranges":[)" + ranges + "]}";
        EXPECT_THAT(sentBy([&] { deviceSays(config); }), IsEmpty());
        EXPECT_THAT(internal::GetCapturedStdout(),
                    *logged ? HasSubstr(std::string("[ERROR] [RangesListModel] ") + logged)
                            : HasSubstr(logged));
        EXPECT_EQ(bands(), shown);
        EXPECT_EQ(driver->words("SettingsLayout"), words);
    }
}

TEST_F(SettingsRowTest, FitsEveryWindow) {
    connectTo(ProtoEnum::K7);
    for (const QSize size : {QSize(300, 400), QSize(2560, 1440), QSize(300, 1440), QSize(1440, 400)}) {
        driver->resize(size);
        for (const char *word : {"1.2", "5.8+", "Sound", "Dig", "Sens: *", "AI: *"})
            EXPECT_TRUE(ScreenDriver::isInView(control(word), *window->contentItem()))
                << word << " " << size.width();
    }
}
