#include "messages.h"
#include "screen-driver.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"
#include "visuals/theme-data.h"

#include <QQmlContext>
#include <QQuickView>
#include <gtest/gtest.h>

/// The words on each row from top to bottom, the colour in the corner of the box and that of its last word.
static QString rows(QQuickView &view) {
    ScreenDriver driver(view);
    const QImage picture = driver.picture();
    QMap<qreal, QString> rows;
    for (const QQuickItem *box :
         driver.findAll([](const QQuickItem &item) { return ScreenDriver::isA(item, "QQuickRectangle"); })) {
        const QPoint corner = box->mapToScene(QPointF(3, 3)).toPoint();
        QString row = picture.pixelColor(corner).name(), color;
        for (const QQuickItem *text : box->parentItem()->findChildren<QQuickItem *>()) {
            row += " " + text->property("text").toString();
            color = text->property("color").value<QColor>().name();
        }
        rows[corner.y()] = row.simplified() + " " + color;
    }
    return QStringList(rows.values()).join("; ");
}

TEST(CoverPage, ShowsTheStrongestSignalsInTheirColours) {
    UsbService service(nullptr, std::filesystem::path());
    FreqPlotModel model;
    ThemeData theme;
    QQuickView view;
    view.rootContext()->setContextProperty("usbService", &service);
    view.rootContext()->setContextProperty("freqPlotModel", &model);
    view.rootContext()->setContextProperty("themeData", &theme);
    view.setSource(QUrl("qrc:/qml/cover/DefaultCoverPage.qml"));
    view.show();
    EXPECT_EQ(view.rootObject()->objectName(), "defaultCover");
    const QString blank = "#93cddd ----- ----dB ---- #000000";
    EXPECT_EQ(rows(view), blank + "; " + blank + "; " + blank);
    const std::pair<const char *, QString> cases[] = {
        {R"({"type":"SCAN_RESULT","freqs":[{"freqMHz":5804.6,"rssi":-80.6,"type":"FPV"},
            {"freqMHz":2440,"rssi":-85.4,"type":"DIG"}, {"freqMHz":2412.4,"rssi":-90,"type":"WIFI"},
            {"freqMHz":2412,"rssi":-91,"type":"FPV"}]})",
         "#ff0000 5805 -81dB FPV #000000; #ffc000 2440 -85dB DIG #000000; #00b050 2412 -90dB WIFI #000000"},
        {R"({"type":"SCAN_RESULT","freqs":[{"freqMHz":5805,"rssi":-80,"type":"BLOCK"},
            {"freqMHz":2440,"rssi":-85,"type":"ALL"}]})",
         "#cccccc 5805 -80dB BLOCK #000000; #93cddd 2440 -85dB ALL #000000; " + blank},
        {R"({"type":"GET_STATE"})", blank + "; " + blank + "; " + blank}};
    for (const auto &[message, expected] : cases) {
        emit service.gotMaxFreqs(held(message));
        EXPECT_EQ(rows(view), expected);
    }
}
