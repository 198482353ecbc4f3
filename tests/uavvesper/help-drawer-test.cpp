#include "drawer-fixture.h"

#include <QDesktopServices>

using testing::ElementsAre;
using testing::HasSubstr;

class HelpDrawerTest : public DrawerFixture {
protected:
    void SetUp() override {
        resize(800, 1000);
        click("info");
    }
};

TEST_F(HelpDrawerTest, ShowsTheDevicesValuesAndPlaceholdersWithoutOne) {
    const std::string withoutDevice =
        "Mode: |-----|Frequency bands: |-----|Indication brightness: |-----|Headphones volume: |-----|"
        "LED indication: |-----|Sound indication: |-----|Vibration: |-----|Wi-Fi scanning: |-----|"
        "Hardware: vx.x|Bootloader: vx.x|Firmware: vx.x|Application: v1.1|Serial number: vx.x|Manual|";
    EXPECT_EQ(words(), withoutDevice);
    plugIn(ProtoEnum::K7);
    connectByButton();
    const double fullHeight = first("DrawerFrame")->height();
    deviceSays(R"({"type":"CONFIG","proto":"K7","indLed":true,"indVibro":true,"indLedLvl":40,"indSndLvl":80,)"
               R"("mode":"BASE","ranges":["EXT_1200","STD_5800"],"hwVers":"7.1","fwVers":"2.30",)"
               R"("bootVers":"1.4","md5Serial":"5d41402a"})");
    driver->picture();
    EXPECT_EQ(words(), "Mode: |Base|Frequency bands: |830-1730|5725-5851|Indication brightness: |40|"
                       "Headphones volume: |80|LED indication: |On|Sound indication: |Off|Vibration: |On|"
                       "Wi-Fi scanning: |Off|Hardware: 7.1|Bootloader: 1.4|Firmware: 2.30|Application: v1.1|"
                       "Serial number: 5d41402a|Manual|");
    EXPECT_EQ(fullHeight - first("DrawerFrame")->height(), 2 * 15 * 1.25) << "two bands that are off";
    disconnectByButton();
    driver->picture();
    EXPECT_EQ(words(), withoutDevice);
}

TEST_F(HelpDrawerTest, FitsTheUsualWindowAndScrollsInATinyOne) {
    EXPECT_TRUE(isInView("Mode: ") && isInView("Manual"));
    resize(40, 200);
    EXPECT_FALSE(isInView("Manual"));
    EXPECT_TRUE(driver->scrollDown(*first("DrawerFrame")));
    EXPECT_TRUE(isInView("Manual"));
}

TEST_F(HelpDrawerTest, OpensTheManualThatIsChosen) {
    // Without a handler of its scheme the address reaches the platform, which opens nothing and says which.
    QDesktopServices::unsetUrlHandler("qrc");
    for (const std::string generation : {"6", "7"}) {
        click("Manual");
        EXPECT_EQ(words("ListButtonDialog"), "Kelvane 6|Kelvane 7|");
        choose(QString::fromStdString("Kelvane " + generation));
        EXPECT_THAT(QtWarnings::take(),
                    ElementsAre(HasSubstr("'qrc:/manuals/help_K" + generation + ".pdf'")));
    }
}
