#include "visuals/persistence-blocks.h"

#include "common/sig-type-colors.h"
#include "visuals/level-axis.h"

std::optional<QColor> fadedColor(SigTypeEnum type, int age, int historyLen) {
    const int ordinal = static_cast<int>(type);
    if (age < 0 || age >= historyLen || ordinal < 0 || ordinal >= SigType::getLength())
        return std::nullopt;
    QColor color = SigTypeColors::getColor(type);
    color.setAlpha(static_cast<int>((age + 1) * (255.0 / historyLen)));
    return color;
}

std::vector<FilledRect> persistenceBlocks(const std::vector<std::vector<History::_HistoryPoint>> &rows,
                                          int historyLen, int columns, int width, int rowHeight) {
    const int blockWidth = width / columns;
    std::vector<FilledRect> blocks;
    QColor color = Qt::transparent;
    int age = historyLen - static_cast<int>(rows.size());
    for (const auto &row : rows) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            color = fadedColor(row[column].sigType, age, historyLen).value_or(color);
            blocks.push_back({QRect(static_cast<int>(column) * blockWidth,
                                    LevelAxis::blockY(row[column].rssi, rowHeight), blockWidth, rowHeight),
                              color});
        }
        ++age;
    }
    return blocks;
}
