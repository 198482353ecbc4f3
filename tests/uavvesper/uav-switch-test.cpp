#include "visuals/uav-switch.h"

#include "visuals/uav-three-switch.h"

#include <QImage>
#include <QPainter>
#include <gmock/gmock.h>

using testing::Contains;
using testing::Each;
using testing::ElementsAre;

static const QColor OFF(10, 20, 30), LABEL(0x5b, 0x9b, 0xd5), HEAD(0xc4, 0xd5, 0xec), DISC(0x41, 0x70, 0x9a);

/// An item's size and points of it off the text and off every edge: on the label, on the head beside the
/// disc, and on the upper and the lower half of the disc.
struct Layout {
    QSize size;
    int lineWidth;
    std::vector<QPoint> points;
};
static const Layout LARGE = {{160, 40}, 2, {{150, 32}, {35, 20}, {18, 9}, {18, 27}}};
static const Layout SMALL = {{40, 14}, 1, {{35, 10}, {11, 8}, {5, 3}, {5, 8}}};

static std::vector<QColor> colors(QQuickPaintedItem &item, const Layout &layout) {
    item.setSize(layout.size);
    item.setProperty("lineWidth", layout.lineWidth);
    item.setProperty("backgroundColor", OFF);
    QImage image(layout.size, QImage::Format_RGB32);
    QPainter painter(&image);
    item.paint(&painter);
    std::vector<QColor> found;
    for (const QPoint &point : layout.points)
        found.push_back(image.pixelColor(point));
    return found;
}

TEST(UavSwitch, ShowsItsStateInEverySize) {
    for (const Layout &layout : {LARGE, SMALL}) {
        UavSwitch two;
        UavThreeSwitch three;
        two.setChecked(true);
        three.nextPosition();
        EXPECT_THAT(colors(two, layout), ElementsAre(OFF, HEAD, HEAD, HEAD));
        EXPECT_THAT(colors(three, layout), ElementsAre(OFF, HEAD, HEAD, HEAD));
        two.setSwitchEnabled(true);
        three.setSwitchEnabled(true);
        EXPECT_THAT(colors(two, layout), ElementsAre(LABEL, HEAD, DISC, DISC));
        EXPECT_THAT(colors(three, layout), ElementsAre(LABEL, HEAD, HEAD, DISC));
        two.setChecked(false);
        three.nextPosition();
        EXPECT_THAT(colors(two, layout), ElementsAre(LABEL, HEAD, HEAD, HEAD));
        EXPECT_THAT(colors(three, layout), ElementsAre(LABEL, HEAD, DISC, DISC));
        three.nextPosition();
        EXPECT_THAT(colors(three, layout), ElementsAre(LABEL, HEAD, HEAD, HEAD));
    }
}

TEST(UavSwitch, ShrinksAWordThatTheLabelWouldCut) {
    UavSwitch item;
    item.setSwitchEnabled(true);
    item.setProperty("textSize", 28);
    item.setProperty("text", "MMMMMMMM");
    Layout lastLetter = {{160, 40}, 2, {}};
    Layout edge = lastLetter;
    for (int y = 4; y < 34; ++y) {
        edge.points.emplace_back(152, y);
        for (int x = 140; x < 152; ++x)
            lastLetter.points.emplace_back(x, y);
    }
    EXPECT_THAT(colors(item, lastLetter), Contains(QColor(Qt::white)));
    EXPECT_THAT(colors(item, edge), Each(LABEL));
}
