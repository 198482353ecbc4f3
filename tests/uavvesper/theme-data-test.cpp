#include "visuals/theme-data.h"

#include "signal-recorder.h"

#include <gmock/gmock.h>

using testing::Each;
using testing::ElementsAre;

static std::vector<int> sizes(int width, int height) {
    ThemeData theme;
    theme.setWindowWidth(width);
    theme.setWindowHeight(height);
    std::vector<int> found;
    for (const char *name :
         {"fontSizeTiny", "fontSizeSmall", "fontSizeMedium", "fontSizeLarge", "iconSizeSmall",
          "iconSizeMedium", "iconSizeLarge", "buttonSizeSmall", "buttonSizeMedium", "buttonSizeLarge"})
        found.push_back(theme.property(name).toInt());
    return found;
}

TEST(ThemeData, DerivesSizesFromTheWindow) {
    EXPECT_THAT(sizes(800, 1000), ElementsAre(10, 15, 20, 25, 40, 64, 80, 160, 240, 320));
    // Narrow: the width decides, and the large font has a smaller share of it than the others.
    EXPECT_THAT(sizes(410, 1000), ElementsAre(6, 9, 12, 12, 20, 32, 41, 82, 123, 164));
    EXPECT_THAT(sizes(2560, 1440), ElementsAre(14, 21, 28, 36, 72, 115, 144, 512, 768, 1024));
}

TEST(ThemeData, ReplacesSizesBelowOne) {
    EXPECT_THAT(sizes(0, 0), Each(10));
    EXPECT_THAT(sizes(50, 99), ElementsAre(10, 1, 1, 1, 2, 4, 5, 10, 15, 20));
}

TEST(ThemeData, TellsOfTheMenuHeightAlone) {
    ThemeData theme;
    SignalRecorder signalsOf(&theme);
    theme.setProperty("windowWidth", 800);
    theme.setProperty("windowHeight", 1000);
    theme.setProperty("helpFragmentHeight", 300);
    EXPECT_EQ(signalsOf.take(), "");
    theme.setProperty("menuHeight", 200);
    EXPECT_EQ(signalsOf.take(), "menuHeightChanged");
    EXPECT_EQ(theme.property("menuHeight"), 200);
    EXPECT_EQ(theme.property("helpFragmentHeight"), 300);
}
