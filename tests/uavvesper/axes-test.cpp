#include "testing.h"
#include "visuals/freq-axis.h"
#include "visuals/level-axis.h"
#include "visuals/time-axis.h"

/// A tick as a text: its place, its number, and the place of the number if it has room.
static std::vector<std::string> told(const std::vector<Tick> &ticks) {
    std::vector<std::string> all;
    for (const auto &[x, number, labelX, hasLabel] : ticks)
        all.push_back(std::to_string(x) + ": " + std::to_string(number) +
                      (hasLabel ? " at " + std::to_string(labelX) : ""));
    return all;
}

TEST(LevelAxis, EachViewHasItsOwnWayBeyondTheEnds) {
    const std::tuple<float, int, int, int> cases[] = {
        // dB; height of a bar in a plot of 300; place in a level over time of 120; top of a block with 5
        // pixels for each dB
        {-106, 300, 0, -30},  {-105, 0, 0, -25},    {-104, 10, 4, -20}, {-90.9f, 150, 56, 50},
        {-76, 290, 116, 120}, {-75, 300, 120, 125}, {-74, 0, 118, 125}, {1e30f, 0, 118, 125}};
    for (const auto &[level, barHeight, courseY, blockY] : cases) {
        EXPECT_EQ(LevelAxis::barHeight(static_cast<int>(std::min(level, 0.0f)), 300), barHeight) << level;
        EXPECT_EQ(LevelAxis::courseY(level, 120, 2), courseY) << level;
        EXPECT_EQ(LevelAxis::blockY(level, 5), blockY) << level;
    }
    EXPECT_EQ(LevelAxis::barHeight(-104, 15), 0) << "half a pixel makes no bar higher";
}

TEST(BandAxis, HasLabelsAtEach200MHzInsideTheBand) {
    EXPECT_THAT(BandAxis(MasterFreqModeEnum::R_1200).labels(), ElementsAre(1000, 1200, 1400, 1600));
    EXPECT_THAT(BandAxis(MasterFreqModeEnum::R_4900).labels(), ElementsAre(4800, 5000, 5200, 5400));
    BandAxis axis;
    EXPECT_THAT(axis.labels(), ElementsAre()) << "no band";
    axis.minFreq = 1100;
    axis.maxFreq = 1400;
    EXPECT_THAT(axis.labels(), ElementsAre(1200)) << "not at the upper limit";
    for (const auto &[freq, x] : {std::pair(1099, 0), {1100, 0}, {1251, 201}, {1400, 400}, {1401, 400}})
        EXPECT_EQ(axis.x(static_cast<float>(freq), 400), x) << freq;
}

TEST(TimeAxis, CountsSecondsInALongSpanAndMillisecondsInAShortOne) {
    EXPECT_THAT(told(timeTicks(1000, 80, 7)), ElementsAre("80: 0 at 80", "40: 500 at 29"));
    EXPECT_THAT(told(timeTicks(1001, 80, 7)), ElementsAre("80: 0 at 80"));
    EXPECT_THAT(told(timeTicks(3999, 42, 7)), ElementsAre("42: 0 at 42", "28: 1 at 24", "14: 2 at 10"));
    EXPECT_THAT(told(timeTicks(3999, 41, 7)), ElementsAre("41: 0 at 41"));
    EXPECT_THAT(told(timeTicks(27000, 120, 20)),
                ElementsAre("120: 0 at 120", "76: 10 at 56", "32: 20 at 12"));
    EXPECT_THAT(told(timeTicks(12000, 81, 40)), ElementsAre("81: 0 at 81", "14: 10"));
    EXPECT_THAT(told(timeTicks(0, 80, 7)), ElementsAre());
}

TEST(ColumnAxis, HasAsManyTicksAsThereIsRoomForNumbers) {
    EXPECT_THAT(told(columnTicks({2400, 2410, 2402}, 68, 7)),
                ElementsAre("0: 2400 at -14", "34: 2401 at 20", "68: 2402"));
    EXPECT_THAT(told(columnTicks({995.5f, 1005.5f}, 68, 7)),
                ElementsAre("0: 995 at -10", "34: 1000 at 20", "68: 1005"));
    EXPECT_THAT(told(columnTicks({2400, 2420}, 68, 7)),
                ElementsAre("0: 2400 at -14", "34: 2410 at 20", "68: 2420"));
    EXPECT_THAT(told(columnTicks({1000, 1020}, 67, 7)), ElementsAre("0: 1000 at -14"));
    EXPECT_THAT(told(columnTicks({2400}, 68, 7)), ElementsAre()) << "no range";
}
