#include "screen-fixture.h"
#include "wire-text.h"

using namespace testing;

static const std::string LIVE = " #81909f/#000000:2 r12.8, ", DEAD = " #81909f/#808080:2 r12.8, ";
static const std::string BATTERY = " 47.2x47.2+12.8+7.9", ICON = " 47.2x47.2+8.4+8.4";

class ButtonRowTest : public ScreenFixture {
protected:
    std::string look(const QString &word) const { return ' ' + driver->look(*driver->control(word)); }
    void clickHelp(int times) {
        while (times-- > 0)
            click("info");
    }
    /// The white pixels of an icon: its lines and what is filled.
    int whiteOf(const QQuickItem &button) const {
        const QImage picture = driver->picture().copy(button.mapRectToScene({12, 8, 48, 48}).toRect());
        int white = 0;
        for (int i = 0; i < 48 * 48; ++i)
            white += picture.pixelColor(i % 48, i / 48) == QColor("#ffffff");
        return white;
    }
};

TEST_F(ButtonRowTest, ShowsWhatWorks) {
    EXPECT_THAT(driver->looks("ButtonFrame", "ButtonLayout"),
                ElementsAre("160x64+21+742.8" + DEAD + "b0" + BATTERY + " *0.5, '0%' #808080 15",
                            "160x64+182+742.8" + DEAD + "'Mask' #808080 15",
                            "240x64+343+742.8" + DEAD + "'Fabric settings' #808080 15",
                            "64x64+584+742.8" + DEAD + "cfg" + ICON + " *0.5",
                            "64x64+649+742.8" + LIVE + "info" + ICON,
                            "64x64+714+742.8" + LIVE + "usb" + ICON));
    EXPECT_EQ(driver->look(*driver->find("LegendLayout")),
              "'Wi-Fi' #ffffff 40 bold, 'DIG' #ffffff 40 bold, 'FPV' #ffffff 40 bold");
    click("cfg");
    EXPECT_FALSE(driver->find("DrawerFrame"));

    connectTo(ProtoEnum::K7);
    EXPECT_THAT(driver->looks("ButtonFrame", "ButtonLayout"),
                ElementsAre("160x64+21+742.8" + LIVE + "b75" + BATTERY + ", '87%' #ffffff 15",
                            "160x64+182+742.8" + LIVE + "'Mask' #ffffff 15",
                            "240x64+343+742.8" + LIVE + "'Fabric settings' #ffffff 15",
                            "64x64+584+742.8" + LIVE + "cfg" + ICON, "64x64+649+742.8" + LIVE + "info" + ICON,
                            "64x64+714+742.8" + LIVE + "usb" + ICON));
    const QQuickItem &legend = *driver->find("LegendLayout");
    EXPECT_EQ(driver->look(legend), "#00b050 256.7x64+7.5+7.5, 'Wi-Fi' #ffffff 40 bold, "
                                    "#ffc000 256.7x64+271.7+7.5, 'DIG' #ffffff 40 bold, "
                                    "#ff0000 256.7x64+535.8+7.5, 'FPV' #ffffff 40 bold");
    EXPECT_EQ(driver->picture().pixelColor(legend.mapToScene({100, 8}).toPoint()), QColor("#000000"));
    QTest::mousePress(window, Qt::LeftButton, {}, ScreenDriver::middleOf(*driver->control("usb")));
    EXPECT_EQ(look("usb"), LIVE + "usb" + ICON + ", #a9a9a9 r12.8 *0.2") << "pressed";
    QTest::mouseRelease(window, Qt::LeftButton, {}, {1, 1});
    EXPECT_TRUE(isConnected()) << "let go elsewhere";
}

TEST_F(ButtonRowTest, TellsTheBatteryAndTheMask) {
    connectTo(ProtoEnum::K7);
    EXPECT_THAT(sentBy([this] { click("87%"); }), ElementsAre(wire(R"({|"type" : "GET_STATE"|})")));
    struct {
        const char *icon;
        std::vector<int> percents;
    } const levels[] = {
        {"b0", {0, 19}}, {"b25", {20, 44}}, {"b50", {45, 69}}, {"b75", {70, 94}}, {"b100", {95, 100}}};
    int white = 0;
    for (const auto &[icon, percents] : levels) {
        for (const int percent : percents) {
            deviceSays(R"({"type":"STATE","battLvl":)" + std::to_string(percent) + "}");
            EXPECT_EQ(look("*%"), LIVE + icon + BATTERY + ", '" + std::to_string(percent) + "%' #ffffff 15");
        }
        EXPECT_LT(white, whiteOf(*driver->control("*%"))) << "a step more is filled";
        white = whiteOf(*driver->control("*%"));
    }

    EXPECT_THAT(sentBy([this] { click("Mask"); }), ElementsAre(wire(R"({|"type" : "SET_MASK"|})")));
    EXPECT_EQ(look("Wait"), DEAD + "'Wait' #808080 15");
    EXPECT_THAT(sentBy([this] { click("Wait"); }), IsEmpty());
    deviceSays(R"({"type":"SCAN_RESULT","mask":true})");
    EXPECT_EQ(look("Mask"), " #33a632/#000000:2 r12.8, 'Mask' #ffffff 15");
    deviceSays(R"({"type":"SCAN_RESULT","mask":false})");
    EXPECT_EQ(look("Mask"), LIVE + "'Mask' #ffffff 15");
    click("Mask");
    disconnectByButton();
    EXPECT_EQ(look("Mask"), DEAD + "'Mask' #808080 15") << "waits for no device";
}

TEST_F(ButtonRowTest, ResetsADeviceAndOpensOneDrawerAtATime) {
    connectTo(ProtoEnum::K7);
    std::string settings; // read back or not, as fast as they are answered
    for (const auto &text : sentBy([this] { click("Fabric settings"); }))
        settings += text.find("\"GET_") == std::string::npos ? text : "";
    EXPECT_THAT(settings,
                AllOf(HasSubstr(R"("proto" : "K7")"), HasSubstr("CONFIG_K7"), HasSubstr("AI_PRIOR")));
    for (const auto &[button, open] : std::vector<std::pair<const char *, std::string>>{{"info", "help"},
                                                                                        {"cfg", "settings"},
                                                                                        {"cfg", ""},
                                                                                        {"cfg", "settings"},
                                                                                        {"info", "help"},
                                                                                        {"info", ""},
                                                                                        {"cfg", "settings"},
                                                                                        {"usb", ""}}) {
        click(button);
        EXPECT_EQ((driver->control("Detection") ? "settings" : "") +
                      std::string(driver->control("Manual") ? "help" : ""),
                  open)
            << button;
    }
}

TEST_F(ButtonRowTest, TwelveClicksOnHelpStartTheSimulatorWhileNothingIsConnected) {
    plugIn(ProtoEnum::K6);
    clickHelp(11);
    connectByButton();
    clickHelp(1);
    disconnectByButton();
    clickHelp(11);
    EXPECT_FALSE(isConnected()) << "a click while connected starts the count anew";
    for (const int clicks : {1, 12}) {
        clickHelp(clicks);
        EXPECT_TRUE(objects.usbService.inTesting());
        EXPECT_EQ(look("TEST MODE"), " 'TEST MODE' #ff0000 25");
        disconnectByButton();
        EXPECT_FALSE(driver->control("TEST MODE"));
    }
}
