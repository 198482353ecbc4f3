#include "screen-fixture.h"

using testing::ElementsAre;
using testing::StartsWith;

namespace {

class ButtonRow : public ScreenFixture {
protected:
    const QQuickItem *chargeButton() {
        return driver->find([](const QQuickItem &item) {
            return item.property("text").toString().endsWith('%') && item.property("iconSource").isValid();
        });
    }
};

} // namespace

TEST_F(ButtonRow, TellsTheBatteryByNumberAndPicture) {
    plugIn(ProtoEnum::K7);
    connectByButton();
    for (const auto &[percent, icon] : {std::pair(19, "b0"),
                                        {20, "b25"},
                                        {44, "b25"},
                                        {45, "b50"},
                                        {69, "b50"},
                                        {70, "b75"},
                                        {94, "b75"},
                                        {95, "b100"}}) {
        device->setBattery(percent);
        click(chargeButton()->property("text").toString());
        const QString text = QString::number(percent) + '%';
        EXPECT_TRUE(ScreenDriver::waitFor([&] { return driver->control(text) != nullptr; })) << percent;
        EXPECT_EQ(chargeButton()->property("iconSource").toUrl().fileName(), icon) << percent;
    }
}

TEST_F(ButtonRow, TheMaskButtonWaitsForTheNextScan) {
    plugIn(ProtoEnum::K7);
    connectByButton();
    EXPECT_THAT(sentBy([this] { click("Mask"); }), ElementsAre(R"({
"type" : "SET_MASK"
})"));
    const QQuickItem *waiting = driver->control("Wait");
    ASSERT_NE(waiting, nullptr);
    EXPECT_FALSE(waiting->isEnabled());
    for (const bool mask : {true, false}) {
        deviceSays(std::string(R"({"type" : "SCAN_RESULT", "mask" : )") + (mask ? "true}" : "false}"));
        const QQuickItem *button = driver->control("Mask");
        ASSERT_NE(button, nullptr);
        EXPECT_TRUE(button->isEnabled());
        EXPECT_EQ(button->property("color").value<QColor>() == QColor(51, 166, 50), mask);
    }
}

TEST_F(ButtonRow, TwelveClicksOnHelpStartTheSimulatorWhileNothingIsConnected) {
    const auto clickHelp = [this](int times) {
        for (int i = 0; i < times; ++i)
            click("info");
    };
    plugIn(ProtoEnum::K7);
    clickHelp(11);
    connectByButton();
    clickHelp(1); // starts the count anew
    disconnectByButton();
    clickHelp(11);
    EXPECT_FALSE(isConnected());
    clickHelp(1);
    EXPECT_TRUE(isConnected());
    EXPECT_TRUE(objects.usbService.inTesting());
}

TEST_F(ButtonRow, OnlyHelpAndUsbWorkWithoutADevice) {
    for (const char *word : {"0%", "Mask", "Fabric settings", "cfg", "info", "usb"}) {
        const bool works = std::string(word) == "info" || std::string(word) == "usb";
        EXPECT_EQ(driver->control(word)->isEnabled(), works) << word;
    }
    plugIn(ProtoEnum::K6);
    connectByButton();
    std::vector<std::string> settings; // read back or not, as fast as they are answered
    for (const auto &text : sentBy([this] { click("Fabric settings"); }))
        if (text.find("\"GET_") == std::string::npos)
            settings.push_back(text);
    ASSERT_EQ(settings.size(), 2U);
    EXPECT_THAT(settings[0], StartsWith("{\n\"proto\" : \"K6\""));
    EXPECT_THAT(settings[1], StartsWith("{\n\"aiPrior\" : \"DEFAULT\""));
}
