#include "screen-fixture.h"

#include <QQmlComponent>

/// The look of a switch ("on", "off") or of a slider with its runner at x.
static std::string lookOf(const QString &shown, const QString &opacity = "0.8") {
    QString look = "#808080 r15 60x30+0= *O, #ffffff r18.75 37.5x37.5+0= *O";
    if (shown == "on")
        look = "#3cb371 r15 60x30+0= *O, #a4ebb6 r18.75 37.5x37.5+30= *O";
    else if (const int x = shown.toInt())
        look = QString::asprintf("#a4ebb6 r2 %dx4+10= *O, #808080 r2 %dx4+%d= *O, #a4ebb6 r10 20x20+%d= *O",
                                 x - 10, 470 - x, x + 20, x);
    return look.replace('O', opacity).toStdString();
}

class ConfigDrawerTest : public ScreenFixture {
protected:
    void open(ProtoEnum generation) {
        driver->resize({800, 2200});
        connectTo(generation);
        click("cfg");
        driver->picture();
    }

    /// The slider or switch of a row. In a row that opens a dialog, the row itself.
    const QQuickItem &control(const QString &title) const {
        const QQuickItem &row = *driver->find("PreferenceRow", title);
        const QQuickItem *slider = driver->find("Slider", {}, &row);
        const QQuickItem *part = slider ? slider : driver->find("Switch", {}, &row);
        return part ? *part : row;
    }
    /// Drags a slider to a value, clicks a switch, or chooses from a dialog.
    void touch(const QString &title, const QString &where) {
        const QQuickItem &item = control(title);
        const bool isSlider = item.property("maximumValue").isValid();
        if (isSlider)
            driver->slide(item, where.toDouble());
        else
            driver->click(item);
        if (!isSlider && !where.isEmpty())
            choose(where);
    }
    /// Waits for the look, because a switch moves slowly.
    void expectLook(const QString &title, const std::string &look) const {
        ScreenDriver::waitFor([&] { return driver->look(control(title)) == look; });
        EXPECT_EQ(driver->look(control(title)), look) << qPrintable(title);
    }

    /// Checks settings. A line has title, summary, types and keys of the edited fields, the first look (for a
    /// dialog: the current entry), and touches with the values that they set.
    void walk(const QString &settings) {
        for (const QString &line : settings.split('\n')) {
            const QStringList setting = line.split('|'), touches = setting.mid(4);
            const QString &title = setting[0], &shown = setting[3];
            SCOPED_TRACE(qPrintable(title));
            const QString words = "'%1' #ffffff 18 bold *0.8, '%2' #d3d3d3 14.4 *0.8";
            EXPECT_THAT(driver->look(*driver->find("PreferenceRow", title)),
                        StartsWith(words.arg(title, setting[1]).toStdString()));
            if (driver->find("ConfigPreference", title)) {
                touch(title, {});
                QString entries;
                for (int i = 0; i < touches.size(); ++i)
                    entries += QString("\n240x64+280+%1 #%2/#000000:2.4 r12.8, '%3' #000000 18")
                                   .arg(1100 - 32 * touches.size() + 64 * i)
                                   .arg(touches[i].startsWith(shown + '=') ? "d3d3d3" : "ffffff",
                                        touches[i].section('=', 0, 0));
                EXPECT_EQ(driver->looks("Button", "ListButtonDialog"), entries.toStdString());
                EXPECT_THAT(sentBy([this] { choose("Detection"); }), IsEmpty());
            } else {
                expectLook(title, lookOf(shown));
            }
            for (const QString &each : touches) {
                const auto expected = edits(setting[2], each.section('=', 1));
                const auto sent = sentBy([&] { touch(title, each.section('=', 0, 0)); });
                EXPECT_THAT(sent, ElementsAreArray(expected)) << qPrintable(each);
            }
        }
    }
};

