#include "common/sig-type-colors.h"
#include "screen-fixture.h"
#include "visuals/layered-plot.h"

#include <QSignalSpy>
#include <algorithm>

using testing::ElementsAre;

static const std::string BAR = "BarScanResultPlot";
static const std::string FREQ = "FreqPlot";
static const std::string HIST = "HistView";

/// The rows of views on the application's window, used with the mouse beside a device of four bands.
class PlotListTest : public ScreenFixture {
protected:
    void SetUp() override {
        plugIn(ProtoEnum::K7);
        ASSERT_NO_FATAL_FAILURE(connectByButton());
        deviceSays(scan("NONE"));
        ASSERT_TRUE(ScreenDriver::waitFor([&] { return shown() == std::vector<std::string>(4, BAR); }));
    }

    /// A scan with one strong signal of a class in each band, in its second column.
    static std::string scan(const std::string &type) {
        std::string freqs;
        for (const char *weak : {"1000", "2400", "4900", "5700"}) {
            const std::string strong = std::string(weak).replace(2, 1, "3");
            freqs += std::string(freqs.empty() ? "" : ",") + R"({"freqMHz":)" + weak +
                     R"(,"rssi":-99,"type":"NONE"},{"freqMHz":)" + strong + R"(,"rssi":-80,"type":")" + type +
                     R"("})";
        }
        return R"({"type":"SCAN_RESULT","mask":false,"freqs":[)" + freqs + "]}";
    }

    /// The visible views from top to bottom.
    std::vector<QQuickItem *> views() const {
        auto found = driver->findAll(
            [](const QQuickItem &item) { return qobject_cast<const LayeredPlot *>(&item) != nullptr; });
        std::sort(found.begin(), found.end(), [](const QQuickItem *a, const QQuickItem *b) {
            return ScreenDriver::middleOf(*a).y() < ScreenDriver::middleOf(*b).y();
        });
        return {found.begin(), found.end()};
    }
    std::vector<std::string> shown() const {
        std::vector<std::string> names;
        for (const QQuickItem *view : views()) {
            EXPECT_EQ(view->mapToScene({0, 0}).x(), 0);
            names.emplace_back(view->metaObject()->className());
        }
        return names;
    }

    void swipe(std::size_t band, int pixels) {
        const QPoint from = ScreenDriver::middleOf(*views().at(band)) - QPoint(pixels / 2, 0);
        driver->drag(from, from + QPoint(pixels, 0));
        EXPECT_TRUE(ScreenDriver::waitFor([&] { return views().size() == 4; })) << "one view of each band";
    }

    bool shows(std::size_t band, SigTypeEnum type) const {
        const QQuickItem &view = *views().at(band);
        const QImage picture = driver->picture().copy(view.mapRectToScene(view.boundingRect()).toRect());
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == SigTypeColors::getColor(type))
                    return true;
        return false;
    }
};

TEST_F(PlotListTest, ASwipeOfMoreThan100PixelsMovesItsBandByOneView) {
    const std::vector<std::tuple<std::size_t, int, std::vector<std::string>>> swipes = {
        {1, -100, {BAR, BAR, BAR, BAR}},   {1, 101, {BAR, BAR, BAR, BAR}},
        {1, -101, {BAR, FREQ, BAR, BAR}},  {3, -101, {BAR, FREQ, BAR, FREQ}},
        {1, -700, {BAR, HIST, BAR, FREQ}}, {1, -101, {BAR, HIST, BAR, FREQ}},
        {1, 100, {BAR, HIST, BAR, FREQ}},  {1, 101, {BAR, FREQ, BAR, FREQ}},
        {3, 101, {BAR, FREQ, BAR, BAR}}};
    for (const auto &[band, pixels, expected] : swipes) {
        swipe(band, pixels);
        EXPECT_EQ(shown(), expected) << band << ' ' << pixels;
    }
    deviceSays(scan("DIG"));
    EXPECT_THAT(shown(), ElementsAre(BAR, FREQ, BAR, BAR)) << "until the next CONFIG";
    deviceSays(R"({"type":"CONFIG","proto":"K7","ranges":["EXT_2400"]})");
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return shown() == std::vector<std::string>(4, BAR); }));
}

TEST_F(PlotListTest, OnlyTheViewOnShowPaintsAScan) {
    swipe(1, -101);
    swipe(2, -101);
    swipe(2, -101);
    std::vector<std::vector<std::unique_ptr<QSignalSpy>>> painted;
    for (const QQuickItem *view : views()) {
        auto &band = painted.emplace_back();
        for (QQuickItem *child : view->parentItem()->childItems())
            if (qobject_cast<LayeredPlot *>(child))
                band.push_back(std::make_unique<QSignalSpy>(child, SIGNAL(imageReady())));
    }
    for (int scans = 0; scans < 3; ++scans)
        deviceSays(scan("DIG"));
    std::vector<std::vector<int>> counts;
    for (const auto &band : painted) {
        auto &row = counts.emplace_back();
        for (const auto &spy : band)
            row.push_back(spy->count());
    }
    EXPECT_THAT(counts, ElementsAre(ElementsAre(3, 0, 0), ElementsAre(0, 3, 0), ElementsAre(0, 0, 3),
                                    ElementsAre(3, 0, 0)));
}

TEST_F(PlotListTest, AViewThatIsSwipedInShowsTheNewestScan) {
    const std::vector<std::tuple<int, const char *, SigTypeEnum>> steps = {{-101, "WIFI", SigTypeEnum::WIFI},
                                                                           {-101, "DIG", SigTypeEnum::DIG},
                                                                           {101, "FPV", SigTypeEnum::FPV},
                                                                           {101, "WIFI", SigTypeEnum::WIFI}};
    for (const auto &[pixels, name, type] : steps) {
        // The course of a signal needs two scans that are not the oldest one.
        deviceSays(scan(name));
        deviceSays(scan(name));
        swipe(2, pixels);
        EXPECT_TRUE(shows(2, type)) << name;
    }
}
