#include "visuals/time-axis.h"

namespace {

/// Pixels for the digits of a number; 0 pixels for the number 0.
std::int64_t labelWidth(std::int64_t number, int charW) {
    std::int64_t width = 0;
    for (; number > 0; number /= 10)
        width += charW;
    return width;
}

} // namespace

std::vector<Tick> timeTicks(std::int64_t spanMs, int width, int charW) {
    const std::int64_t total = spanMs > 1000 ? spanMs / 1000 : spanMs;
    const std::int64_t step = labelStep([&](std::int64_t candidate) {
        return total / candidate * labelWidth(total / candidate, charW) * 2 <= width;
    });
    std::vector<Tick> ticks;
    for (std::int64_t ago = 0; ago < total; ago += step) {
        const int x = static_cast<int>(width - width * ago / total);
        const int labelX = static_cast<int>(x - 0.5 * static_cast<double>(labelWidth(ago, charW)));
        ticks.push_back({x, ago, labelX, labelX > 0});
    }
    return ticks;
}

std::vector<int> linesWithoutTime(int width) {
    const int step = static_cast<int>(0.18 * width);
    std::vector<int> lines;
    for (int x = 0; step > 0 && x < width; x += step)
        lines.push_back(x);
    return lines;
}
