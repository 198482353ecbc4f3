#include "common/strongest-signals.h"

#include "messages.h"

TEST(StrongestSignals, AreAtMostThreeTheStrongestFirst) {
    const std::vector<std::pair<std::vector<float>, std::vector<float>>> cases = {
        {{-100, -90, -95, -80}, {3, 1, 2}},
        {{-100, -90, -80, -85, -104}, {2, 3, 1}},
        {{-90, -80, -80}, {1, 2, 0}},
        {{-80, -90, -95}, {0}}, // a weaker signal is not appended, even if there is room
        {{-80, -80}, {0}},
        {{-105, -110, -104.5F}, {2}}};
    for (const auto &[levels, places] : cases) {
        auto scan = resultsOf({{99, -60, SigTypeEnum::NONE}});
        scan.push_back(nullptr);
        for (std::size_t i = 0; i < levels.size(); ++i)
            scan.push_back(resultsOf({{static_cast<float>(i), levels[i]}}).front());
        std::vector<float> named;
        for (const auto &result : strongestSignals(scan, 3, -105))
            named.push_back(result->getFreqMHz());
        EXPECT_EQ(named, places) << PrintToString(levels);
    }
}
