#include "drawer-fixture.h"
#include "msg-to-json-parser.h"

using json11::Json;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// A row, the settings (type and key) that it edits, and touches: the dialog's entry that is taken or the
/// value that a slider is dragged to, empty for a switch, and what that sets.
struct Row {
    QString title;
    std::vector<std::pair<std::string, std::string>> settings;
    std::vector<std::pair<QString, Json>> touches;
};

class ConfigDrawerTest : public DrawerFixture {
protected:
    void open(ProtoEnum generation) {
        resize(800, 2200);
        plugIn(generation);
        connectByButton();
        click("cfg");
        driver->picture();
    }

    QQuickItem &row(const QString &title) const {
        const auto isRow = [&](const QQuickItem &item) {
            return item.property("summary").isValid() && item.property("title") == title;
        };
        return driver->find(isRow) ? *driver->find(isRow) : throw std::runtime_error(title.toStdString());
    }

    void touch(const QString &title, const QString &where) {
        if (const QQuickItem *slider = first("Slider", &row(title))) {
            const double x = slider->height() / 4 + where.toDouble() * unitOf(*slider);
            driver->drag(ScreenDriver::middleOf(*slider),
                         slider->mapToScene({x, slider->height() / 2}).toPoint());
        } else if (const QQuickItem *toggle = first("Switch", &row(title))) {
            driver->click(*toggle);
        } else {
            driver->click(row(title));
            choose(where);
        }
    }

    /// The way of a slider's runner for each unit of its value.
    static double unitOf(const QQuickItem &slider) {
        return (slider.width() - slider.height() / 2) / slider.property("maximumValue").toDouble();
    }

    /// Where a switch or the runner of a slider stands.
    int shows(const QString &title) const {
        if (const QQuickItem *toggle = first("Switch", &row(title)))
            return toggle->property("checked").toBool();
        const QQuickItem &slider = *first("Slider", &row(title));
        for (const QQuickItem *child : slider.childItems())
            if (child->width() == slider.height() / 2)
                return qRound(child->x() / unitOf(slider));
        return -1;
    }

    /// Every commit is on the wire twice: the connections to the service are doubled.
    void walk(const std::vector<Row> &rows) {
        for (const auto &[title, settings, touches] : rows) {
            for (const auto &[where, value] : touches) {
                std::vector<std::string> expected;
                for (const auto &[type, key] : settings) {
                    auto message = device->settingsOf(type);
                    message["type"] = type;
                    message[key] = value;
                    const auto edited = Msg::parseJson(Json(message).dump());
                    expected.insert(expected.end(), 2, MsgToJsonParser::toJson(edited));
                }
                const auto sent = sentBy([&, t = title, w = where] { touch(t, w); });
                EXPECT_THAT(sent, ElementsAreArray(expected)) << qPrintable(title + ": " + where);
            }
        }
    }
};

TEST_F(ConfigDrawerTest, OffersEverySettingOfTheGenerationAndSendsEachEdit) {
    const std::string detection = "Detection|Scan mode|Radioscan frequence|AI mode|AI mode configure|";
    const std::string interface = "Interface|Brightness|Indication brightness|50|";
    const std::vector<Row> both = {
        {"Scan mode",
         {{"CONFIG", "mode"}},
         {{"Efficient", "ECO"}, {"Standard", "BASE"}, {"Automatic", "AUTO"}, {"Continuous", "CONT"}}},
        {"AI mode",
         {{"AI_PRIOR", "aiPrior"}},
         {{"Mode \"Field\"", "FIELD"}, {"Mode \"City\"", "CITY"}, {"AIDefault", "DEFAULT"}}},
    };
    open(ProtoEnum::K6);
    EXPECT_EQ(words(), detection + interface);
    walk(both);
    walk({{"Brightness", {{"CONFIG", "indLedLvl"}}, {{"20", 20}}}});
    disconnectByButton();

    open(ProtoEnum::K7);
    EXPECT_EQ(words(),
              detection +
                  "Alarm|Voice alarm|Speak detection results|Alarm level|"
                  "Speech alert with signal level specified and higher|Sound volume|"
                  "Alarm sound volume|100|Headphones volume|3.5 mm headphones volume|25|"
                  "Headphones output|3.5 mm headphones output mode|Sound|Sound alarm|Vibro|Vibro alarm|" +
                  interface + "Display timeout|Shut off the display for inactivity in seconds|30|");
    walk(both);
    walk({
        {"Voice alarm", {{"CONFIG_K7", "voiceEn"}}, {{"", false}, {"", true}}},
        {"Alarm level",
         {{"CONFIG_K7", "voiceDbLvl"}},
         {{"Early (-99)", -99}, {"Medium (-94)", -94}, {"Late (-88)", -88}}},
        {"Sound volume", {{"CONFIG", "indSndLvl"}}, {{"63", 63}, {"0", 0}}},
        {"Headphones volume", {{"CONFIG_K7", "indHeadLvl"}}, {{"140", 100}}},
        {"Headphones output",
         {{"CONFIG_K7", "indHeadMode"}},
         {{"Disconnected", "OFF"}, {"Sound", "SOUND"}, {"EW management", "EW_CONTROL"}}},
        {"Sound", {{"CONFIG", "indSnd"}}, {{"", false}}},
        {"Vibro", {{"CONFIG", "indVibro"}}, {{"", true}}},
        {"Brightness", {{"CONFIG", "indLedLvl"}, {"CONFIG_K7", "dispLvl"}}, {{"70", 70}}},
        {"Display timeout", {{"CONFIG_K7", "dispOffTime"}}, {{"122", 120}, {"400", 360}}},
    });
}

