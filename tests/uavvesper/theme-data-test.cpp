#include "visuals/theme-data.h"

#include "signal-recorder.h"

#include <gtest/gtest.h>

TEST(ThemeData, HasTheseColours) {
    const std::pair<const char *, const char *> colors[] = {
        {"backgroundColor", "#ff81909f"},    {"strokeColor", "#ff000000"},
        {"fragmentColor", "#c0415f50"},      {"lightTextColor", "#ffffffff"},
        {"disabledTextColor", "#ff808080"},  {"darkTextColor", "#ff000000"},
        {"wifiColor", "#ff00b050"},          {"digColor", "#ffffc000"},
        {"fpvColor", "#ffff0000"},           {"barPlotBorder", "#ff6d7683"},
        {"maskColor", "#ff33a632"},          {"accentColor", "#ffa4ebb6"},
        {"gridColor", "#ff808080"},          {"coursePlotBackground", "#ff41505f"},
        {"grooveColor", "#ff808080"},        {"switchOnColor", "#ff3cb371"},
        {"switchOffKnobColor", "#ffffffff"}, {"pressedShadeColor", "#ffa9a9a9"},
        {"summaryTextColor", "#ffd3d3d3"},   {"currentEntryColor", "#ffd3d3d3"},
        {"testModeColor", "#ffff0000"}};
    const ThemeData theme;
    for (const auto &[property, color] : colors)
        EXPECT_EQ(theme.property(property).value<QColor>().name(QColor::HexArgb), color) << property;
}

TEST(ThemeData, DerivesSizesFromTheWindowAndTellsOfTheMenuHeightAlone) {
    const std::vector<std::vector<int>> cases = {
        // width, height; tiny, small, medium and large font; small, medium and large icon and button
        {800, 1000, 10, 15, 20, 25, 40, 64, 80, 160, 240, 320},
        {410, 1000, 6, 9, 12, 12, 20, 32, 41, 82, 123,
         164}, // the large font has a smaller share of the width
        {2560, 1440, 14, 21, 28, 36, 72, 115, 144, 512, 768, 1024},
        {50, 99, 10, 1, 1, 1, 2, 4, 5, 10, 15, 20},
        {0, 0, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10}};
    const char *const properties[] = {"windowWidth",     "windowHeight",     "fontSizeTiny",
                                      "fontSizeSmall",   "fontSizeMedium",   "fontSizeLarge",
                                      "iconSizeSmall",   "iconSizeMedium",   "iconSizeLarge",
                                      "buttonSizeSmall", "buttonSizeMedium", "buttonSizeLarge"};
    ThemeData theme;
    SignalRecorder recorder(&theme);
    for (const auto &expected : cases) {
        theme.setProperty("windowWidth", expected[0]);
        theme.setProperty("windowHeight", expected[1]);
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(theme.property(properties[i]), expected[i]) << properties[i] << " of " << expected[0];
    }
    theme.setProperty("helpFragmentHeight", 300);
    theme.setProperty("menuHeight", 200);
    EXPECT_EQ(recorder.take(), "menuHeightChanged");
    EXPECT_EQ(theme.property("menuHeight"), 200);
    EXPECT_EQ(theme.property("helpFragmentHeight"), 300);
}
