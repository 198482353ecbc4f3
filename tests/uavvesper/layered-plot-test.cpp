#include "plots.h"
#include "visuals/bar-scan-result-plot.h"
#include "visuals/freq-plot.h"
#include "visuals/hist-view.h"

#include <QFontMetrics>

/// What holds for every view, whatever it shows.
template <typename Plot>
class LayeredPlotTest : public testing::Test {
protected:
    const History history = historyOf({4, {{2400, -99, SigTypeEnum::NONE}, {2500, -80}}});
};
using Views = testing::Types<BarScanResultPlot, FreqPlot, HistView>;
TYPED_TEST_SUITE(LayeredPlotTest, Views);

TYPED_TEST(LayeredPlotTest, ShowsLabelsAndDataHoweverTheyCame) {
    const QSize size(300, 120);
    Shown<TypeParam> plot(size);
    plot.setHistory(this->history);
    QImage expected;
    for (const double scale : {1.25, 1.5, 2.0, 1.0}) {
        plot.itemChange(QQuickItem::ItemDevicePixelRatioHasChanged, scale);
        expected = QImage((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(expected.rect(), QColor("#101010"));
        painter.scale(scale, scale);
        paintDrawing(plot.legend(), painter);
        painter.resetTransform();
        const QRectF area(plot.plotArea);
        const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
        painter.setClipRect(pixels);
        painter.fillRect(pixels, QColor("#101010"));
        painter.scale(scale, scale);
        painter.translate(plot.plotArea.topLeft());
        paintDrawing(plot.data(), painter);
        EXPECT_EQ(plot.picture(scale), expected) << "sharp at a scale of " << scale;
    }

    Shown<TypeParam> resized({200, 80}), rescaled(size, 14);
    resized.setHistory(historyOf({3, {{2400, -99}, {2450, -90}}}));
    resized.setHistory(this->history);
    resized.setSize(size);
    EXPECT_EQ(resized.picture(), expected);
    const QFontMetrics metrics(fontOfSize(14));
    EXPECT_EQ(rescaled.measured, std::pair(metrics.averageCharWidth(), metrics.ascent()));
    rescaled.setProperty("textColor", QColor(Qt::red));
    rescaled.setHistory(this->history);
    rescaled.setProperty("textColor", QColor("#eeeeee"));
    rescaled.resize(size, 10, 0); // a line of no width keeps the one it has
    EXPECT_EQ(rescaled.picture(), expected);

    QQuickItem page;
    Shown<TypeParam> hidden(size);
    hidden.setParentItem(&page);
    QSignalSpy painted(&hidden, SIGNAL(imageReady()));
    hidden.setVisible(false);
    hidden.setHistory(this->history);
    EXPECT_EQ(painted.count(), 0);
    hidden.setVisible(true);
    EXPECT_EQ(hidden.picture(), expected);
    hidden.setHistory(this->history);
    EXPECT_EQ(painted.count(), 2);
    const auto empty = hidden.property("history").template value<History>();
    EXPECT_EQ(empty.getMasterMode(), MasterFreqModeEnum::R_2400);
    EXPECT_EQ(empty.getSize(), 0) << "what was set is not given back";
}

TYPED_TEST(LayeredPlotTest, NeedsNoRoomAndNoRange) {
    for (const int side : {1, 5, 40, 64}) {
        for (const int textSize : {0, 3, 20}) {
            Shown<TypeParam> plot({side, side}, textSize);
            for (const History &shown : {History(), this->history, historyOf({3, {{2400, -80}}}),
                                         historyOf({3, {{2400, -99}, {2500, 1e30f}}}, 0)}) {
                plot.setHistory(shown);
                EXPECT_EQ(plot.picture().pixelColor(0, 0), QColor("#101010")) << textSize << ' ' << side;
            }
        }
    }
}
