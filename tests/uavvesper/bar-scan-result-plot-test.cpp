#include "visuals/bar-scan-result-plot.h"

#include "common/sig-type-colors.h"

#include <QImage>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <gmock/gmock.h>

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
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

    /// The colours of a line of the area, `y` pixels from its top.
    std::vector<QColor> row(int y) {
        const QImage canvas = picture();
        std::vector<QColor> colors;
        for (int x = area.left(); x <= area.right(); ++x)
            colors.push_back(canvas.pixelColor(x, area.top() + y));
        return colors;
    }

    /// Height in pixels of the bar at `freq` in the band of 2350 to 2550 MHz.
    int barHeight(int freq) {
        const QImage canvas = picture();
        for (int y = area.top(); y <= area.bottom(); ++y) {
            if (canvas.pixelColor(area.left() + (freq - 2350) * 2 + 10, y) == BAR)
                return area.bottom() + 1 - y;
        }
        return 0;
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
        EXPECT_EQ(plot.barHeight(2400), height) << rssi;
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

/// The frequencies, among the multiples of 100 MHz, that have a label; each has its grid line too.
static std::vector<int> labels(MasterFreqModeEnum band) {
    SizedPlot plot;
    plot.setHistory(history(band));
    const FreqMode widest(MasterFreqMode(band).getMaxRangeFreqMode());
    const QImage canvas = plot.picture();
    std::vector<int> found;
    for (int freq = 0; freq <= static_cast<int>(widest.getMaxFreq()); freq += 100) {
        const float share =
            (static_cast<float>(freq) - widest.getMinFreq()) / (widest.getMaxFreq() - widest.getMinFreq());
        if (share < 0)
            continue;
        const int x = plot.area.left() + qRound(400 * share);
        int darkest = 255;
        for (int y = plot.area.bottom() + 1; y < plot.size.height(); ++y)
            for (int dx = 0; dx < 12; ++dx)
                darkest = qMin(darkest, canvas.pixelColor(x + dx, y).lightness());
        const bool labelled = darkest < 100;
        EXPECT_EQ(canvas.pixelColor(x, plot.area.top() + 20) == GRID, labelled) << freq;
        if (labelled)
            found.push_back(freq);
    }
    return found;
}

TEST(BarScanResultPlot, LabelsTheMultiplesOf200InsideTheBand) {
    EXPECT_THAT(labels(MasterFreqModeEnum::R_1200), ElementsAre(1000, 1200, 1400, 1600));
    EXPECT_THAT(labels(MasterFreqModeEnum::R_2400), ElementsAre(2400));
    EXPECT_THAT(labels(MasterFreqModeEnum::R_4900), ElementsAre(4800, 5000, 5200, 5400));
}

TEST(BarScanResultPlot, LevelsHaveALineEach5dB) {
    SizedPlot plot;
    plot.show({});
    const QImage canvas = plot.picture();
    // From below the -100 line, which a threshold covers here, to above the base line.
    for (int y = 52; y < 296; ++y) {
        const QColor color = canvas.pixelColor(plot.area.left() + 300, plot.area.top() + y);
        EXPECT_EQ(color == GRID, y % 50 < 2) << y;
    }
}

TEST(BarScanResultPlot, HiddenItCatchesUpWhenShown) {
    SizedPlot plot;
    plot.show({{2400.0f, -90.0f}});
    plot.setVisible(false);
    plot.show({{2400.0f, -79.0f}});
    EXPECT_EQ(plot.barHeight(2400), 150);
    plot.setVisible(true);
    EXPECT_EQ(plot.barHeight(2400), 260);
}

TEST(BarScanResultPlot, KeepsTheLineWidthForAWidthOfNothing) {
    SizedPlot plot;
    plot.setLineWidth(3);
    plot.setLineWidth(0);
    EXPECT_EQ(plot.getLineWidth(), 3);
}

TEST(BarScanResultPlot, FollowsItsSizeAndGivesBackOnlyTheBand) {
    SizedPlot plot;
    plot.setSize({100, 100});
    plot.show({{2400.0f, -90.0f}});
    plot.setSize(plot.size);
    EXPECT_EQ(plot.barHeight(2400), 150);
    EXPECT_EQ(plot.picture().pixelColor(5, plot.size.height() - 1), BACKGROUND);
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

TEST(BarScanResultPlot, IsReadyOnceADocumentHasMadeIt) {
    qmlRegisterType<BarScanResultPlot>("barScanResultPlot", 1, 0, "BarScanResultPlot");
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.0\n"
                      "import barScanResultPlot 1.0\n"
                      "BarScanResultPlot { width: 60; height: 60; textSize: 10; backgroundColor: 'lime' }",
                      QUrl());
    const std::unique_ptr<QObject> made(component.create());
    ASSERT_TRUE(made) << component.errorString().toStdString();
    QImage canvas(60, 60, QImage::Format_RGB32);
    QPainter painter(&canvas);
    static_cast<BarScanResultPlot *>(made.get())->paint(&painter);
    EXPECT_EQ(canvas.pixelColor(0, 0), QColor(Qt::green));
}
