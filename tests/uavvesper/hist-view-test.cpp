#include "visuals/hist-view.h"

#include "plots.h"
#include "visuals/persistence-blocks.h"

TEST(HistView, HasAllInItsPlaceInEverySize) {
    const Standing cases[] = {{{128, 175}, 10, 2, R"(
        10pt room 21 #eeeeee:; '-95' 7,24; '-90' 7,49; '-85' 7,74; '-80' 7,99; '-75' 7,124
        10pt room 0 #eeeeee:; '2400' 14,164; '2450' 64,164; #101010:; 28,0 100x155
        #e593cddd:; 0,-50 50x5; #e5ff0000:; 50,50 50x5; #93cddd:; 0,0 50x5; #ff0000:; 50,125 50x5
        2px dash 0 #0000ff:; 0,25 to 100,25; 0,50 to 100,50; 0,75 to 100,75; 0,100 to 100,100
        0,125 to 100,125; 0,0 to 0,155; 50,0 to 50,155; 100,0 to 100,155
        0,0 to 100,0; 0,155 to 100,155; 0,0 to 0,155; 98,0 to 98,155)"},
                              {{99, 120}, 20, 3, R"(
        20pt room 21 #eeeeee:; '-95' 7,4; '-90' 7,19; '-85' 7,34; '-80' 7,49; '-75' 7,64
        20pt room 0 #eeeeee:; '2400' 14,89; '2450' 49,89; #101010:; 28,0 71x80
        #e593cddd:; 0,-30 35x3; #e5ff0000:; 35,30 35x3; #93cddd:; 0,0 35x3; #ff0000:; 35,75 35x3
        3px dash 0 #0000ff:; 0,15 to 71,15; 0,30 to 71,30; 0,45 to 71,45; 0,60 to 71,60
        0,75 to 71,75; 0,0 to 0,80; 35,0 to 35,80; 71,0 to 71,80
        0,0 to 71,0; 0,80 to 71,80; 0,0 to 0,80; 68,0 to 68,80)"}};
    Shown<HistView> plot;
    plot.setHistory(
        historyOf({{{2400, -110, NONE}, {2500, -90.7f, FPV}}, {{2400, -100, NONE}, {2500, -60, FPV}}}));
    for (const auto &[size, textSize, lineWidth, shapes] : cases) {
        plot.resize(size, textSize, lineWidth);
        EXPECT_EQ(plot.shapes(), table(shapes));
    }
    plot.setHistory(historyOf({}));
    EXPECT_EQ(plot.shapes(), table(std::get<3>(cases[1]))) << "a history without rows changes nothing";
    plot.setHistory(historyOf({{}}));
    EXPECT_EQ(plot.shapes(), table("#101010:; 28,0 71x80")) << "an empty scan clears all";
}

TEST(HistView, OlderScansFadeAndTheNewestIsOpaque) {
    const int alphas[] = {25, 51, 76, 102, 127, 153, 178, 204, 229, 255};
    for (int age = 0; age < 10; ++age)
        EXPECT_EQ(fadedColor(FPV, age, 10), QColor(255, 0, 0, alphas[age])) << age;
    EXPECT_FALSE(fadedColor(FPV, 10, 10) || fadedColor(FPV, -1, 10) || fadedColor(SigTypeEnum(6), 0, 10));
    const auto rows = historyOf({13, {{2400, -90, FPV}, {2410, -90, SigTypeEnum(6)}}}).getHistoryLevels();
    EXPECT_EQ(persistenceBlocks(rows, 10, 2, 100, 5).front().color.alpha(), 25);
    EXPECT_EQ(persistenceBlocks(rows, 10, 2, 100, 5).back().color, Qt::red) << "that of the block before";
}

TEST(HistView, TakesAColourOfWordsWithTheNextSize) {
    Shown<HistView> plot;
    QSignalSpy sizes(&plot, &HistView::sizeChanged);
    plot.setTextColor(Qt::red);
    EXPECT_EQ(sizes.count(), 0);
    plot.setTextSize(11);
    EXPECT_EQ(sizes.count(), 1);
}

TEST(HistView, HasTheLabelsOfTheBandAndThenOfItsScans) {
    Shown<HistView> plot({130, 100});
    plot.setHistory(plot.getHistory());
    EXPECT_EQ(plot.shapes(), table("#101010:; 28,0 102x80")) << "no band";
    QSignalSpy repainted(&plot, SIGNAL(freqsChanged()));
    const std::tuple<History, int, const char *> cases[] = {
        {historyOf({}, 0, MasterFreqModeEnum::R_1200), 1, "'830' 18,89; '1330' 70,89"},
        {historyOf({{{2400}, {2420}, {2450}}}), 3, "'2400' 14,89"}, // another band and its scan
        {historyOf({{{2400}, {2430}, {2450}}}), 3, "'2400' 14,89"},
        {historyOf({{{2390}, {2430}, {2450}}}), 4, "'2390' 14,89; '2440' 99,89"},
        {historyOf({{{2390}, {2430}, {2440}}}), 5, "'2390' 14,89"},
        {historyOf({{{2390}, {2440}}}), 6, "'2390' 14,89"}};
    for (const auto &[history, count, labels] : cases) {
        plot.setHistory(history);
        EXPECT_THAT(plot.shapes(), HasSubstr(table(labels)));
        EXPECT_EQ(repainted.count(), count) << labels;
    }
}
