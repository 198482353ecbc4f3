#include "visuals/uav-switch.h"

#include "signal-recorder.h"
#include "visuals/uav-three-switch.h"

#include <QImage>
#include <QPainter>
#include <gmock/gmock.h>

using testing::Contains;
using testing::Each;

static QImage picture(QQuickPaintedItem &item) {
    item.setSize({160, 40});
    item.setProperty("lineWidth", 2);
    item.setProperty("backgroundColor", QColor(10, 20, 30));
    QImage image(160, 40, QImage::Format_RGB32);
    QPainter painter(&image);
    item.paint(&painter);
    return image;
}

/// The colours of the label, of the head beside the disc, and of the disc's upper and lower half.
static std::string colors(QQuickPaintedItem &item) {
    QString names;
    const QImage image = picture(item);
    for (const QPoint &point : {QPoint(150, 32), {35, 20}, {18, 9}, {18, 27}})
        names += image.pixelColor(point).name() + " ";
    return names.trimmed().toStdString();
}

TEST(UavSwitch, ShowsItsState) {
    UavSwitch two;
    UavThreeSwitch three;
    SignalRecorder signalsOfThree(&three), signalsOfTwo(&two);
    struct {
        bool enabled, checked;
        int position;
        const char *two, *three;
    } const cases[] = {{false, true, 1, "#0a141e #c4d5ec #c4d5ec #c4d5ec", "#0a141e #c4d5ec #c4d5ec #c4d5ec"},
                       {true, true, 2, "#5b9bd5 #c4d5ec #41709a #41709a", "#5b9bd5 #c4d5ec #41709a #41709a"},
                       {true, false, 0, "#5b9bd5 #c4d5ec #c4d5ec #c4d5ec", "#5b9bd5 #c4d5ec #c4d5ec #c4d5ec"},
                       {true, true, 1, "#5b9bd5 #c4d5ec #41709a #41709a", "#5b9bd5 #c4d5ec #c4d5ec #41709a"}};
    for (const auto &[enabled, checked, position, colorsOfTwo, colorsOfThree] : cases) {
        two.setProperty("switchEnabled", enabled);
        three.setProperty("switchEnabled", enabled);
        two.setProperty("checked", checked);
        while (three.numPosition() != position)
            three.nextPosition();
        EXPECT_EQ(colors(two), colorsOfTwo) << enabled << checked;
        EXPECT_EQ(colors(three), colorsOfThree) << enabled << position;
    }
    EXPECT_EQ(signalsOfTwo.take(), "checkedChanged checkedChanged checkedChanged checkedChanged");
    EXPECT_EQ(signalsOfThree.take(), "positionChanged positionChanged positionChanged positionChanged");
    three.setProperty("text", "2.4");
    three.setProperty("position", 2);
    EXPECT_EQ(signalsOfThree.take(), "textChanged") << "a written position is no step";
    EXPECT_EQ(three.property("position"), 2);
    EXPECT_EQ(three.property("text"), "2.4");
}

TEST(UavSwitch, ShrinksAWordThatTheLabelWouldCut) {
    UavSwitch item;
    item.setProperty("switchEnabled", true);
    item.setProperty("textSize", 28);
    item.setProperty("text", "MMMMMMMM");
    const QImage image = picture(item);
    std::vector<QColor> lastLetter, edge;
    for (int y = 4; y < 34; ++y) {
        edge.push_back(image.pixelColor(152, y));
        for (int x = 140; x < 152; ++x)
            lastLetter.push_back(image.pixelColor(x, y));
    }
    EXPECT_THAT(lastLetter, Contains(QColor(Qt::white)));
    EXPECT_THAT(edge, Each(QColor("#5b9bd5")));
}
