#include "messages.h"
#include "screen-driver.h"
#include "usb-service.h"
#include "visuals/freq-plot-model.h"
#include "visuals/theme-data.h"

#include <QQmlContext>
#include <QQuickView>
#include <QSignalSpy>

/// The content of the page, row by row: the words, their colours, and the colour of the box around them.
static std::string shown(QQuickView &view) {
    ScreenDriver driver(view);
    driver.picture();
    QString all;
    for (const QQuickItem *item : driver.findAll({}))
        if (item->property("color").isValid())
            all += item->property("text").toString() + item->property("color").value<QColor>().name() + " ";
    return all.toStdString();
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
    const std::string blank = "-----#ffffff #93cddd ----dB#000000  ----#000000 ";
    EXPECT_EQ(shown(view), blank + blank + blank);
    using Type = SigTypeEnum;
    emit service.gotMaxFreqs(MsgHolder(scanOf(
        {{5804.6f, -80.6f, Type::FPV}, {2440, -85.4f}, {2412.4f, -90, Type::WIFI}, {2412, -91, Type::FPV}})));
    EXPECT_EQ(shown(view),
              "5805#ffffff #ff0000 -81dB#000000 FPV#000000 2440#ffffff #ffc000 -85dB#000000 DIG#000000 "
              "2412#ffffff #00b050 -90dB#000000 WIFI#000000 ");
    emit service.gotMaxFreqs(MsgHolder(scanOf({{5805, -80, Type::BLOCK}, {2440, -85, Type::ALL}})));
    EXPECT_EQ(shown(view),
              "5805#ffffff #cccccc -80dB#000000 BLOCK#000000 2440#ffffff #93cddd -85dB#000000 ALL#000000 " +
                  blank);
    emit service.gotMaxFreqs(MsgHolder());
    EXPECT_EQ(shown(view), blank + blank + blank);

    emit service.gotMaxFreqs(MsgHolder(scanOf({{1e30f, -1e30f}})));
    EXPECT_EQ(shown(view), "1000000#ffffff #ffc000 -1000000dB#000000 DIG#000000 " + blank + blank);
    auto *timer = model.findChild<QTimer *>();
    EXPECT_EQ(timer->interval(), 10000) << "after the last scan, and again every ten seconds";
    timer->setInterval(0);
    EXPECT_TRUE(QSignalSpy(&model, &FreqPlotModel::modelReset).wait());
    EXPECT_EQ(shown(view), blank + blank + blank);
    EXPECT_TRUE(timer->isActive() && timer->interval() == 10000);
    for (const int role : {int(Qt::DisplayRole), int(Qt::DecorationRole)})
        EXPECT_FALSE(model.data(model.index(0), role).isValid());
    EXPECT_FALSE(model.data(QModelIndex(), 256).isValid());
}
