#include "common/history-metatype.h"
#include "screen-fixture.h"

#include <QPainter>
#include <QQuickPaintedItem>
#include <QtMath>

/// The rows of views on the application's window. B, F and H stand for bars, course and persistence.
class PlotListTest : public ScreenFixture {
protected:
    void SetUp() override {
        connectTo(ProtoEnum::K7);
        ASSERT_NO_FATAL_FAILURE(deviceSays(scan("NONE")));
        ASSERT_TRUE(ScreenDriver::waitFor([&] { return shown() == "BBBB"; }));
    }

    /// A scan with one strong signal of a class in each band, in its second column.
    static std::string scan(const QString &type) {
        QStringList freqs;
        for (const int weak : {1000, 2400, 4900, 5700})
            freqs += QString::asprintf(
                R"({"freqMHz":%d,"rssi":-99,"type":"NONE"},{"freqMHz":%d,"rssi":-80,"type":"%s"})", weak,
                weak + 30, qPrintable(type));
        return R"({"type":"SCAN_RESULT","mask":false,"freqs":[)" + freqs.join(',').toStdString() + "]}";
    }

    static std::string scanOfOne() {
        return R"({"type":"SCAN_RESULT","freqs":[{"freqMHz":5800.6,"rssi":-80.4,"type":"FPV"},)"
               R"({"freqMHz":5840,"rssi":-70,"type":"NONE"}]})";
    }

    /// The visible views from top to bottom.
    std::vector<QQuickItem *> views() const {
        std::multimap<qreal, QQuickItem *> byPlace;
        for (QQuickItem *view : driver->findAll("LayeredPlot"))
            byPlace.emplace(view->mapToScene({0, 0}).y(), view);
        std::vector<QQuickItem *> views;
        for (const auto &[y, view] : byPlace)
            views.push_back(view);
        return views;
    }
    static QList<QQuickItem *> allOfRow(const QQuickItem &view) {
        return view.parentItem()->childItems().mid(0, 3);
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
    const std::pair<std::string, std::vector<const char *>> generations[] = {
        {"K7", {"800x166+0+0", "800x166+0+166", "800x166+0+332", "800x166+0+498"}},
        {"K6", {"800x222+0+0", "800x222+0+222", "800x222+0+444"}}};
    for (const auto &[generation, places] : generations) {
        deviceSays(R"({"type":"CONFIG","ranges":["EXT_2400"],"proto":")" + generation + "\"}");
        deviceSays(scan("DIG"));
        driver->picture();
        ASSERT_EQ(views().size(), places.size());
        for (std::size_t row = 0; row < places.size(); ++row) {
            EXPECT_EQ(ScreenDriver::place(*views()[row]), places[row]);
            std::string looks;
            for (const QQuickItem *view : allOfRow(*views()[row])) {
                const auto band = view->property("history").value<History>().getMasterMode();
                EXPECT_EQ(static_cast<std::size_t>(band), row + 4 - places.size());
                for (const char *name : {"x", "backgroundColor", "innerBorderColor", "textColor",
                                         "borderColor", "lineWidth", "textSize", "lang"})
                    looks += view->property(name).toString().toStdString() + ' ';
            }
            EXPECT_EQ(looks, "0 #81909f #6d7683   1 10  800 #41505f  #ffffff #808080 2 10 language "
                             "1600 #000000  #ffffff #808080 2 10  ");
        }
    }
    driver->resize({800, 1345});
    EXPECT_EQ(driver->find("MainPage")->height(), 1003);
    for (std::size_t row = 0; row < 3; ++row)
        EXPECT_EQ(ScreenDriver::place(*views()[row]), "800x334+0+" + std::to_string(334 * row));
    disconnect();
    EXPECT_THAT(views(), IsEmpty());
}

TEST_F(PlotListTest, ASwipeOfMoreThan100PixelsMovesItsBandByOneView) {
    const QString swipes =
        "1 -100 BBBB|1 101 BBBB|1 -101 BFBB|3 -101 BFBF|1 -700 BHBF|1 -101 BHBF|1 100 BHBF|1 101 BFBF|"
        "3 101 BFBB|2 -101 BFFB|2 -101 BFHB";
    for (const QString &each : swipes.split('|')) {
        swipe(each.section(' ', 0, 0).toUInt(), each.section(' ', 1, 1).toInt());
        EXPECT_EQ(shown(), each.section(' ', 2).toStdString()) << qPrintable(each);
    }
    std::vector<std::unique_ptr<QSignalSpy>> painted;
    for (const QQuickItem *view : views())
        for (const QQuickItem *each : allOfRow(*view))
            painted.push_back(std::make_unique<QSignalSpy>(each, SIGNAL(imageReady())));
    for (int scans = 0; scans < 3; ++scans)
        deviceSays(scan("DIG"));
    std::string times;
    for (const auto &spy : painted)
        times += std::to_string(spy->count());
    EXPECT_EQ(times, "300030003300") << "only the view on show paints";
    for (const QString step :
         {"101 FPV #ff0000", "101 WIFI #00b050", "-101 DIG #ffc000", "-101 WIFI #00b050"}) {
        // The course of a signal needs two scans that are not the oldest one.
        deviceSays(scan(step.section(' ', 1, 1)));
        deviceSays(scan(step.section(' ', 1, 1)));
        swipe(2, step.section(' ', 0, 0).toInt());
        const QImage picture = driver->picture().copy(0, 332, 800, 166);
        int found = 0;
        for (int i = 0; i < 800 * 166; ++i)
            found += picture.pixelColor(i % 800, i / 800) == QColor(step.section(' ', 2));
        EXPECT_GT(found, 0) << "a view that is swiped in shows the newest scan: " << qPrintable(step);
    }
    deviceSays(R"({"type":"CONFIG","proto":"K7","ranges":["EXT_2400"]})");
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return shown() == "BBBB"; }));
}