TEST_F(ConfigDrawerTest, OffersEverySettingOfTheGenerationAndSendsEachEdit) {
    const std::string detection = "Detection|Scan mode|Radioscan frequence|AI mode|AI mode configure|";
    const QString both =
        R"(Scan mode|Radioscan frequence|CONFIG mode|Standard|Efficient="ECO"|Standard="BASE"|Automatic="AUTO"|Continuous="CONT"
AI mode|AI mode configure|AI_PRIOR aiPrior|AIDefault|AIDefault="DEFAULT"|Mode "Field"="FIELD"|Mode "City"="CITY")";
    open(ProtoEnum::K6);
    EXPECT_EQ(driver->words("DrawerFrame"), detection + "Interface|Brightness|Indication brightness|50|");
    walk(both + "\nBrightness|Indication brightness|CONFIG indLedLvl|240|20=20|120=100");
    disconnect();

    open(ProtoEnum::K7);
    walk(both + R"(
Voice alarm|Speak detection results|CONFIG_K7 voiceEn|on|=false|=true|=false
Alarm level|Speech alert with signal level specified and higher|CONFIG_K7 voiceDbLvl|Medium (-94)|Early (-99)=-99|Medium (-94)=-94|Late (-88)=-88
Sound volume|Alarm sound volume|CONFIG indSndLvl|480|63=63|0=0
Headphones volume|3.5 mm headphones volume|CONFIG_K7 indHeadLvl|120|120=100
Headphones output|3.5 mm headphones output mode|CONFIG_K7 indHeadMode|Sound|Disconnected="OFF"|Sound="SOUND"|EW management="EW_CONTROL"
Sound|Sound alarm|CONFIG indSnd|on|=false
Vibro|Vibro alarm|CONFIG indVibro|off|=true
Brightness|Indication brightness|CONFIG indLedLvl, CONFIG_K7 dispLvl|240|70=70
Display timeout|Shut off the display for inactivity in seconds|CONFIG_K7 dispOffTime|40|122=120|400=360)");

    const auto config = R"({"type":"CONFIG","proto":"K7","indSnd":true,"indSndLvl":10,"indLedLvl":15})";
    QPoint hand;
    EXPECT_THAT(sentBy([&] { hand = driver->slide(control("Brightness"), 35, false); }), IsEmpty());
    deviceSays(config);
    expectLook("Brightness", lookOf("168", "0.24"));
    EXPECT_THAT(sentBy([&] { QTest::mouseRelease(window, Qt::LeftButton, {}, hand); }),
                Contains(HasSubstr("\"indLedLvl\" : 35")));
    deviceSays(config);
    deviceSays(R"({"type":"CONFIG_K7","voiceEn":true,"indHeadLvl":20,"dispOffTime":180,"voiceDbLvl":-97})");
    const QString told =
        "Voice alarm|on|Sound|on|Vibro|off|Sound volume|48|Headphones volume|96|Brightness|72|"
        "Display timeout|240";
    for (int i = 0; i < told.count('|'); i += 2)
        expectLook(told.section('|', i, i), lookOf(told.section('|', i + 1, i + 1)));
    EXPECT_EQ(
        driver->words("DrawerFrame"),
        detection +
            R"(Alarm|Voice alarm|Speak detection results|Alarm level|Speech alert with signal level specified and higher|Sound volume|Alarm sound volume|10|Headphones volume|3.5 mm headphones volume|20|Headphones output|3.5 mm headphones output mode|Sound|Sound alarm|Vibro|Vibro alarm|Interface|Brightness|Indication brightness|15|Display timeout|Shut off the display for inactivity in seconds|180|)");
    touch("Alarm level", {});
    EXPECT_THAT(driver->looks("Button", "ListButtonDialog"), Not(HasSubstr("#d3d3d3")))
        << "a level not offered";
}

