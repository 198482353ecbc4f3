#include "screen-fixture.h"

#include <QLibraryInfo>
#include <QVersionNumber>

/// Qts after 6.4 place a centred item on a half or a whole pixel.
static std::string placed(const std::string &look) {
    const bool isRounded = QLibraryInfo::version() >= QVersionNumber(6, 5);
    return isRounded
               ? QString::fromStdString(look).replace("+742.8", "+742.5").replace("+7.9", "+8").toStdString()
               : look;
}

class ButtonRowTest : public ScreenFixture {
protected:
    std::string look(const QString &word) const { return driver->look(*driver->control(word)); }
};

TEST_F(ButtonRowTest, ShowsWhatWorks) {
    EXPECT_EQ(driver->looks("ButtonFrame", "ButtonLayout"), placed(R"(
160x64+21+742.8 #81909f/#808080:2 r12.8, b0 47.2x47.2+12.8= *0.5, '0%' #808080 15
160x64+182+742.8 #81909f/#808080:2 r12.8, 'Mask' #808080 15
240x64+343+742.8 #81909f/#808080:2 r12.8, 'Fabric settings' #808080 15
64x64+584+742.8 #81909f/#808080:2 r12.8, cfg 47.2x47.2+8.4= *0.5
64x64+649+742.8 #81909f/#000000:2 r12.8, info 47.2x47.2+8.4=
64x64+714+742.8 #81909f/#000000:2 r12.8, usb 47.2x47.2+8.4=)"));
    EXPECT_EQ(driver->looks("QQuickRectangle", "LegendLayout"), R"(
256.7x64+7.5+674.5 'Wi-Fi' #ffffff 40 bold
256.7x64+271.7+674.5 'DIG' #ffffff 40 bold
256.7x64+535.8+674.5 'FPV' #ffffff 40 bold)");
    click("cfg");
    EXPECT_FALSE(driver->find("DrawerFrame"));

    connectTo(ProtoEnum::K7);
    EXPECT_EQ(driver->looks("ButtonFrame", "ButtonLayout"), placed(R"(
160x64+21+742.8 #81909f/#000000:2 r12.8, b75 47.2x47.2+12.8=, '87%' #ffffff 15
160x64+182+742.8 #81909f/#000000:2 r12.8, 'Mask' #ffffff 15
240x64+343+742.8 #81909f/#000000:2 r12.8, 'Fabric settings' #ffffff 15
64x64+584+742.8 #81909f/#000000:2 r12.8, cfg 47.2x47.2+8.4=
64x64+649+742.8 #81909f/#000000:2 r12.8, info 47.2x47.2+8.4=
64x64+714+742.8 #81909f/#000000:2 r12.8, usb 47.2x47.2+8.4=)"));
    EXPECT_EQ(ScreenDriver::place(*driver->find("FittedText", "87%"), driver->control("87%")),
              placed("77.2x47.2+70+7.9"));
    EXPECT_EQ(driver->looks("QQuickRectangle", "LegendLayout"), R"(
256.7x64+7.5+674.5 #00b050, 'Wi-Fi' #ffffff 40 bold
256.7x64+271.7+674.5 #ffc000, 'DIG' #ffffff 40 bold
256.7x64+535.8+674.5 #ff0000, 'FPV' #ffffff 40 bold)");
    EXPECT_EQ(driver->picture().pixelColor(100, 675), QColor("#000000"));
    QTest::mousePress(window, Qt::LeftButton, {}, ScreenDriver::middleOf(*driver->control("usb")));
    EXPECT_THAT(look("usb"), EndsWith(", #a9a9a9 r12.8 *0.2")) << "pressed";
    QTest::mouseRelease(window, Qt::LeftButton, {}, {1, 1});
    EXPECT_TRUE(isConnected()) << "let go elsewhere";
}

TEST_F(ButtonRowTest, TellsTheBatteryAndTheMaskAndDoesWhatItsButtonsSay) {
    connectTo(ProtoEnum::K7);
    EXPECT_THAT(sentBy([this] { click("87%"); }), ElementsAre(wire(R"({|"type" : "GET_STATE"|})")));
    int filled = 0;
    for (const QString level : {"b0 0 19", "b25 20 44", "b50 45 69", "b75 70 94", "b100 95 100"}) {
        const QString icon = level.section(' ', 0, 0);
        for (const QString &percent : level.split(' ').mid(1)) {
            deviceSays(QString(R"({"type":"STATE","battLvl":%1})").arg(percent).toStdString());
            EXPECT_THAT(look(percent + '%'), HasSubstr(", " + icon.toStdString() + " 47"));
        }
        QFile picture(":/icons/" + icon);
        EXPECT_TRUE(picture.open(QIODevice::ReadOnly));
        EXPECT_EQ(picture.readAll().count("<rect"), 2 + filled++) << "the body and the pole";
    }

    EXPECT_THAT(sentBy([this] { click("Mask"); }), ElementsAre(wire(R"({|"type" : "SET_MASK"|})")));
    EXPECT_EQ(look("Wait"), "#81909f/#808080:2 r12.8, 'Wait' #808080 15");
    auto &reader = *QAccessible::queryAccessibleInterface(driver->control("Wait"))->actionInterface();
    const auto pressed = [&] { click("Wait"), reader.doAction(QAccessibleActionInterface::pressAction()); };
    EXPECT_THAT(sentBy(pressed), IsEmpty());
    const QQuickItem &announcer = *driver->find("Announcer");
    deviceSays(R"({"type":"SCAN_RESULT","mask":true})");
    EXPECT_EQ(look("Mask"), "#33a632/#000000:2 r12.8, 'Mask' #ffffff 15");
    EXPECT_EQ(announcer.property("words"), "Mask on");
    deviceSays(R"({"type":"SCAN_RESULT","mask":false})");
    EXPECT_EQ(look("Mask"), "#81909f/#000000:2 r12.8, 'Mask' #ffffff 15");
    EXPECT_EQ(announcer.property("words"), "Mask off");
    click("Mask");
    std::string sent;
    for (const auto &text : sentBy([this] { click("Fabric settings"); }))
        sent += text;
    EXPECT_THAT(sent, AllOf(HasSubstr(R"("proto" : "K7")"), HasSubstr(R"("type" : "CONFIG_K7")")));
    for (const QString step :
         {"info help", "cfg settings", "cfg", "cfg settings", "info help", "info", "cfg settings", "usb"}) {
        click(step.section(' ', 0, 0));
        const std::string settings = driver->control("Detection") ? "settings" : "";
        EXPECT_EQ(settings + (driver->control("Manual") ? "help" : ""), step.section(' ', 1).toStdString());
    }
    EXPECT_EQ(look("Mask"), "#81909f/#808080:2 r12.8, 'Mask' #808080 15") << "it does not wait for a device";
}

TEST_F(ButtonRowTest, TwelveClicksOnHelpStartTheSimulatorWhileNothingIsConnected) {
    plugIn(ProtoEnum::K6);
    click("info", 11);
    connect();
    click("info", 2);
    disconnect();
    click("info", 11);
    EXPECT_FALSE(isConnected()) << "a click while connected restarts the count";
    for (const int clicks : {1, 12}) {
        click("info", clicks);
        EXPECT_TRUE(objects.usbService.inTesting());
        EXPECT_EQ(look("TEST MODE"), "'TEST MODE' #ff0000 25");
        EXPECT_EQ(driver->find("Announcer")->property("words"), "Connected. Test mode");
        disconnect();
        EXPECT_FALSE(driver->control("TEST MODE"));
    }
}