TEST_F(ConfigDrawerTest, ATouchedControlFollowsTheDeviceAgain) {
    open(ProtoEnum::K7);
    const std::map<QString, int> told = {
        {"Voice alarm", 1},      {"Sound", 1},       {"Vibro", 0},
        {"Sound volume", 11},    {"Brightness", 12}, {"Headphones volume", 13},
        {"Display timeout", 200}};
    for (const auto &[title, value] : told)
        touch(title, "90");
    deviceSays(
        R"({"type":"CONFIG","proto":"K7","indSnd":true,"indVibro":false,"indSndLvl":11,"indLedLvl":12})");
    deviceSays(R"({"type":"CONFIG_K7","voiceEn":true,"indHeadLvl":13,"dispOffTime":200})");
    for (const auto &[title, value] : told)
        EXPECT_EQ(shows(title), value) << qPrintable(title);
}

TEST_F(ConfigDrawerTest, MarksTheCurrentEntryAndIsLeftByAClickOutside) {
    open(ProtoEnum::K7);
    deviceSays(R"({"type":"CONFIG_K7","voiceDbLvl":-97})");
    for (const auto &[title, entries, current] : std::vector<std::tuple<QString, QString, QString>>{
             {"Scan mode", "Efficient|Standard|Automatic|Continuous", "Standard"},
             {"AI mode", "AIDefault|Mode \"Field\"|Mode \"City\"", "AIDefault"},
             {"Alarm level", "Early (-99)|Medium (-94)|Late (-88)", ""},
             {"Headphones output", "Disconnected|Sound|EW management", "Disconnected"}}) {
        driver->click(row(title));
        EXPECT_EQ(words("ListButtonDialog"), entries.toStdString() + "|");
        for (const QString &word : entries.split('|'))
            EXPECT_EQ(entry(word)->property("color").value<QColor>() == QColor("lightgray"), word == current);
        EXPECT_THAT(sentBy([&] { click("Detection"); }), IsEmpty());
        EXPECT_FALSE(first("ListButtonDialog"));
    }
}

TEST_F(ConfigDrawerTest, OneDrawerIsOpenAtATime) {
    open(ProtoEnum::K6);
    const auto openAfter = [this](const char *button) {
        click(button);
        return std::string(driver->control("Detection") ? "settings " : "") +
               (driver->control("Manual") ? "help" : "");
    };
    EXPECT_EQ(openAfter("info"), "help");
    EXPECT_EQ(openAfter("cfg"), "settings ");
    EXPECT_EQ(openAfter("cfg"), "");
    EXPECT_EQ(openAfter("cfg"), "settings ");
    EXPECT_EQ(openAfter("usb"), "") << "settings of no device";
}

TEST_F(ConfigDrawerTest, FitsALargeWindowAndScrollsInASmallOne) {
    open(ProtoEnum::K7);
    EXPECT_TRUE(isInView("Detection") && isInView("Display timeout"));
    resize(300, 400);
    EXPECT_TRUE(isInView("Detection") && !isInView("Display timeout"));
    EXPECT_TRUE(driver->scrollDown(*first("DrawerFrame")));
    EXPECT_TRUE(!isInView("Detection") && isInView("Display timeout"));
}
