#include "common/history-metatype.h"
#include "common/sig-type-colors.h"
#include "screen-fixture.h"

#include <QSignalSpy>

using namespace testing;

/// The rows of views on the application's window. B, F and H stand for bars, course and persistence.
class PlotListTest : public ScreenFixture {
protected:
    void SetUp() override {
        connectTo(ProtoEnum::K7);
        ASSERT_NO_FATAL_FAILURE(deviceSays(scan("NONE")));
        ASSERT_TRUE(ScreenDriver::waitFor([&] { return shown() == "BBBB"; }));
    }

    /// A scan with one strong signal of a class in each band, in its second column.
    static std::string scan(const std::string &type) {
        std::string freqs;
        for (const std::string band : {"10", "24", "49", "57"})
            freqs += (freqs.empty() ? "" : ",") + (R"({"freqMHz":)" + band) +
                     R"(00,"rssi":-99,"type":"NONE"},)" + R"({"freqMHz":)" + band +
                     R"(30,"rssi":-80,"type":")" + type + R"("})";
        return R"({"type":"SCAN_RESULT","mask":false,"freqs":[)" + freqs + "]}";
    }

    /// The visible views; the documents make their rows from the last to the first.
    std::vector<QQuickItem *> views() const {
        const auto found = driver->findAll("LayeredPlot");
        std::map<qreal, QQuickItem *> byPlace;
        for (QQuickItem *view : found)
            byPlace[view->mapToScene({0, 0}).y()] = view;
        std::vector<QQuickItem *> views;
        for (const auto &[y, view] : byPlace)
            views.push_back(view);
        return found.size() == int(views.size()) ? views : std::vector<QQuickItem *>();
    }
    std::string shown() const {
        std::string shown;
        for (const QQuickItem *view : views())
            shown += view->mapToScene({0, 0}).x() == 0 ? view->metaObject()->className()[0] : '?';
        return shown;
    }
    void swipe(std::size_t band, int pixels) {
        const QPoint from = ScreenDriver::middleOf(*views().at(band)) - QPoint(pixels / 2, 0);
        driver->drag(from, from + QPoint(pixels, 0));
        EXPECT_TRUE(ScreenDriver::waitFor([&] { return views().size() == 4; })) << "one view of each band";
    }
};

TEST_F(PlotListTest, DividesThePageAmongTheBandsWithThreeViewsEach) {
    struct {
        const char *generation;
        std::vector<const char *> places;
        std::vector<MasterFreqModeEnum> bands;
    } const generations[] = {
        {"K7",
         {"800x166+0+0", "800x166+0+166", "800x166+0+332", "800x166+0+498"},
         {MasterFreqModeEnum::R_1200, MasterFreqModeEnum::R_2400, MasterFreqModeEnum::R_4900,
          MasterFreqModeEnum::R_5800}},
        {"K6",
         {"800x222+0+0", "800x222+0+222", "800x222+0+444"},
         {MasterFreqModeEnum::R_2400, MasterFreqModeEnum::R_4900, MasterFreqModeEnum::R_5800}}};
    for (const auto &[generation, places, bands] : generations) {
        deviceSays(std::string(R"({"type":"CONFIG","proto":")") + generation + R"(","ranges":["EXT_2400"]})");
        deviceSays(scan("DIG"));
        driver->picture();
        ASSERT_EQ(views().size(), places.size());
        for (std::size_t row = 0; row < places.size(); ++row) {
            EXPECT_EQ(ScreenDriver::place(*views()[row]), places[row]);
            std::string looks;
            for (const QQuickItem *view : views()[row]->parentItem()->childItems()) {
                const QVariant history = view->property("history");
                if (!history.isValid())
                    continue;
                EXPECT_EQ(history.value<History>().getMasterMode(), bands[row]);
                looks += ScreenDriver::place(*view, view->parentItem()).substr(7);
                for (const char *name : {"backgroundColor", "innerBorderColor", "textColor", "borderColor",
                                         "lineWidth", "textSize", "lang"})
                    if (view->property(name).isValid())
                        looks += ' ' + view->property(name).toString().toStdString();
                looks += '|';
            }
            EXPECT_EQ(looks, "+0+0 #81909f #6d7683 1 10|+800+0 #41505f #ffffff #808080 2 10 language|+1600+0 "
                             "#000000 #ffffff #808080 2 10|");
        }
    }
    disconnectByButton();
    EXPECT_THAT(views(), IsEmpty());
}

TEST_F(PlotListTest, ASwipeOfMoreThan100PixelsMovesItsBandByOneView) {
    struct {
        std::size_t band;
        int pixels;
        const char *shown;
    } const swipes[] = {{1, -100, "BBBB"}, {1, 101, "BBBB"},  {1, -101, "BFBB"}, {3, -101, "BFBF"},
                        {1, -700, "BHBF"}, {1, -101, "BHBF"}, {1, 100, "BHBF"},  {1, 101, "BFBF"},
                        {3, 101, "BFBB"},  {2, -101, "BFFB"}, {2, -101, "BFHB"}};
    for (const auto &[band, pixels, expected] : swipes) {
        swipe(band, pixels);
        EXPECT_EQ(shown(), expected) << band << ' ' << pixels;
    }
    // Only the view on show paints a scan.
    std::vector<std::unique_ptr<QSignalSpy>> painted;
    for (const QQuickItem *view : views())
        for (QQuickItem *child : view->parentItem()->childItems())
            if (child->property("history").isValid())
                painted.push_back(std::make_unique<QSignalSpy>(child, SIGNAL(imageReady())));
    for (int scans = 0; scans < 3; ++scans)
        deviceSays(scan("DIG"));
    std::string counts;
    for (const auto &spy : painted)
        counts += std::to_string(spy->count());
    EXPECT_EQ(counts, "300030003300");
    EXPECT_EQ(shown(), "BFHB") << "until the next CONFIG";
    deviceSays(R"({"type":"CONFIG","proto":"K7","ranges":["EXT_2400"]})");
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return shown() == "BBBB"; }));
}

TEST_F(PlotListTest, AViewThatIsSwipedInShowsTheNewestScan) {
    struct {
        int pixels;
        const char *name;
        SigTypeEnum type;
    } const steps[] = {{-101, "WIFI", SigTypeEnum::WIFI},
                       {-101, "DIG", SigTypeEnum::DIG},
                       {101, "FPV", SigTypeEnum::FPV},
                       {101, "WIFI", SigTypeEnum::WIFI}};
    for (const auto &[pixels, name, type] : steps) {
        // The course of a signal needs two scans that are not the oldest one.
        deviceSays(scan(name));
        deviceSays(scan(name));
        swipe(2, pixels);
        const QImage picture = driver->picture();
        const QRect area = views()[2]->mapRectToScene(views()[2]->boundingRect()).toRect();
        int found = 0;
        for (int y = area.top(); y < area.bottom(); ++y)
            for (int x = area.left(); x < area.right(); ++x)
                found += picture.pixelColor(x, y) == SigTypeColors::getColor(type);
        EXPECT_GT(found, 0) << name;
    }
}
