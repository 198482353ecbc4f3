#include "messages.h"
#include "screen-driver.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"

#include <QQmlContext>
#include <QQuickView>
#include <gmock/gmock.h>

using testing::ElementsAre;

static const std::string BLANK = "#93cddd ----- ----dB ----";

class CoverPageTest : public testing::Test {
protected:
    CoverPageTest() {
        view.rootContext()->setContextProperty("usbService", &service);
        view.rootContext()->setContextProperty("freqPlotModel", &model);
        view.setSource(QUrl("qrc:/qml/cover/DefaultCoverPage.qml"));
        view.show();
    }

    /// The words on each row from top to bottom, and the colour in the corner of the box behind its level.
    std::vector<std::string> rows() {
        const QImage picture = driver.picture();
        auto boxes =
            driver.findAll([](const QQuickItem &item) { return ScreenDriver::isA(item, "QQuickRectangle"); });
        std::sort(boxes.begin(), boxes.end(), [](const QQuickItem *a, const QQuickItem *b) {
            return ScreenDriver::middleOf(*a).y() < ScreenDriver::middleOf(*b).y();
        });
        std::vector<std::string> found;
        for (const QQuickItem *box : boxes) {
            QString row = picture.pixelColor(box->mapToScene(QPointF(3, 3)).toPoint()).name();
            for (const QQuickItem *text : box->parentItem()->findChildren<QQuickItem *>())
                row += " " + text->property("text").toString();
            found.push_back(row.simplified().toStdString());
        }
        return found;
    }

    UsbService service{nullptr, std::filesystem::path()};
    FreqPlotModel model;
    QQuickView view;
    ScreenDriver driver{view};
};

TEST_F(CoverPageTest, ShowsTheStrongestSignalsInTheirColours) {
    ASSERT_EQ(view.status(), QQuickView::Ready);
    EXPECT_EQ(view.rootObject()->objectName(), "defaultCover");
    EXPECT_THAT(rows(), ElementsAre(BLANK, BLANK, BLANK));
    emit service.gotMaxFreqs(held(R"({"type":"SCAN_RESULT","freqs":[
        {"freqMHz":5805,"rssi":-80,"type":"FPV"},
        {"freqMHz":2440,"rssi":-85,"type":"DIG"},
        {"freqMHz":2412,"rssi":-90,"type":"WIFI"}]})"));
    EXPECT_THAT(rows(),
                ElementsAre("#ff0000 5805 -80dB FPV", "#ffc000 2440 -85dB DIG", "#00b050 2412 -90dB WIFI"));
    emit service.gotMaxFreqs(held(R"({"type":"SCAN_RESULT","freqs":[
        {"freqMHz":5805,"rssi":-80,"type":"BLOCK"},
        {"freqMHz":2440,"rssi":-85,"type":"ALL"}]})"));
    EXPECT_THAT(rows(), ElementsAre("#cccccc 5805 -80dB BLOCK", "#93cddd 2440 -85dB ALL", BLANK));
}
