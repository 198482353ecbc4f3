#include "screen-fixture.h"

using namespace testing;

class ConfigDrawerTest : public ScreenFixture {
protected:
    void open(ProtoEnum generation) {
        driver->resize({800, 2200});
        connectTo(generation);
        click("cfg");
        driver->picture();
    }

    const QQuickItem *in(const QString &title, const char *element) const {
        return driver->find(element, {}, driver->find("PreferenceRow", title));
    }
    const QQuickItem *control(const QString &title) const {
        return in(title, in(title, "Slider") ? "Slider" : "Switch");
    }
    /// Where to press a slider so that its value becomes this.
    static QPoint at(const QQuickItem &slider, double value) {
        const double way = slider.width() - slider.height() / 2;
        const double x = slider.height() / 4 + way * value / slider.property("maximumValue").toDouble();
        return slider.mapToScene({x, slider.height() / 2}).toPoint();
    }
    /// Whether a switch ("on", "off") or a slider, by the place of its runner, comes to look so.
    bool shows(const QString &title, const QString &shown, const QString &opacity = "0.8") const {
        QString pattern = "#a4ebb6 r2 %1x4.10.18 .O, #808080 r2 %2x4.%3.18 .O, #a4ebb6 r10 20x20.%4.10 .O";
        if (const int x = shown.toInt())
            pattern = pattern.arg(x - 10).arg(470 - x).arg(x + 20).arg(x);
        else if (shown == "on")
            pattern = "#3cb371 r15 60x30.0.[0-9.]+ .O, #a4ebb6 r18.75 37.5x37.5.30.[0-9.]+ .O";
        else
            pattern = "#808080 r15 60x30.0.[0-9.]+ .O, #ffffff r18.75 37.5x37.5.0.[0-9.]+ .O";
        const auto matches = Matches(MatchesRegex(pattern.replace('O', opacity).toStdString()));
        return ScreenDriver::waitFor([&] { return matches(driver->look(*control(title))); });
    }

    /// Touches a control: clicks a switch, drags a slider to a value, or takes an entry of a dialog.
    void touch(const QString &title, const QString &where) {
        if (const QQuickItem *slider = in(title, "Slider"))
            driver->drag(ScreenDriver::middleOf(*slider), at(*slider, where.toDouble()));
        else if (const QQuickItem *toggle = in(title, "Switch"))
            driver->click(*toggle);
        else
            choose(title, where);
    }
    /// Takes an entry of a dialog, or leaves it by a click outside. Returns the look of the dialog.
    QString choose(const QString &title, const QString &entry = {}) {
        driver->click(*in(title, "PreferenceRow"));
        const QQuickItem *dialog = driver->find("ListButtonDialog");
        const std::string look = dialog ? driver->look(*dialog) : "no dialog";
        if (dialog)
            driver->click(entry.isEmpty() ? *driver->control("Detection")
                                          : *driver->find("Button", entry, dialog));
        EXPECT_TRUE(ScreenDriver::waitFor([this] { return !driver->find("ListButtonDialog"); }));
        return QString::fromStdString(look);
    }

    /// Walks settings, each with title, summary, types and keys of what it edits, what it shows at first, and
    /// touches with the values that they set.
    void walk(const QString &settings) {
        for (const QString &line : settings.split('\n')) {
            const QStringList setting = line.split('|'), touches = setting.mid(4);
            const QString &title = setting[0], &shown = setting[3];
            SCOPED_TRACE(qPrintable(title));
            const QString words =
                QString("'%1' #ffffff 18 bold *0.8, '%2' #d3d3d3 14.4 *0.8").arg(title, setting[1]);
            EXPECT_THAT(driver->look(*in(title, "PreferenceRow")), StartsWith(words.toStdString()));
            QString dialog = "#000000 *0.4";
            for (int i = 0; i < touches.size(); ++i)
                dialog += QString(", %1/#000000:2.4 r12.8 240x64+280+%2, '%3' #000000 18")
                              .arg(touches[i].startsWith(shown + '=') ? "#d3d3d3" : "#ffffff")
                              .arg(1100 - 32 * touches.size() + 64 * i)
                              .arg(touches[i].section('=', 0, 0));
            if (control(title))
                EXPECT_TRUE(shows(title, shown)) << driver->look(*control(title));
            else
                EXPECT_EQ(choose(title), dialog);
            for (const QString &each : touches) {
                const auto expected = edits(setting[2], each.section('=', 1));
                EXPECT_THAT(sentBy([&] { touch(title, each.section('=', 0, 0)); }),
                            ElementsAreArray(expected))
                    << qPrintable(each);
            }
        }
    }
};

static const QString DETECTION =
    R"(Scan mode|Radioscan frequence|CONFIG mode|Standard|Efficient="ECO"|Standard="BASE"|Automatic="AUTO"|Continuous="CONT"
AI mode|AI mode configure|AI_PRIOR aiPrior|AIDefault|AIDefault="DEFAULT"|Mode "Field"="FIELD"|Mode "City"="CITY")";