TEST_F(ConfigDrawerTest, FollowsTheGenerationAndTheWindow) {
    open(ProtoEnum::K7);
    const QQuickItem &frame = *driver->find("DrawerFrame");
    const auto isInView = [&](const char *word) { return driver->isInView(*driver->control(word), frame); };
    const auto gaps = [&] { // above the first row or header and between all of them, each different gap once
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
    std::string margins;
    for (const char *header : {"Detection", "Alarm", "Interface"})
        margins += QString::number(driver->control(header)->x()).toStdString() + ' ';
    EXPECT_EQ(margins, "24 0 0 ") << "only the first has a margin";
    const double height = frame.height();
    for (const auto &[generation, last] : {std::pair("K6", "Brightness"), {"K7EW", "Display timeout"}}) {
        deviceSays(std::string(R"({"type":"CONFIG","proto":")") + generation + "\"}");
        driver->picture();
        EXPECT_EQ(frame.height() < height, generation == std::string("K6"));
        EXPECT_TRUE(isInView("Detection") && isInView(last)) << generation;
        EXPECT_THAT(gaps(), ElementsAre(18, 24)) << generation;
    }
    driver->resize({300, 400});
    const auto turnWheel = [this](const QPoint &at) {
        QWheelEvent turn(at, at, {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window, &turn);
    };
    click("Scan mode");
    for (int turn = 0; turn < 20; ++turn) {
        turnWheel(turn % 2 ? QPoint(20, 120) : QPoint(150, 200));
        driver->picture();
    }
    choose("Standard");
    EXPECT_TRUE(isInView("Detection") && !isInView("Display timeout")) << "a dialog keeps the wheel";
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return turnWheel({20, 120}), !isInView("Detection"); }));
    EXPECT_TRUE(driver->scrollDown(frame));
    EXPECT_TRUE(!isInView("Detection") && isInView("Display timeout"));
}

TEST_F(ConfigDrawerTest, ASwitchTakesItsFirstPlaceAtOnceAndGlidesToTheNext) {
    QQmlComponent document(&engine->qmlEngine(), QUrl("qrc:/qml/controls/Switch.qml"));
    const std::unique_ptr<QObject> made(document.createWithInitialProperties({{"width", 120}}));
    const QQuickItem &knob = *qobject_cast<QQuickItem *>(made.get())->childItems()[2];
    EXPECT_EQ(knob.x(), 30);
    made->setProperty("checked", false);
    EXPECT_EQ(knob.x(), 30);
    QVariant velocity;
    for (const QObject *part : knob.findChildren<QObject *>())
        if (part->inherits("QQuickSmoothedAnimation"))
            velocity = part->property("velocity");
    EXPECT_EQ(velocity, 200);
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return knob.x() == 0; }));
}

TEST_F(ConfigDrawerTest, ADragFromASliderEitherScrollsTheDrawerOrSetsTheValue) {
    open(ProtoEnum::K7);
    QQuickItem *flickable = driver->find("QQuickFlickable", {}, driver->find("DrawerFrame"));
    const auto scrolled = [&] { return flickable->property("contentY").toReal(); };
    const auto value = [this] { return control("Sound volume").property("value").toInt(); };
    for (const int height : {1000, 2200}) { // a drawer that scrolls, and one that fits
        driver->resize({800, height});
        const double top = scrolled();
        ASSERT_EQ(value(), 100);
        for (const QPoint way : {QPoint(0, -60), {-10, -90}, {30, -50}, {0, 14}, {50, -30}, {-60, 10}}) {
            flickable->setProperty("contentY", top);
            SCOPED_TRACE(QString("%1,%2 in %3").arg(way.x()).arg(way.y()).arg(height).toStdString());
            const bool isSliding = qAbs(way.x()) > qAbs(way.y());
            const QPoint from = ScreenDriver::middleOf(control("Sound volume"));
            const auto sent = sentBy([&] { driver->drag(from, from + way); });
            EXPECT_EQ(sent.size(), isSliding ? 2U : 0U);
            EXPECT_EQ(value() == 100, !isSliding);
            EXPECT_EQ(scrolled() > top, way.y() <= -50 && !isSliding && height == 1000);
            deviceSays(R"({"type":"CONFIG","proto":"K7","indSndLvl":100})");
            EXPECT_EQ(value(), 100) << "follows the device again";
            EXPECT_TRUE(ScreenDriver::waitFor([&] { return !flickable->property("moving").toBool(); }));
        }
    }
}
