#pragma once

#include "common/history.h"
#include "visuals/drawing.h"

#include <optional>
#include <vector>

/// The colour of a signal class in the persistence picture, more transparent the older the scan. `age` runs
/// from 0 for the oldest of `historyLen` scans; none for an age that is none of theirs or for no class.
std::optional<QColor> fadedColor(SigTypeEnum type, int age, int historyLen);

/// One block for each point of the rows, oldest first, in a grid of `columns` columns and so many pixels'
/// width, with `rowHeight` pixels for each dB. The newest row is opaque, however many rows there are.
std::vector<FilledRect> persistenceBlocks(const std::vector<std::vector<History::_HistoryPoint>> &rows,
                                          int historyLen, int columns, int width, int rowHeight);
