#include "visuals/theme-data.h"

#include "signal-recorder.h"

#include <QMetaProperty>
#include <QRegularExpression>
#include <gtest/gtest.h>

/// The properties that are named so, in order; colours with their names.
static std::string values(const ThemeData &theme, const QRegularExpression &names) {
    QStringList all;
    for (int i = 0; i < theme.metaObject()->propertyCount(); ++i)
        if (const QMetaProperty property = theme.metaObject()->property(i);
            names.match(property.name()).hasMatch())
            all << (property.type() == QVariant::Color
                        ? property.name() + property.read(&theme).value<QColor>().name(QColor::HexArgb)
                        : property.read(&theme).toString());
    return all.join(' ').toStdString();
}

TEST(ThemeData, HasTheseColours) {
    EXPECT_EQ(values(ThemeData(), QRegularExpression("Color$|Plot")),
              "backgroundColor#ff81909f strokeColor#ff000000 fragmentColor#c0415f50 lightTextColor#ffffffff "
              "disabledTextColor#ff808080 darkTextColor#ff000000 wifiColor#ff00b050 digColor#ffffc000 "
              "fpvColor#ffff0000 barPlotBorder#ff6d7683 maskColor#ff33a632 accentColor#ffa4ebb6 "
              "gridColor#ff808080 coursePlotBackground#ff41505f grooveColor#ff808080 switchOnColor#ff3cb371 "
              "switchOffKnobColor#ffffffff pressedShadeColor#ffa9a9a9 summaryTextColor#ffd3d3d3 "
              "currentEntryColor#ffd3d3d3 testModeColor#ffff0000");
}

TEST(ThemeData, DerivesSizesFromTheWindowAndTellsOfTheMenuHeightAlone) {
    ThemeData theme;
    SignalRecorder recorder(&theme);
    const std::tuple<int, int, const char *> cases[] = {
        // the window's width and height; fonts, icons and buttons, each from small to large
        {800, 1000, "10 15 20 25 40 64 80 160 240 320"},
        {410, 1000, "6 9 12 12 20 32 41 82 123 164"}, // the large font has a smaller share of the width
        {2560, 1440, "14 21 28 36 72 115 144 512 768 1024"},
        {50, 99, "10 1 1 1 2 4 5 10 15 20"},
        {0, 0, "10 10 10 10 10 10 10 10 10 10"}};
    for (const auto &[width, height, sizes] : cases) {
        theme.setProperty("windowWidth", width);
        theme.setProperty("windowHeight", height);
        EXPECT_EQ(values(theme, QRegularExpression("Size")), sizes) << width;
    }
    theme.setProperty("helpFragmentHeight", 300);
    theme.setProperty("menuHeight", 200);
    EXPECT_EQ(recorder.take(), "menuHeightChanged");
    EXPECT_EQ(values(theme, QRegularExpression("tHeight|uHeight")), "200 300");
}
