#include "visuals/freq-plot.h"

#include "plots.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAreArray;
using testing::IsEmpty;

static constexpr SigTypeEnum NONE = SigTypeEnum::NONE;
static constexpr SigTypeEnum WIFI = SigTypeEnum::WIFI;
static constexpr SigTypeEnum DIG = SigTypeEnum::DIG;
static const QColor CURVE = SigTypeColors::getColor(DIG);
static const QColor BACKGROUND = Qt::black;
static const QColor GRID = Qt::blue;

/// Four pixels for each dB.
class FreqPlotTest : public testing::Test {
protected:
    /// The square in front of the caption.
    QColor swatch() { return plot.at(15, 15); }

    SizedGridPlot<FreqPlot> plot{SizedGridPlot<FreqPlot>::TEXT, 120};
};

TEST_F(FreqPlotTest, DrawsTheStrongestSignalFromTheRowAfterTheOldestToNow) {
    struct {
        float before, now;
        int yBefore, yNow;
    } const cases[] = {{-88, -78, 68, 108}, {-78, -88, 108, 68}, {-110, -70, 0, 117}};
    const int c = plot.charW;
    for (const auto &[before, now, yBefore, yNow] : cases) {
        std::vector<Scan> scans;
        for (const float rssi : {-100.0f, before, before, now, now})
            scans.push_back({{-99, NONE}, {-94, WIFI}, {rssi, DIG}, {-60, NONE}});
        plot.setHistory(historyOf(scans));
        EXPECT_EQ(plot.at(6 * c, yBefore), CURVE) << before;
        EXPECT_EQ(plot.at(34 * c, yNow), CURVE) << now;
        EXPECT_NE(plot.at(6 * c, yNow), CURVE) << now;
        EXPECT_NE(plot.at(34 * c, yBefore), CURVE) << before;
        EXPECT_EQ(swatch(), CURVE);
    }
}

TEST_F(FreqPlotTest, CaptionNamesFrequencyAndClassInTheUnitOfTheLanguage) {
    const QPoint place(20 + plot.charW, 25);
    const QRect area(plot.origin + QPoint(place.x(), 8), QSize(plot.width - place.x(), 24));
    const auto texts = [](const QImage &image) {
        return image.createMaskFromColor(qRgb(255, 255, 255)).convertToFormat(QImage::Format_Mono);
    };
    for (const auto &[lang, text] :
         {std::pair("language", "2410MHz DIG"), {"RU", "2410MHz DIG"}, {"ru", "2410МГц DIG"}}) {
        plot.setLang(lang);
        plot.setHistory(historyOf({3, {{-99, NONE}, {-80, DIG}}}, 0));
        QImage expected(plot.picture().size(), QImage::Format_RGB32);
        expected.fill(Qt::black);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        QFont font = QGuiApplication::font();
        font.setPointSize(15);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(plot.origin + place, QString(text));
        EXPECT_EQ(texts(plot.picture().copy(area)), texts(expected.copy(area))) << lang;
    }
}

TEST_F(FreqPlotTest, ShowsAnEmptyGridWhereNoSignalLasts) {
    const std::vector<std::pair<const char *, std::vector<Scan>>> cases = {
        {"no scan", {}},
        {"the first column is the strongest", {4, {{-80, DIG}, {-80, DIG}, {-90, WIFI}}}},
        {"a first column without a class hides weaker ones", {4, {{-80, NONE}, {-81, DIG}}}},
        {"no level above -95", {4, {{-105, NONE}, {-95, DIG}}}},
        {"no class", {4, {{-105, NONE}, {-80, NONE}}}},
        {"another class before",
         {{{-105, NONE}, {-80, DIG}}, {{-105, NONE}, {-80, WIFI}}, {{-105, NONE}, {-80, DIG}}}},
        {"nothing but the oldest row before", {2, {{-105, NONE}, {-80, DIG}}}},
        {"a scan without this band", {{{-105, NONE}, {-80, DIG}}, {}}}};
    const int step = static_cast<int>(0.18 * plot.width);
    for (const auto &[what, scans] : cases) {
        plot.setHistory(historyOf({3, {{-105, NONE}, {-80, DIG}}}));
        ASSERT_EQ(swatch(), CURVE);
        plot.setHistory(historyOf(scans));
        EXPECT_EQ(swatch(), BACKGROUND) << what;
        EXPECT_THAT(plot.columns(), ElementsAreArray({0, step, 2 * step, 3 * step, 4 * step, 5 * step}))
            << what;
        for (int y = 0; y <= 120; ++y)
            EXPECT_EQ(plot.at(step / 2, y) == GRID, y % 20 == 0 || y % 20 == 19) << what << ' ' << y;
    }
}

TEST_F(FreqPlotTest, CountsSecondsInALongSpanAndMillisecondsInAShortOne) {
    std::vector<int> tenths;
    for (int i = 1; i < 10; ++i)
        tenths.push_back(i * plot.width / 10);
    const std::vector<std::pair<int, bool>> cases = {{500, true}, {1000, true}, {1001, false}, {10999, true}};
    for (const auto &[spanMs, labelled] : cases) {
        plot.setHistory(historyOf({3, {{-105, NONE}, {-80, DIG}}}, spanMs));
        EXPECT_THAT(plot.columns(), ElementsAreArray(labelled ? tenths : std::vector<int>())) << spanMs;
        EXPECT_EQ(plot.hasText(plot.labels().adjusted(plot.origin.x(), 0, 0, 0)), labelled) << spanMs;
    }
}

TEST_F(FreqPlotTest, DrawsNoCurveOverASpanOfNothing) {
    plot.setHistory(historyOf({4, {{-105, NONE}, {-78, DIG}}}, 0));
    EXPECT_EQ(swatch(), CURVE);
    EXPECT_EQ(plot.at(plot.width / 2, 108), BACKGROUND);
    EXPECT_THAT(plot.columns(), IsEmpty());
}

TEST_F(FreqPlotTest, NeedsNoRoomAndNoData) {
    EXPECT_TRUE(staysEmptyWithoutRoom<FreqPlot>({History(), historyOf({4, {{-105, NONE}, {-78, DIG}}}),
                                                 historyOf({4, {{-105, NONE}, {1e30f, DIG}}})}));
}
