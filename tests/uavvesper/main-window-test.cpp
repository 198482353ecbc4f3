#include "screen-fixture.h"

#include <QSignalSpy>

using namespace testing;

class MainWindowTest : public ScreenFixture {};

TEST_F(MainWindowTest, DividesItselfInEverySize) {
    EXPECT_EQ(window->title(), "Kelvane 1.1");
    EXPECT_EQ(window->objectName(), "applicationWindow");
    EXPECT_EQ(window->minimumSize(), QSize(300, 400));
    EXPECT_EQ(driver->find("MainPage")->objectName(), "mainPage");
    click("info");
    struct {
        QSize size;
        int changes;
        std::vector<const char *> places; // of the page, the legend, the buttons, the settings and the help
    } const sizes[] = {
        {{800, 1000},
         0,
         {"800x667+0+0", "800x71.5+0+667", "800x71.5+0+738.5", "800x190+0+810", "720x667+40+0"}},
        {{600, 1000},
         1,
         {"600x745+0+0", "600x54.5+0+745", "600x54.5+0+799.5", "600x146+0+854", "540x745+30+0"}},
        {{600, 700}, 1, {"600x454+0+0", "600x53+0+454", "600x53+0+507", "600x140+0+560", "540x454+30+0"}}};
    QSignalSpy changes(&objects.themeData, SIGNAL(sizeChanged()));
    for (const auto &[size, times, places] : sizes) {
        changes.clear();
        driver->resize(size);
        EXPECT_EQ(changes.count(), times);
        std::vector<std::string> found;
        for (const char *part :
             {"MainPage", "LegendLayout", "ButtonLayout", "SettingsLayout", "HelpFragment"})
            found.push_back(ScreenDriver::place(*driver->find(part)));
        EXPECT_THAT(found, ElementsAreArray(places));
        EXPECT_EQ(driver->picture().pixelColor(5, 5), QColor("#81909f"));
    }
}

TEST_F(MainWindowTest, EndsTheConnectionWhenItIsDestroyed) {
    connectTo(ProtoEnum::K6);
    EXPECT_TRUE(device->isScanning());
    screens.reset();
    EXPECT_TRUE(device->waitForOpen(false));
    EXPECT_FALSE(device->isScanning());
}
