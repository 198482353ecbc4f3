#include "visuals/drawing.h"

#include "testing.h"

#include <QImage>
#include <QPainter>

namespace {

/// Shapes on a picture of this colour are to look as a plain painter makes them, with smooth edges.
void expectPlain(const Drawing &drawing, const QColor &ground, const QTransform &view) {
    QImage drawn(120, 90, QImage::Format_RGB32);
    drawn.fill(ground);
    QImage expected = drawn;
    QPainter draw(&drawn), plain(&expected);
    for (QPainter *painter : {&draw, &plain}) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setTransform(view);
    }
    paintDrawing(drawing, draw);
    for (const auto &shape : drawing)
        if (const auto *rect = std::get_if<FilledRect>(&shape)) {
            plain.setPen(Qt::NoPen);
            plain.setBrush(rect->color);
            plain.drawRect(rect->place);
        } else if (const auto *line = std::get_if<DrawnLine>(&shape)) {
            QPen pen(line->color, line->width);
            pen.setDashPattern({double(line->dash), double(line->dash)});
            pen.setDashOffset(line->dash);
            plain.setPen(pen);
            plain.drawLine(line->place);
        }
    EXPECT_EQ(drawn, expected) << view.m11() << " " << view.dx();
}

TEST(Drawing, LooksAsAPlainPainterMakesIt) {
    std::minstd_rand random;
    const auto from = [&](int low, int high) { return low + static_cast<int>(random() % (high - low + 1U)); };
    const auto color = [&] { return QColor(from(0, 255), from(0, 255), from(0, 255), from(0, 255)); };
    for (int picture = 0; picture < 800; ++picture) {
        Drawing rects; // some go beyond the picture
        for (int i = 0; i < 10; ++i)
            rects.push_back(
                FilledRect{QRect(from(-20, 100), from(-20, 70), from(0, 60), from(0, 60)), color()});
        for (const double scale : {1.0, 1.25, 1.5, 2.0})
            if (picture % 4 == 0)
                expectPlain(rects, Qt::black, QTransform::fromScale(scale, scale));
        const int y = from(-2, 92);
        expectPlain({DrawnLine{QLine(from(-9, 9), y, from(60, 140), y), color(), from(1, 2), from(1, 6)}},
                    QColor(from(0, 255), from(0, 255), from(0, 255)),
                    QTransform::fromTranslate(picture % 3 * 0.5, 0));
        if (testing::Test::HasFailure())
            break;
    }
}

TEST(Drawing, KeepsWordsInTheirSizeColourAndRoom) {
    QImage canvas(60, 60, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    QPainter painter(&canvas);
    paintDrawing(
        {Words{QPoint(20, 50), "-105", Qt::black, 12, 10}, Words{QPoint(0, 58), "I", Qt::magenta, 28}},
        painter);
    const auto count = [&](const QRect &part, const QColor &color) {
        int found = 0;
        for (int i = 0; i < part.width() * part.height(); ++i)
            found += canvas.pixelColor(part.x() + i % part.width(), part.y() + i / part.width()) == color;
        return found;
    };
    EXPECT_GT(count({0, 35, 20, 5}, Qt::magenta), 5);
    EXPECT_EQ(fontOfSize(12).pointSize() + fontOfSize(0).pointSize(), 13);
    EXPECT_LT(count({20, 35, 10, 16}, Qt::white), 150) << "words in their room";
    EXPECT_EQ(count({31, 30, 29, 30}, Qt::white), 29 * 30) << "and not beyond it";
}

} // namespace
