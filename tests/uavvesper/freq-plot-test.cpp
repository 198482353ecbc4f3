#include "visuals/freq-plot.h"

#include "plots.h"

using Scans = std::vector<std::vector<Found>>;

TEST(FreqPlot, HasAllInItsPlaceInEverySizeAndLanguage) {
    const std::pair<const char *, Standing> cases[] = {{"language", {{428, 150}, 10, 2, R"(
        10pt room 28 #eeeeee:; '-105' 0,135; '-100' 0,115
        10pt room 21 #eeeeee:; '-95' 7,95; '-90' 7,75; '-85' 7,55; '-80' 7,35; '-75' 7,15; #101010:; 28,10 400x140
        2px dash 0 #0000ff:; 0,0 to 400,0; 0,20 to 400,20; 0,40 to 400,40; 0,60 to 400,60; 0,80 to 400,80
        0,100 to 400,100; 0,120 to 400,120; 400,0 to 400,120; 10pt room 0 #eeeeee:; '0' 400,129
        2px dash 0 #0000ff:; 200,0 to 200,120; 10pt room 0 #eeeeee:; '1' 196,129
        #ffc000:; 10,10 10x10; 2px dash 0 #ffc000:; 400,108 to 200,68; 200,68 to 0,118
        15pt room 0 #eeeeee:; '2420MHz DIG' 27,25)"}},
                                                       {"ru", {{229, 123}, 21, 3, R"(
        21pt room 28 #eeeeee:; '-105' 0,92; '-100' 0,82
        21pt room 21 #eeeeee:; '-95' 7,72; '-90' 7,62; '-85' 7,52; '-80' 7,42; '-75' 7,32; #101010:; 28,21 201x102
        3px dash 0 #0000ff:; 0,0 to 201,0; 0,10 to 201,10; 0,20 to 201,20; 0,30 to 201,30; 0,40 to 201,40
        0,50 to 201,50; 0,60 to 201,60; 201,0 to 201,60; 21pt room 0 #eeeeee:; '0' 201,69
        3px dash 0 #0000ff:; 101,0 to 101,60; 21pt room 0 #eeeeee:; '1' 97,69
        #ffc000:; 21,21 21x21; 3px dash 0 #ffc000:; 201,54 to 100,34; 100,34 to 0,57
        31pt room 0 #eeeeee:; '2420МГц DIG' 49,52)"}}};
    Scans scans;
    for (const float rssi : {-100.0f, -70.0f, -88.0f, -78.0f})
        scans.push_back({{2400, -99, NONE}, {2410, -94, WIFI}, {2420, rssi, DIG}, {2430, -60, NONE}});
    Shown<FreqPlot> plot;
    plot.setHistory(historyOf(scans, 1000));
    for (const auto &[lang, standing] : cases) {
        plot.setProperty("lang", lang);
        const auto &[size, textSize, lineWidth, shapes] = standing;
        plot.resize(size, textSize, lineWidth);
        EXPECT_EQ(plot.shapes(), table(shapes));
    }
    plot.setHistory(historyOf(scans, 0));
    EXPECT_THAT(
        plot.shapes(),
        EndsWith(table("0,60 to 201,60; #ffc000:; 21,21 21x21; 31pt room 0 #eeeeee:; '2420МГц DIG' 49,52")))
        << "scans of the same time have neither axis nor curve";
    plot.setHistory(historyOf({scans[2], scans[3]})); // a single point, without the oldest row
    EXPECT_THAT(plot.shapes(), EndsWith(table(R"(0,60 to 201,60; 0,0 to 0,60; 36,0 to 36,60; 72,0 to 72,60
        108,0 to 108,60; 144,0 to 144,60; 180,0 to 180,60)")));
}

TEST(SignalCourse, FollowsTheStrongestSignalFromNowToTheRowAfterTheOldest) {
    const auto scan = [](SigTypeEnum type, float rssi = -80) {
        return std::vector<Found>{{2400, -105, NONE}, {2410.9f, rssi, type}};
    };
    const std::vector<std::tuple<const char *, Scans, std::size_t>> cases = {
        {"all but the oldest row", {4, scan(DIG)}, 3},
        {"no scan", {}, 0},
        {"an empty scan", {{}}, 0},
        {"nothing but the oldest row", {scan(DIG)}, 0},
        {"another class before", {scan(DIG), scan(DIG), scan(WIFI), scan(DIG), scan(DIG)}, 2},
        {"the first column is the strongest", {4, {{2400, -80}, {2410.9f, -80, DIG}}}, 0},
        {"a first column without a class hides weaker ones", {4, {{2400, -80, NONE}, {2410.9f, -81}}}, 0},
        {"the stronger of two", {4, {{2400, -99}, {2420, -82, WIFI}, {2410.9f, -81}, {2430, -82}}}, 3},
        {"the first of two alike", {4, {{2400, -99}, {2410.9f, -81}, {2430, -81, WIFI}}}, 3},
        {"no level above -95", {4, scan(DIG, -95)}, 0},
        {"barely above -95", {4, scan(DIG, -94.9f)}, 3},
        {"no class", {4, scan(NONE)}, 0}};
    SignalCourse course;
    for (const auto &[what, scans, points] : cases) {
        const History history = historyOf(scans);
        course.follow(history.getHistoryLevels(), history.getHistoryFreqs());
        EXPECT_EQ(course.points.size(), points) << what;
        EXPECT_EQ(course.freq, 2410) << what << ", where it keeps its value";
        EXPECT_EQ(course.sigType, DIG) << what;
    }
}
