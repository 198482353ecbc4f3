#include "screen-fixture.h"

#include <QDesktopServices>

class HelpDrawerTest : public ScreenFixture {
protected:
    void SetUp() override { click("info"); }

    const QQuickItem &frame() const { return *driver->find("DrawerFrame"); }
    std::string words() const {
        driver->picture();
        return driver->words("DrawerFrame");
    }
    bool isInView(const char *word) const { return ScreenDriver::isInView(*driver->control(word), frame()); }
};

TEST_F(HelpDrawerTest, ShowsTheDevicesValuesAndPlaceholdersWithoutOneInEverySize) {
    const std::string withoutDevice =
        "Mode: |-----|Frequency bands: |-----|Indication brightness: |-----|Headphones volume: |-----|"
        "LED indication: |-----|Sound indication: |-----|Vibration: |-----|Wi-Fi scanning: |-----|"
        "Hardware: vx.x|Bootloader: vx.x|Firmware: vx.x|Application: v1.1|Serial number: vx.x|Manual|";
    EXPECT_EQ(words(), withoutDevice);
    EXPECT_THAT(driver->look(frame()),
                MatchesRegex("#c0415f50 r10 .0.8(, '[^']*' #ffffff 15 .0.8){16}(, '[^']*' #ffffff 10 .0.8){5}"
                             ", #81909f/#000000:2 r12.8 240x64.10.[0-9]+ .0.8, 'Manual' #ffffff 15 .0.8"));
    connectTo(ProtoEnum::K7);
    EXPECT_THAT(words(), HasSubstr("|1000-1680|2350-2550|4800-5460|5470-6100|"));
    const double fullHeight = frame().height();
    deviceSays(R"({"type":"CONFIG","proto":"K7","indLed":true,"indVibro":true,"indLedLvl":40,"indSndLvl":80,)"
               R"("mode":"BASE","ranges":["EXT_1200","STD_5800"],"hwVers":"<i>7","fwVers":"2.30",)"
               R"("bootVers":"1.4","md5Serial":"5d41402a"})");
    EXPECT_EQ(words(), "Mode: |Base|Frequency bands: |830-1730|5725-5851|Indication brightness: |40|"
                       "Headphones volume: |80|LED indication: |On|Sound indication: |Off|Vibration: |On|"
                       "Wi-Fi scanning: |Off|Hardware: <i>7|Bootloader: 1.4|Firmware: 2.30|Application: v1.1|"
                       "Serial number: 5d41402a|Manual|");
    EXPECT_EQ(fullHeight - frame().height(), 2 * 15 * 1.25) << "two bands that are off";
    const auto corner = [this](const char *word) { return driver->control(word)->mapToScene({0, 0}); };
    EXPECT_EQ(corner("80").y(), corner("Headphones volume: ").y());
    EXPECT_EQ(corner("5725-5851").y() - corner("830-1730").y(), 15 * 1.25) << "no gaps";
    EXPECT_EQ(corner("Wi-Fi scanning: ").x(), corner("Mode: ").x());
    const std::string other =
        R"({"type":"CONFIG","indSnd":true,"wifiDet":true,"md5Serial":")" + std::string(200, 'f');
    for (const QString mode : {"ECO|Efficient", "AUTO|Automatic", "CONT|Continuous"}) {
        deviceSays(other + R"(","mode":")" + mode.section('|', 0, 0).toStdString() + "\"}");
        EXPECT_THAT(words(), StartsWith("Mode: |" + mode.section('|', 1).toStdString() + "|"));
        EXPECT_THAT(
            words(),
            HasSubstr("LED indication: |Off|Sound indication: |On|Vibration: |Off|Wi-Fi scanning: |On|"));
    }
    const QQuickItem &serial = *driver->control("Serial number: *");
    EXPECT_LE(serial.property("paintedWidth").toDouble(), serial.width()) << "is set smaller";
    disconnect();
    EXPECT_EQ(words(), withoutDevice);

    EXPECT_TRUE(isInView("Mode: ") && isInView("Manual"));
    driver->resize({40, 200});
    EXPECT_FALSE(isInView("Manual"));
    EXPECT_TRUE(driver->scrollDown(frame()));
    EXPECT_TRUE(isInView("Manual"));
}

TEST_F(HelpDrawerTest, OpensTheManualThatIsChosen) {
    // Without a handler of its scheme the address reaches the platform, which opens nothing and says which.
    QDesktopServices::unsetUrlHandler("qrc");
    for (const std::string generation : {"6", "7"}) {
        click("Manual");
        EXPECT_EQ(
            driver->looks("ListButtonDialog", "ListButtonDialog"),
            "\n800x1000+0+0 #000000 *0.4, #ffffff/#000000:2 r12.8 240x64+280+436, 'Kelvane 6' #000000 15, "
            "#ffffff/#000000:2 r12.8 240x64+280+500, 'Kelvane 7' #000000 15");
        choose(QString::fromStdString("Kelvane " + generation));
        EXPECT_THAT(QtWarnings::take(),
                    ElementsAre(HasSubstr("'qrc:/manuals/help_K" + generation + ".pdf'")));
    }
}
