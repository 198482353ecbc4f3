#include "visuals/uav-switch.h"
#include "visuals/uav-three-switch.h"

#include <QImage>
#include <QPainter>
#include <gmock/gmock.h>

namespace {

const QColor BACKGROUND(10, 20, 30);
const QColor LABEL = QColor::fromRgb(0x5b9bd5);
const QColor HEAD = QColor::fromRgb(0xc4d5ec);
const QColor DISC = QColor::fromRgb(0x41709a);

/// An item of 160 x 40 or 40 x 14 pixels, and points of it that lie off the text and off every edge.
struct Layout {
    QSize size;
    int lineWidth;
    QPoint label;
    QPoint head; ///< beside the disc
    QPoint upperDisc;
    QPoint lowerDisc;
};

const Layout LAYOUTS[] = {{{160, 40}, 2, {150, 32}, {35, 20}, {18, 9}, {18, 27}},
                          {{40, 14}, 1, {35, 10}, {11, 8}, {5, 3}, {5, 8}}};

void prepare(QQuickPaintedItem &item, const Layout &layout) {
    item.setSize(layout.size);
    item.setProperty("lineWidth", layout.lineWidth);
    item.setProperty("backgroundColor", BACKGROUND);
}

QImage picture(QQuickPaintedItem &item) {
    QImage image(item.size().toSize(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    item.paint(&painter);
    return image;
}

std::vector<QColor> colorsOf(QQuickPaintedItem &item, const Layout &layout) {
    const QImage image = picture(item);
    return {image.pixelColor(layout.label), image.pixelColor(layout.head), image.pixelColor(layout.upperDisc),
            image.pixelColor(layout.lowerDisc)};
}

} // namespace

TEST(UavSwitch, ShowsItsStateInEverySize) {
    for (const Layout &layout : LAYOUTS) {
        UavSwitch item;
        prepare(item, layout);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(BACKGROUND, HEAD, HEAD, HEAD));
        item.setChecked(true);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(BACKGROUND, HEAD, HEAD, HEAD));
        item.setSwitchEnabled(true);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(LABEL, HEAD, DISC, DISC));
        item.setChecked(false);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(LABEL, HEAD, HEAD, HEAD));
    }
}

TEST(UavThreeSwitch, ShowsItsPositionInEverySize) {
    for (const Layout &layout : LAYOUTS) {
        UavThreeSwitch item;
        prepare(item, layout);
        item.setSwitchEnabled(true);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(LABEL, HEAD, HEAD, HEAD));
        item.nextPosition();
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(LABEL, HEAD, HEAD, DISC));
        item.nextPosition();
        EXPECT_EQ(item.numPosition(), 2);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(LABEL, HEAD, DISC, DISC));
        item.setSwitchEnabled(false);
        EXPECT_THAT(colorsOf(item, layout), testing::ElementsAre(BACKGROUND, HEAD, HEAD, HEAD));
        item.nextPosition();
        EXPECT_EQ(item.numPosition(), 0);
    }
}

TEST(UavSwitch, ShrinksAWordThatTheLabelWouldCut) {
    UavSwitch item;
    prepare(item, LAYOUTS[0]);
    item.setSwitchEnabled(true);
    item.setProperty("textSize", 28);
    item.setProperty("text", "MMMMMMMM");
    const QImage image = picture(item);
    const QRect label(38, 2, 116, 32);
    const auto columnHasText = [&](int x) {
        for (int y = label.top(); y <= label.bottom(); ++y) {
            if (image.pixelColor(x, y) != LABEL)
                return true;
        }
        return false;
    };
    int columns = 0;
    for (int x = label.left() + 4; x < label.right() - 4; ++x)
        columns += columnHasText(x) ? 1 : 0;
    EXPECT_GT(columns, label.width() / 2) << "the word is there";
    EXPECT_FALSE(columnHasText(label.right() - 1)) << "and ends before the label does";
}

TEST(UavSwitch, PaintsAnItemTooSmallForAnything) {
    UavSwitch item;
    item.setProperty("text", "Sound");
    for (const QSize size : {QSize(1, 1), QSize(3, 40), QSize(40, 3)}) {
        item.setSize(size);
        EXPECT_FALSE(picture(item).isNull());
    }
}
