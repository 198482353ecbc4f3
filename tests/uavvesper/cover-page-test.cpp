#include "scans.h"
#include "screen-driver.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"
#include "visuals/theme-data.h"

#include <QQmlContext>
#include <QQuickView>
#include <gtest/gtest.h>

/// The words on each row from top to bottom, the colour in the corner of the box and that of its last word.
static std::string rows(QQuickView &view) {
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
    return QStringList(rows.values()).join("; ").toStdString();
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
    const std::string blank = "#93cddd ----- ----dB ---- #000000",
                      blanks = blank + "; " + blank + "; " + blank;
    EXPECT_EQ(rows(view), blanks);
    using Type = SigTypeEnum;
    emit service.gotMaxFreqs(MsgHolder(scanOf(
        {{5804.6f, -80.6f, Type::FPV}, {2440, -85.4f}, {2412.4f, -90, Type::WIFI}, {2412, -91, Type::FPV}})));
    EXPECT_EQ(
        rows(view),
        "#ff0000 5805 -81dB FPV #000000; #ffc000 2440 -85dB DIG #000000; #00b050 2412 -90dB WIFI #000000");
    emit service.gotMaxFreqs(MsgHolder(scanOf({{5805, -80, Type::BLOCK}, {2440, -85, Type::ALL}})));
    EXPECT_EQ(rows(view), "#cccccc 5805 -80dB BLOCK #000000; #93cddd 2440 -85dB ALL #000000; " + blank);
    emit service.gotMaxFreqs(MsgHolder());
    EXPECT_EQ(rows(view), blanks);
}
