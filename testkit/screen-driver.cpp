#include "screen-driver.h"

#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

namespace {

/// Items of documents have a class name such as "Button_QMLTYPE_3".
bool isA(const QQuickItem &item, const QString &element) {
    for (const QMetaObject *meta = item.metaObject(); meta; meta = meta->superClass())
        if (QString(meta->className()).section('_', 0, 0) == element)
            return true;
    return element.isEmpty();
}

QString pictureOn(const QQuickItem &item, const char *property) {
    return item.property(property).toUrl().fileName();
}

bool shows(const QQuickItem &item, const QString &word) {
    const QStringList shown{item.property("text").toString(), item.property("title").toString(),
                            pictureOn(item, "iconSource")};
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(word));
    return word.isEmpty() || shown.contains(word) || shown.indexOf(pattern) >= 0;
}

QString colorOf(const QVariant &value) {
    const auto color = value.value<QColor>();
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

void collect(QQuickItem *item, const std::function<void(QQuickItem *)> &take) {
    if (!item->isVisible())
        return;
    take(item);
    for (QQuickItem *child : item->childItems())
        collect(child, take);
}

} // namespace

QVector<QQuickItem *> ScreenDriver::findAll(const QString &element, const QString &word,
                                            const QQuickItem *in) const {
    QVector<QQuickItem *> found;
    collect(window.contentItem(), [&](QQuickItem *item) {
        if (isA(*item, element) && shows(*item, word) && (!in || in == item || in->isAncestorOf(item)))
            found.append(item);
    });
    return found;
}

std::string ScreenDriver::words(const QString &element) const {
    std::string words;
    if (const QQuickItem *item = find(element))
        for (const QQuickItem *text : findAll("QQuickText", {}, item))
            if (const QString word = text->property("text").toString(); !word.isEmpty())
                words += word.toStdString() + '|';
    return words;
}

std::string ScreenDriver::look(const QQuickItem &item) const {
    QStringList looks;
    for (const QQuickItem *part : findAll({}, {}, &item)) {
        const auto value = [part](const char *name) { return part->property(name); };
        QString where = QString::fromStdString(place(*part, &item));
        if (qAbs(part->mapToItem(&item, {0, part->height() / 2}).y() - item.height() / 2) < 1)
            where = where.section('+', 0, 1) + '=';
        QString look;
        if (isA(*part, "QQuickText") && !value("text").toString().isEmpty()) {
            const auto font = value("font").value<QFont>();
            look = QString("'%1' %2 %3").arg(value("text").toString(), colorOf(value("color")));
            look = look.arg(font.pointSizeF()) + (font.bold() ? " bold" : "");
        } else if (isA(*part, "QQuickImage") && !pictureOn(*part, "source").isEmpty()) {
            look = pictureOn(*part, "source") + ' ' + where;
        } else if (isA(*part, "QQuickRectangle") && value("color").value<QColor>().alpha() > 0) {
            look = colorOf(value("color"));
            const auto *border = value("border").value<QObject *>();
            if (const double width = border->property("width").toReal(); width > 1)
                look += '/' + colorOf(border->property("color")) + QString(":%1").arg(width);
            if (const double radius = value("radius").toReal(); radius > 0)
                look += QString(" r%1").arg(radius);
            if (part->size() != item.size())
                look += ' ' + where;
        } else if (value("switchEnabled").isValid() && part->childItems().isEmpty()) {
            const QVariant position = value("position").isValid() ? value("position") : value("checked");
            look = QString("'%1' %2/%3 %4 %5")
                       .arg(value("text").toString(), value("textSize").toString(),
                            value("lineWidth").toString(), colorOf(value("backgroundColor")))
                       .arg(position.toInt());
            look += value("switchEnabled").toBool() ? "" : " dead";
        } else {
            continue;
        }
        double opacity = 1;
        for (const QQuickItem *each = part; each; each = each->parentItem())
            opacity *= each->opacity();
        looks += opacity < 1 ? look + QString(" *%1").arg(opacity) : look;
    }
    return looks.join(", ").toStdString();
}

std::string ScreenDriver::looks(const QString &element, const QString &in) const {
    picture();
    std::string looks;
    for (const QQuickItem *item : findAll(element, {}, find(in)))
        looks += '\n' + place(*item) + ' ' + look(*item);
    return looks;
}

std::string ScreenDriver::place(const QQuickItem &item, const QQuickItem *in) {
    const QRectF rect = item.mapRectToItem(in, {0, 0, item.width(), item.height()});
    const auto rounded = [](double value) { return qRound(value * 10) / 10.0; };
    return QString("%1x%2+%3+%4")
        .arg(rounded(rect.width()))
        .arg(rounded(rect.height()))
        .arg(rounded(rect.x()))
        .arg(rounded(rect.y()))
        .toStdString();
}

bool ScreenDriver::isInView(const QQuickItem &item, const QQuickItem &in) {
    const QRectF rect = item.mapRectToItem(&in, {0, 0, item.width(), item.height()});
    return QRectF(0, 0, in.width(), in.height()).contains(rect);
}

void ScreenDriver::resize(const QSize &size) {
    window.resize(size);
    waitFor([&] { return window.contentItem()->size() == size; });
    picture();
}

QPoint ScreenDriver::middleOf(const QQuickItem &item) {
    return item.mapToScene(item.boundingRect().center()).toPoint();
}

void ScreenDriver::clickAt(QPoint point) {
    QTest::mouseClick(&window, Qt::LeftButton, {}, point);
}

void ScreenDriver::drag(QPoint from, QPoint to) {
    constexpr int steps = 8;
    QTest::mousePress(&window, Qt::LeftButton, {}, from);
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(&window, from + (to - from) * i / steps);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
}

QPoint ScreenDriver::slide(const QQuickItem &slider, double value, bool letGo) {
    const double runner = slider.height() / 2, way = slider.width() - runner;
    const double x = runner / 2 + way * value / slider.property("maximumValue").toDouble();
    const QPoint to = slider.mapToScene({x, runner}).toPoint();
    QTest::mousePress(&window, Qt::LeftButton, {}, middleOf(slider));
    QTest::mouseMove(&window, to);
    if (letGo)
        QTest::mouseRelease(&window, Qt::LeftButton, {}, to);
    return to;
}

bool ScreenDriver::scrollDown(const QQuickItem &item) {
    const QQuickItem *flickable = find("QQuickFlickable", {}, &item);
    return flickable && waitFor([&] {
               drag(item.mapToScene({2, item.height() * 0.9}).toPoint(),
                    item.mapToScene({2, item.height() * 0.1}).toPoint());
               return flickable->property("atYEnd").toBool();
           });
}

bool ScreenDriver::waitFor(const std::function<bool()> &condition, int timeoutMs) {
    return QTest::qWaitFor(condition, timeoutMs);
}

QImage ScreenDriver::picture() const {
    QSignalSpy drawn(&window, &QQuickWindow::frameSwapped);
    window.update();
    if (drawn.isEmpty())
        drawn.wait();
    // QQuickWindow::grabWindow() gives nothing on the offscreen platform with software rendering. On Wayland
    // this is the only way to a picture of a window.
    const QImage picture = window.screen()->grabWindow(window.winId()).toImage();
    return picture.isNull() ? window.grabWindow() : picture;
}