TEST_F(PlotListTest, APictureWithoutScansFadesUntilTheNextOneAndEachViewTellsItsStrongestSignal) {
    const auto told = [this] {
        std::string lines;
        for (QQuickItem *item : driver->findAll({}))
            if (const auto *reader = QAccessible::queryAccessibleInterface(item);
                reader && reader->role() == QAccessible::Chart)
                lines += reader->text(QAccessible::Name).toStdString() + ": " +
                         reader->text(QAccessible::Description).toStdString() + '\n';
        return lines;
    };
    const auto opacityOf = [](QQuickItem *item) {
        double opacity = 1;
        for (; item; item = item->parentItem())
            opacity *= item->opacity();
        return opacity;
    };
    QQuickItem &page = *driver->find("MainPage");
    const auto waitUntilSilent = [&] {
        EXPECT_EQ(page.property("silenceMs"), 15000);
        page.setProperty("silenceMs", 1);
        EXPECT_TRUE(ScreenDriver::waitFor([&] { return opacityOf(views().at(0)) == 0.4; }));
        page.setProperty("silenceMs", 15000);
    };
    EXPECT_EQ(told(), "Bars 1.2: No signal\nBars 2.4: No signal\nBars 4.9: No signal\nBars 5.8: No signal\n");
    swipe(3, -101);
    deviceSays(scanOfOne());
    const std::string live = "Bars 1.2: No signal\nBars 2.4: No signal\nBars 4.9: No signal\n"
                             "Course 5.8: Strongest: 5801 MHz, -80 dB, FPV\n";
    EXPECT_EQ(told(), live);
    waitUntilSilent();
    EXPECT_EQ(driver->find("Announcer")->property("words"), "No scan for 0.001 seconds");
    EXPECT_EQ(opacityOf(driver->control("usb")), 1);
    EXPECT_THAT(told(),
                HasSubstr("\nCourse 5.8: No scan for 15 seconds. Strongest: 5801 MHz, -80 dB, FPV\n"));
    deviceSays(scanOfOne());
    EXPECT_EQ(opacityOf(views().at(0)), 1);
    EXPECT_EQ(told(), live);
    waitUntilSilent();
    disconnect();
    connect();
    EXPECT_EQ(opacityOf(views().at(0)), 1) << "a new connection has its own time";
    page.setProperty("silenceMs", 400);
    QTest::qWait(200);
    const auto start = std::chrono::steady_clock::now();
    deviceSays(scanOfOne());
    EXPECT_TRUE(ScreenDriver::waitFor([&] { return opacityOf(views().at(0)) == 0.4; }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 350ms) << "each scan has its own, too";
}

/// Each scale in a process of its own: Qt takes it when it starts.
TEST_F(PlotListTest, IsSharpAtEveryScale) {
    if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        for (const char *scale : {"1.25", "2"}) {
            QProcess self;
            auto environment = QProcessEnvironment::systemEnvironment();
            environment.insert("QT_SCALE_FACTOR", scale);
            self.setProcessEnvironment(environment);
            self.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=*.IsSharpAtEveryScale"});
            EXPECT_TRUE(self.waitForFinished(60000));
            EXPECT_EQ(self.exitCode(), 0) << scale << self.readAll().data();
        }
        return;
    }
    const double scale = window->effectiveDevicePixelRatio();
    EXPECT_EQ(scale, qgetenv("QT_SCALE_FACTOR").toDouble());
    driver->resize({801, 1003});
    for (int step = 0; step < 3; ++step) {
        deviceSays(scan("FPV"));
        const QImage picture = driver->picture();
        for (QQuickItem *view : views()) {
            QImage alone((view->size() * scale).toSize(), picture.format());
            QPainter painter(&alone);
            painter.scale(scale, scale);
            qobject_cast<QQuickPaintedItem *>(view)->paint(&painter);
            const QPointF corner = view->mapToScene({0, 0}) * scale;
            // Two bands may share a line of pixels, and the platform shows no more than the window's logical
            // size.
            const QPoint pixel(qFloor(corner.x()), qFloor(corner.y()));
            const QRect inside = alone.rect().adjusted(0, 1, -1, -1).translated(pixel) & picture.rect();
            EXPECT_TRUE(inside.isEmpty() || picture.copy(inside) == alone.copy(inside.translated(-pixel)))
                << shown();
        }
        for (std::size_t band = 0; band < 4; ++band)
            swipe(band, -101);
    }
}