TEST_F(ConfigDrawerTest, OffersEverySettingOfTheGenerationAndSendsEachEdit) {
    const std::string detection = "Detection|Scan mode|Radioscan frequence|AI mode|AI mode configure|";
    open(ProtoEnum::K6);
    EXPECT_EQ(driver->words("DrawerFrame"), detection + "Interface|Brightness|Indication brightness|50|");
    walk(DETECTION + "\nBrightness|Indication brightness|CONFIG indLedLvl|240|20=20|140=100");
    disconnectByButton();

    open(ProtoEnum::K7);
    walk(DETECTION + R"(
Voice alarm|Speak detection results|CONFIG_K7 voiceEn|on|=false|=true|=false
Alarm level|Speech alert with signal level specified and higher|CONFIG_K7 voiceDbLvl|Medium (-94)|Early (-99)=-99|Medium (-94)=-94|Late (-88)=-88
Sound volume|Alarm sound volume|CONFIG indSndLvl|480|63=63|0=0
Headphones volume|3.5 mm headphones volume|CONFIG_K7 indHeadLvl|120|140=100
Headphones output|3.5 mm headphones output mode|CONFIG_K7 indHeadMode|Sound|Disconnected="OFF"|Sound="SOUND"|EW management="EW_CONTROL"
Sound|Sound alarm|CONFIG indSnd|on|=false
Vibro|Vibro alarm|CONFIG indVibro|off|=true
Brightness|Indication brightness|CONFIG indLedLvl, CONFIG_K7 dispLvl|240|70=70
Display timeout|Shut off the display for inactivity in seconds|CONFIG_K7 dispOffTime|40|122=120|400=360)");

    const QQuickItem &brightness = *control("Brightness");
    const std::string config =
        R"({"type":"CONFIG","proto":"K7","ranges":["EXT_2400"],"indSnd":true,"indVibro":false,)"
        R"("indSndLvl":10,"indLedLvl":15})";
    EXPECT_THAT(sentBy([&] {
                    QTest::mousePress(window, Qt::LeftButton, {}, at(brightness, 70));
                    QTest::mouseMove(window, at(brightness, 35));
                    deviceSays(config);
                }),
                IsEmpty());
    EXPECT_TRUE(shows("Brightness", "168", "0.24")) << "in the user's hand";
    QTest::mouseRelease(window, Qt::LeftButton, {}, at(brightness, 35));
    deviceSays(config);
    deviceSays(R"({"type":"CONFIG_K7","voiceEn":true,"indHeadLvl":20,"dispOffTime":180,"voiceDbLvl":-97})");
    const std::map<QString, QString> told = {
        {"Voice alarm", "on"},       {"Sound", "on"},      {"Vibro", "off"},          {"Sound volume", "48"},
        {"Headphones volume", "96"}, {"Brightness", "72"}, {"Display timeout", "240"}};
    for (const auto &[title, shown] : told)
        EXPECT_TRUE(shows(title, shown)) << qPrintable(title);
    EXPECT_EQ(
        driver->words("DrawerFrame"),
        detection +
            "Alarm|Voice alarm|Speak detection results|Alarm level|Speech alert with signal level "
            "specified and higher|Sound volume|Alarm sound volume|10|Headphones volume|3.5 mm headphones "
            "volume|20|Headphones output|3.5 mm headphones output mode|Sound|Sound alarm|Vibro|Vibro "
            "alarm|Interface|Brightness|Indication brightness|15|Display timeout|Shut off the display for "
            "inactivity in seconds|180|");
    EXPECT_FALSE(choose("Alarm level").contains("#d3d3d3")) << "a level that is not offered";
}

TEST_F(ConfigDrawerTest, FollowsTheGenerationAndTheWindow) {
    open(ProtoEnum::K7);
    const QQuickItem &frame = *driver->find("DrawerFrame");
    const auto isInView = [&](const char *word) {
        return ScreenDriver::isInView(*driver->control(word), frame);
    };
    const auto gaps = [&] { // above the first and between the rows and headers, each once
        std::set<double> found;
        double end = frame.mapToScene({0, 0}).y();
        for (const QQuickItem *item : driver->findAll({}, {}, &frame))
            if (item->property("summary").isValid() ||
                QString(item->metaObject()->className()).startsWith("Section")) {
                found.insert(item->mapToScene({0, 0}).y() - end);
                end = item->mapToScene({0, item->height()}).y();
            }
        return found;
    };
    EXPECT_THAT(driver->look(frame), StartsWith("#c0415f50 r18 *0.8, 'Detection' #a4ebb6 25 bold *0.8, "));
    EXPECT_TRUE(isInView("Detection") && isInView("Display timeout"));
    EXPECT_THAT(gaps(), ElementsAre(18, 24));
    const double height = frame.height();
    for (const auto &[generation, last] : {std::pair("K6", "Brightness"), {"K7EW", "Display timeout"}}) {
        deviceSays(
            QString(R"({"type":"CONFIG","proto":"%1","ranges":["EXT_2400"]})").arg(generation).toStdString());
        driver->picture();
        EXPECT_EQ(frame.height() < height, generation == std::string("K6"));
        EXPECT_TRUE(isInView("Detection") && isInView(last)) << generation;
        EXPECT_THAT(gaps(), ElementsAre(18, 24)) << generation;
    }
    driver->resize({300, 400});
    EXPECT_TRUE(isInView("Detection") && !isInView("Display timeout"));
    EXPECT_TRUE(driver->scrollDown(frame));
    EXPECT_TRUE(!isInView("Detection") && isInView("Display timeout"));
}
