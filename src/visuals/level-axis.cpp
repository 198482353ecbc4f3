#include "visuals/level-axis.h"

#include "common/bounded.h"

#include <QtGlobal>
#include <algorithm>

namespace {

/// A level as a part of `pixels`, counted from the weak end.
float shareOf(int pixels, float levelDb) {
    constexpr int LENGTH_DB = LevelAxis::PLOT_MAX_Y - LevelAxis::PLOT_MIN_Y;
    return static_cast<float>(pixels) * (levelDb - LevelAxis::PLOT_MIN_Y) / LENGTH_DB;
}

} // namespace

std::vector<int> LevelAxis::labels(int fromDb) {
    constexpr int STEP_DB = 5;
    std::vector<int> levels;
    for (int level = fromDb; level <= PLOT_MAX_Y; level += STEP_DB)
        levels.push_back(level);
    return levels;
}

int LevelAxis::barHeight(int levelDb, int plotHeight) {
    if (levelDb < PLOT_MIN_Y)
        return plotHeight;
    if (levelDb > PLOT_MAX_Y)
        return 0;
    // Rounds the distance from the top, so that half a pixel makes no bar higher.
    return plotHeight -
           qRound(static_cast<float>(plotHeight) - shareOf(plotHeight, static_cast<float>(levelDb)));
}

int LevelAxis::courseY(float levelDb, int gridHeight, int lineWidth) {
    if (levelDb > PLOT_MAX_Y)
        return gridHeight - lineWidth;
    if (!(levelDb >= PLOT_MIN_Y))
        return 0;
    return static_cast<int>(shareOf(gridHeight, levelDb));
}

int LevelAxis::blockY(float levelDb, int rowHeight) {
    return rowHeight * (std::min(static_cast<int>(bounded(levelDb)), PLOT_MAX_Y) - minLevelDb);
}
