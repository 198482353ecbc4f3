#include "visuals/uav-switch.h"

#include "models.h"
#include "screen-driver.h"
#include "visuals/uav-three-switch.h"

#include <QImage>
#include <QPainter>
#include <QQuickWindow>

static QImage picture(QQuickPaintedItem &item) {
    item.setSize({160, 40});
    item.setProperty("lineWidth", 2);
    item.setProperty("backgroundColor", QColor("#0a141e"));
    QImage image(160, 40, QImage::Format_RGB32);
    QPainter painter(&image);
    item.paint(&painter);
    return image;
}

/// The colours of the label, of the head beside the disc, and of the disc's upper and lower half.
static std::string colors(QQuickPaintedItem &item) {
    QString names;
    for (const QPoint &point : {QPoint(150, 32), {35, 20}, {18, 9}, {18, 27}})
        names += picture(item).pixelColor(point).name();
    return names.toStdString();
}

TEST(UavSwitch, ShowsItsState) {
    UavSwitch two;
    UavThreeSwitch three;
    SignalRecorder signalsOfTwo(&two), signalsOfThree(&three);
    QSignalSpy enabledOfTwo(&two, &UavSwitch::switchEnabledChanged);
    const std::tuple<bool, int, const char *> cases[] = {{true, 1, "#5b9bd5#c4d5ec#c4d5ec#41709a"},
                                                         {true, 2, "#5b9bd5#c4d5ec#41709a#41709a"},
                                                         {true, 0, "#5b9bd5#c4d5ec#c4d5ec#c4d5ec"},
                                                         {false, 1, "#0a141e#c4d5ec#c4d5ec#c4d5ec"},
                                                         {false, 2, "#0a141e#c4d5ec#c4d5ec#c4d5ec"}};
    for (const auto &[enabled, position, expected] : cases) {
        three.setProperty("switchEnabled", enabled);
        three.nextPosition();
        EXPECT_EQ(three.numPosition(), position);
        EXPECT_EQ(colors(three), expected);
        two.setProperty("switchEnabled", enabled);
        two.setProperty("checked", position == 2);
        EXPECT_TRUE(position == 1 || colors(two) == expected) << colors(two);
    }
    EXPECT_EQ(signalsOfTwo.take(),
              "checkedChanged checkedChanged checkedChanged checkedChanged checkedChanged");
    EXPECT_EQ(enabledOfTwo.count(), 5);
    signalsOfThree.take();
    three.setProperty("position", 0);
    EXPECT_EQ(signalsOfThree.take(), "") << "no step of the user's";
    EXPECT_EQ(three.numPosition(), 0);
    three.setProperty("text", "2.4");
    three.nextPosition();
    EXPECT_EQ(signalsOfThree.take(), "textChanged positionChanged");
}

TEST(UavSwitch, IsPaintedAgainWhateverChanges) {
    QQuickWindow window;
    window.resize(160, 40);
    window.show();
    const ScreenDriver driver(window);
    UavSwitch two;
    UavThreeSwitch three;
    for (UavSwitchItem *item : {static_cast<UavSwitchItem *>(&two), static_cast<UavSwitchItem *>(&three)}) {
        item->setParentItem(window.contentItem());
        item->setSize({160, 40});
        QImage before = driver.picture();
        const auto expectChange = [&](const char *what) {
            const QImage after = driver.picture();
            EXPECT_NE(before, after) << what;
            before = after;
        };
        const std::pair<const char *, QVariant> changes[] = {{"backgroundColor", QColor("#0a141e")},
                                                             {"lineWidth", 3},
                                                             {"switchEnabled", true},
                                                             {"text", "2.4"},
                                                             {"textSize", 15},
                                                             {"checked", true},
                                                             {"text", "5.8"},
                                                             {"switchEnabled", false}};
        for (const auto &[name, value] : changes) {
            if (name == std::string("checked") && item == &three)
                three.nextPosition();
            else
                item->setProperty(name, value);
            expectChange(name);
        }
        item->setParentItem(nullptr);
    }
}

TEST(UavSwitch, ShrinksAWordThatTheLabelWouldCut) {
    UavSwitch item;
    item.setProperty("textSize", 28);
    item.setProperty("text", "MMMMMMMM");
    const QImage shown = picture(item);
    const auto hasWord = [&](int from, int to) {
        for (int i = from * 30; i < to * 30; ++i)
            if (shown.pixel(i / 30, 4 + i % 30) == qRgb(255, 255, 255))
                return true;
        return false;
    };
    EXPECT_TRUE(hasWord(44, 56) && hasWord(140, 152)) << "the label is full of it";
    EXPECT_FALSE(hasWord(152, 153)) << "but for its edge";
}
