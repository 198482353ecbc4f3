#include "visuals/bar-scan-result-plot.h"

#include "common/sig-type-colors.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <gmock/gmock.h>

using testing::Contains;
using testing::Not;

static const QColor BACKGROUND = Qt::white;
static const QColor GRID = Qt::blue;
static const QColor BAR = SigTypeColors::getColor(SigTypeEnum::FPV);

using Levels = std::vector<std::pair<float, float>>;

static History history(MasterFreqModeEnum band, const Levels &levels = {}) {
    History::Scan scan;
    for (const auto &[freq, rssi] : levels)
        scan.push_back(std::make_shared<FreqScanResult>(
            FreqScanResultBuilder().freqMHz(freq).rssi(rssi).type(SigTypeEnum::FPV).build()));
    History made(band, History::DEFAULT_HISTORY_LEN);
    made.acceptScan(scan);
    return made;
}

/// A plot whose area has 400 by 300 pixels: ten for each dB and, in the band of 2350 to 2550 MHz, two for
/// each MHz.
class SizedPlot : public BarScanResultPlot {
public:
    explicit SizedPlot(int points = 10)
        : area(3 * points + 2, points + 2, 400, 300)
        , size(area.right() + 1, area.bottom() + 1 + area.top()) {
        setBackgroundColor(BACKGROUND);
        setInnerBorderColor(GRID);
        setTextSize(points);
        setSize(size);
    }

    void show(const Levels &levels) { setHistory(history(MasterFreqModeEnum::R_2400, levels)); }

    QImage picture() {
        QImage canvas(size, QImage::Format_RGB32);
        canvas.fill(Qt::magenta);
        QPainter painter(&canvas);
        paint(&painter);
        return canvas;
    }

    /// The colours of a part of the picture, row by row.
    std::vector<QColor> colors(const QRect &part) {
        const QImage canvas = picture();
        std::vector<QColor> found;
        for (int y = part.top(); y <= part.bottom(); ++y)
            for (int x = part.left(); x <= part.right(); ++x)
                found.push_back(canvas.pixelColor(x, y));
        return found;
    }

    /// The colours of a line of the area, `y` pixels from its top.
    std::vector<QColor> row(int y) { return colors({area.left(), area.top() + y, area.width(), 1}); }

    /// Height in pixels of the bar at 2400 MHz in the band of 2350 to 2550 MHz.
    int barHeight() {
        const auto column = colors({area.left() + 110, area.top(), 1, area.height()});
        return static_cast<int>(column.end() - std::find(column.begin(), column.end(), BAR));
    }

    const QRect area;
    const QSize size;
};

TEST(BarScanResultPlot, BarsRiseWithTheLevelAndTurnOverOutsideTheAxis) {
    SizedPlot plot;
    const std::vector<std::pair<float, int>> cases = {{-105, 0},  {-90.7f, 150}, {-90, 150}, {-76, 290},
                                                      {-75, 300}, {-74, 0},      {-106, 300}};
    for (const auto &[rssi, height] : cases) {
        plot.show({{2400.0f, rssi}});
        EXPECT_EQ(plot.barHeight(), height) << rssi;
    }
}

TEST(BarScanResultPlot, BarsExtendToTheRightOfTheirFrequencyInsideTheBand) {
    SizedPlot plot;
    plot.show({{2349.0f, -75.0f}, {2460.0f, -75.0f}, {2551.0f, -75.0f}});
    const auto colors = plot.row(10);
    for (std::size_t x = 0; x < colors.size(); ++x)
        EXPECT_EQ(colors[x] == BAR, x >= 220 && x < 240) << x;
}

TEST(BarScanResultPlot, ThresholdLinesAreDashedAndStandMirrored) {
    const auto over = [](QRgb line) {
        return testing::Truly([line](const QColor &color) {
            const auto blended = [](int part) { return (part * 0xc0 + 0xff * 0x3f) / 0xff; };
            return qAbs(color.red() - blended(qRed(line))) < 3 &&
                   qAbs(color.green() - blended(qGreen(line))) < 3 && qAbs(color.blue() - blended(0)) < 3;
        });
    };
    for (const int textSize : {10, 3}) {
        SizedPlot plot(textSize);
        plot.show({});
        // -100 stands where the axis reads -80, and so on. The upper half of each line is free of the grid.
        const std::vector<std::pair<int, QRgb>> cases = {{50, 0x00ff00}, {110, 0xffff00}, {170, 0xff0000}};
        for (const auto &[y, color] : cases) {
            EXPECT_THAT(plot.row(y - 1), Contains(over(color))) << y;
            EXPECT_THAT(plot.row(y - 1), Contains(BACKGROUND)) << y;
            EXPECT_THAT(plot.row(300 - y - 1), Not(Contains(over(color)))) << y;
        }
    }
}

TEST(BarScanResultPlot, HasGridLinesAtEach200MHzInsideTheBandAndEach5dB) {
    const std::pair<MasterFreqModeEnum, std::vector<int>> bands[] = {
        {MasterFreqModeEnum::R_1200, {76, 164, 253, 342}}, // 1000 to 1600 MHz
        {MasterFreqModeEnum::R_4900, {0, 121, 242, 364}},  // 4800 to 5400 MHz
        {MasterFreqModeEnum::R_2400, {100}}};
    for (const auto &[band, lines] : bands) {
        SizedPlot plot;
        plot.setHistory(history(band));
        const auto colors = plot.row(20);
        for (int x = 0; x < plot.area.width(); ++x) {
            const bool onLine =
                std::any_of(lines.begin(), lines.end(), [x](int line) { return x == line || x == line + 1; });
            EXPECT_EQ(colors[static_cast<std::size_t>(x)] == GRID, onLine) << x;
        }
    }
    SizedPlot plot;
    plot.show({});
    // From below the -100 line, which a threshold covers here, to above the base line.
    const auto column = plot.colors({plot.area.left() + 300, plot.area.top(), 1, 296});
    for (std::size_t y = 52; y < column.size(); ++y)
        EXPECT_EQ(column[y] == GRID, y % 50 < 2) << y;
    const QRect belowTheLine(plot.area.left() + 100, plot.area.bottom() + 1, 12, plot.area.top());
    EXPECT_THAT(plot.colors(belowTheLine),
                Contains(testing::Truly([](const QColor &color) { return color.lightness() < 100; })));
}

TEST(BarScanResultPlot, FollowsItsSizeAndGivesBackOnlyTheBand) {
    SizedPlot plot;
    plot.setSize({100, 100});
    plot.show({{2400.0f, -90.0f}});
    plot.setSize(plot.size);
    plot.setLineWidth(0); // keeps the width it has
    EXPECT_EQ(plot.barHeight(), 150);
    EXPECT_GT(plot.getLineWidth(), 0);
    EXPECT_EQ(plot.getHistory().getMasterMode(), MasterFreqModeEnum::R_2400);
    EXPECT_EQ(plot.getHistory().getSize(), 0);
}

TEST(BarScanResultPlot, PaintsItsBackgroundWhereThereIsNoRoomOrNoBand) {
    for (const int textSize : {0, 1, 20}) {
        for (const int side : {1, 5, 40, 64}) {
            SizedPlot plot(textSize);
            plot.setSize(QSizeF(side, side));
            EXPECT_EQ(plot.picture().pixelColor(0, 0), BACKGROUND) << textSize << ' ' << side;
            plot.show({{2400.0f, -90.0f}});
            EXPECT_EQ(plot.picture().pixelColor(0, 0), BACKGROUND) << textSize << ' ' << side;
        }
    }
}
