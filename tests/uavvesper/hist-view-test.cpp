#include "visuals/hist-view.h"

#include "plots.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;

static constexpr SigTypeEnum FPV = SigTypeEnum::FPV;
static constexpr Signal BELOW = {-110, SigTypeEnum::NONE};
static const QColor BLOCK = SigTypeColors::getColor(FPV);
static const QColor BACKGROUND = Qt::black;

/// Five pixels for each dB from -100 at the top; ten columns are four characters wide each.
class HistViewTest : public testing::Test {
protected:
    /// The colour of a column on the row of a level.
    QColor blockAt(int column, int level) {
        return plot.at((4 * column + 1) * plot.charW, 5 * (level + 100) + 2);
    }

    static Scan scanOf(std::size_t columns, std::size_t column, float rssi) {
        Scan scan(columns, BELOW);
        scan.at(column) = {rssi, FPV};
        return scan;
    }

    SizedGridPlot<HistView> plot{0, 130};
};

TEST_F(HistViewTest, OlderScansFadeAndTheNewestIsOpaque) {
    const std::vector<int> alphas = {25, 51, 76, 102, 127, 153, 178, 204, 229, 255};
    for (const std::size_t rows : {3u, 10u, 13u}) {
        std::vector<Scan> scans;
        for (std::size_t row = 0; row < rows; ++row)
            scans.push_back(scanOf(10, row % 10, -90));
        plot.setHistory(historyOf(scans));
        for (std::size_t age = 0; age < std::min<std::size_t>(rows, 10); ++age) {
            const QColor color = blockAt(static_cast<int>((rows - 1 - age) % 10), -90);
            EXPECT_NEAR(color.red(), alphas.at(9 - age), 1) << rows << ' ' << age;
            EXPECT_EQ(color.green(), 0);
        }
    }
}

TEST_F(HistViewTest, LevelsRunDownwardsIn26Steps) {
    const std::vector<std::pair<float, int>> cases = {{-100, -100}, {-95, -95}, {-90.7f, -90}, {-76, -76},
                                                      {-75, -75},   {-60, -75}, {1e30f, -75}};
    for (const auto &[rssi, level] : cases) {
        plot.setHistory(historyOf({scanOf(10, 3, rssi)}));
        for (int other = -100; other <= -75; ++other)
            EXPECT_EQ(blockAt(3, other) == BLOCK, other == level) << rssi << ' ' << other;
        EXPECT_EQ(blockAt(2, level), BACKGROUND);
    }
    for (const float rssi : {-101.0f, -1e30f}) {
        plot.setHistory(historyOf({scanOf(10, 3, rssi)}));
        for (int level = -100; level <= -75; ++level)
            EXPECT_EQ(blockAt(3, level), BACKGROUND) << rssi;
    }
}

TEST_F(HistViewTest, ColumnsDivideTheWidthAndLinesStandByFrequency) {
    plot.setHistory(historyOf({scanOf(10, 2, -88)}));
    EXPECT_EQ(blockAt(2, -88), BLOCK);
    EXPECT_EQ(blockAt(3, -88), BACKGROUND);
    EXPECT_THAT(plot.columns(), ElementsAre(0, plot.width * 50 / 90, plot.width - 2));
    plot.setHistory(historyOf({scanOf(5, 1, -88)}));
    EXPECT_EQ(blockAt(2, -88), BLOCK);
    EXPECT_EQ(blockAt(3, -88), BLOCK);
    EXPECT_EQ(blockAt(4, -88), BACKGROUND);
}

TEST_F(HistViewTest, LabelsABandBeforeItsFirstScan) {
    EXPECT_FALSE(plot.hasText(plot.labels()));
    plot.setHistory(plot.getHistory());
    EXPECT_FALSE(plot.hasText(plot.labels())) << "still no band";
    plot.setHistory(History(MasterFreqModeEnum::R_1200, History::DEFAULT_HISTORY_LEN));
    EXPECT_TRUE(plot.hasText(plot.labels()));
    EXPECT_TRUE(plot.hasText({0, 0, plot.origin.x(), plot.height}));
}

TEST_F(HistViewTest, PaintsLabelsAnewOnlyForOtherLimits) {
    QSignalSpy repainted(&plot, SIGNAL(freqsChanged()));
    const auto freqs = [&](const std::vector<float> &mhz) {
        History history(MasterFreqModeEnum::R_2400, History::DEFAULT_HISTORY_LEN);
        History::Scan scan;
        for (const float freq : mhz)
            scan.push_back(std::make_shared<FreqScanResult>(FreqScanResultBuilder().freqMHz(freq).build()));
        history.acceptScan(scan);
        plot.setHistory(history);
        const int count = repainted.count();
        repainted.clear();
        return count;
    };
    EXPECT_EQ(freqs({2400, 2410, 2420}), 2) << "for the band and for its frequencies";
    EXPECT_EQ(freqs({2400, 2415, 2420}), 0);
    EXPECT_EQ(freqs({2390, 2415, 2420}), 1);
    EXPECT_EQ(freqs({2390, 2415, 2430}), 1);
    EXPECT_EQ(freqs({2390, 2430}), 1);
}

TEST_F(HistViewTest, KeepsThePictureWithoutRowsAndClearsItForAnEmptyScan) {
    plot.setHistory(historyOf({scanOf(10, 3, -80)}));
    const QImage shown = plot.picture();
    plot.setHistory(History(MasterFreqModeEnum::R_2400, History::DEFAULT_HISTORY_LEN));
    EXPECT_EQ(plot.picture(), shown);
    plot.setHistory(historyOf({{}}));
    QImage background(shown.size(), shown.format());
    background.fill(BACKGROUND);
    EXPECT_EQ(plot.picture(), background);
}

TEST_F(HistViewTest, NeedsNoRoomAndNoRange) {
    plot.setHistory(historyOf({scanOf(1, 0, -80)}));
    EXPECT_EQ(blockAt(0, -80), BLOCK);
    EXPECT_FALSE(plot.hasText(plot.labels()));
    EXPECT_TRUE(staysEmptyWithoutRoom<HistView>(
        {History(), historyOf({scanOf(1, 0, -80)}), historyOf({scanOf(99, 3, -80)})}));
}
