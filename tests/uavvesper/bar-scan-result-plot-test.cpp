#include "visuals/bar-scan-result-plot.h"

#include "plots.h"

TEST(BarScanResultPlot, HasAllInItsPlaceInEverySize) {
    const Standing cases[] = {{{432, 324}, 10, 2, R"(
        10pt room 0 #000000:; '2400' 132,324
        10pt room 32 #000000:; '-105' 0,317; '-100' 0,267; 10pt room 27 #000000:; '-95' 5,217; '-90' 5,167; '-85' 5,117; '-80' 5,67; '-75' 5,17
        #101010:; 32,12 400x300; #0000ff:; 100,0 2x300
        0,0 400x2; 0,50 400x2; 0,100 400x2; 0,150 400x2; 0,200 400x2; 0,250 400x2; 0,300 400x2
        #93cddd:; 0,300 20x0; #00b050:; 20,150 20x150; #ffc000:; 100,0 20x300; #ff0000:; 103,300 20x0
        #cccccc:; 400,10 20x290; #93cddd:; 390,0 20x300; #00ffffff:; 200,50 20x250
        #0000ff:; 0,298 400x4; 2px dash 2 #c000ff00:; 0,50 to 400,50
        2px dash 2 #c0ffff00:; 0,110 to 400,110; 2px dash 2 #c0ff0000:; 0,170 to 400,170)"},
                              {{272, 198}, 23, 3, R"(
        23pt room 0 #000000:; '2400' 121,198
        23pt room 71 #000000:; '-105' 0,184; '-100' 0,159; 23pt room 60 #000000:; '-95' 11,135; '-90' 11,110; '-85' 11,85; '-80' 11,61; '-75' 11,36
        #101010:; 71,25 201x148; #0000ff:; 50,0 3x148
        0,0 201x3; 0,25 201x3; 0,49 201x3; 0,74 201x3; 0,99 201x3; 0,123 201x3; 0,148 201x3
        #93cddd:; 0,148 10x0; #00b050:; 10,74 10x74; #ffc000:; 50,0 10x148; #ff0000:; 52,148 10x0
        #cccccc:; 201,5 10x143; #93cddd:; 196,0 10x148; #00ffffff:; 101,25 10x123
        #0000ff:; 0,145 201x6; 3px dash 5 #c000ff00:; 0,25 to 201,25
        3px dash 5 #c0ffff00:; 0,54 to 201,54; 3px dash 5 #c0ff0000:; 0,84 to 201,84)"}};
    using Type = SigTypeEnum;
    Shown<BarScanResultPlot> plot;
    plot.setHistory(historyOf({{{2400, -80}},
                               {{2349, -80}, // outside of the band, like the last one
                                {2350, -105, Type::NONE},
                                {2360, -90.7f, Type::WIFI},
                                {2400, -75, Type::DIG},
                                {2401.5f, -74, Type::FPV},
                                {2550, -76, Type::BLOCK},
                                {2545, -106, Type::ALL},
                                {2450, -80, Type(6)}, // not a signal class
                                {2551, -80}}}));
    for (const auto &[size, textSize, lineWidth, shapes] : cases) {
        plot.resize(size, textSize, lineWidth);
        EXPECT_EQ(plot.shapes(), table(shapes));
    }
    plot.setHistory(historyOf({}, 0, MasterFreqModeEnum::R_1200));
    EXPECT_THAT(plot.shapes(), HasSubstr(table("172,0 3x148; 201,0 3x148")))
        << "a line of the band before stays";
}
