#include "visuals/drawing.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include <random>

namespace {

TEST(DrawingTest, FillsTheSamePixelsAsSmoothEdgesDo) {
    std::minstd_rand random;
    const auto from = [&](int low, int high) { return low + static_cast<int>(random() % (high - low + 1U)); };
    for (const double scale : {1.0, 1.25, 1.5, 2.0})
        for (int picture = 0; picture < 200; ++picture) {
            QImage filled(120, 90, QImage::Format_RGB32);
            filled.fill(Qt::black);
            QImage smooth = filled;
            QPainter fill(&filled), plain(&smooth);
            for (QPainter *painter : {&fill, &plain}) {
                painter->setRenderHint(QPainter::Antialiasing);
                painter->scale(scale, scale);
            }
            plain.setPen(Qt::NoPen);
            for (int i = 0; i < 10; ++i) { // some go beyond the picture
                const QRect place(from(-20, 100), from(-20, 70), from(0, 60), from(0, 60));
                const QColor color(from(0, 255), from(0, 255), from(0, 255), from(0, 255));
                paintDrawing({FilledRect{place, color}}, fill);
                plain.setBrush(color);
                plain.drawRect(place);
            }
            ASSERT_EQ(filled, smooth) << "picture " << picture << " at a scale of " << scale;
        }
}

TEST(DrawingTest, DrawsTheSameDashesAsAPlainPainterDoes) {
    std::minstd_rand random;
    const auto from = [&](int low, int high) { return low + static_cast<int>(random() % (high - low + 1U)); };
    for (int picture = 0; picture < 1000; ++picture) {
        QImage drawn(120, 90, QImage::Format_RGB32);
        drawn.fill(QColor(from(0, 255), from(0, 255), from(0, 255)));
        QImage expected = drawn;
        QPainter draw(&drawn), plain(&expected);
        for (QPainter *painter : {&draw, &plain}) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->translate(picture % 3 * 0.5, 0);
        }
        const int width = from(1, 2), dash = from(1, 6), y = from(-2, 92);
        const QColor color(from(0, 255), from(0, 255), from(0, 255), from(0, 255));
        const QLine place(from(-9, 9), y, from(60, 140), y);
        paintDrawing({DrawnLine{place, color, width, dash}}, draw);
        QPen pen(color, width);
        pen.setDashPattern({double(dash), double(dash)});
        pen.setDashOffset(dash);
        plain.setPen(pen);
        plain.drawLine(place);
        ASSERT_EQ(drawn, expected) << "picture " << picture;
    }
}

} // namespace
