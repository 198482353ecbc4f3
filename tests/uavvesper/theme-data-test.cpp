#include "visuals/theme-data.h"

#include "models.h"

#include <QMetaProperty>
#include <QRegularExpression>

/// The properties that are named so, in order.
static std::string values(const ThemeData &theme, const QRegularExpression &names) {
    QStringList all;
    for (int i = 0; i < theme.metaObject()->propertyCount(); ++i)
        if (const QMetaProperty property = theme.metaObject()->property(i);
            names.match(property.name()).hasMatch())
            all << property.read(&theme).toString();
    return all.join(' ').toStdString();
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
