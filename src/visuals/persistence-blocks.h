#pragma once

#include "common/history.h"
#include "visuals/drawing.h"

#include <optional>
#include <vector>

/// The colour of a signal class in the persistence display. An older scan is more transparent. `age` goes
/// from 0, the oldest scan, to `historyLen` - 1, the newest. There is no colour for another age or for a
/// number that is no signal class.
std::optional<QColor> fadedColor(SigTypeEnum type, int age, int historyLen);

/// One block for each point of the rows, oldest first. The grid has `columns` columns and is `width` pixels
/// wide, with `rowHeight` pixels for each dB. The newest row is opaque, also if there are fewer than
/// `historyLen` rows.
std::vector<FilledRect> persistenceBlocks(const std::vector<std::vector<History::_HistoryPoint>> &rows,
                                          int historyLen, int columns, int width, int rowHeight);
