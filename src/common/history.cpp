#include "history.h"

#include "log.h"

#include <string>
#include <utility>

History::History(int maxRows)
    : History(MasterFreqModeEnum{}, maxRows) {}

History::History(MasterFreqModeEnum band, int maxRows)
    : historyLen(maxRows)
    , masterMode(band) {}

void History::setHistoryLen(int newLen) {
    historyLen = newLen;
    trimToHistoryLen();
}

void History::acceptScan(Scan mmResult, std::int64_t nowMs) {
    freqScanResults = std::move(mmResult);
    correctionHistoryFreqs(freqScanResults);
    addToHistoryLevels(freqScanResults, nowMs);
}

void History::correctionHistoryFreqs(const Scan &mmResult) {
    if (mmResult.size() == historyFreqs.size())
        return;
    historyFreqs.clear();
    historyFreqs.reserve(mmResult.size());
    for (const auto &result : mmResult)
        historyFreqs.push_back(result->getFreqMHz());
    historyLevels.clear();
}

void History::addToHistoryLevels(const Scan &mmResult, std::int64_t nowMs) {
    // On purpose, a second check: a row whose length differs from the number of columns is not added. It
    // never fails here, because `correctionHistoryFreqs` has just made the two equal.
    if (historyFreqs.size() != mmResult.size()) {
        Log::info("History", "Skip add to history! mmResult.size():" + std::to_string(mmResult.size()) +
                                 " historyFreqs.length:" + std::to_string(historyFreqs.size()));
        return;
    }
    auto &row = historyLevels.emplace_back();
    row.reserve(mmResult.size());
    for (const auto &result : mmResult)
        row.push_back({nowMs, result->getRssi(), result->getType()});
    trimToHistoryLen();
}

void History::trimToHistoryLen() {
    // On purpose: a negative length becomes a huge number here, so nothing is trimmed.
    const auto maxRows = static_cast<std::uint64_t>(historyLen);
    const std::uint64_t rows = historyLevels.size();
    if (rows > maxRows)
        historyLevels.erase(historyLevels.begin(),
                            historyLevels.begin() + static_cast<std::ptrdiff_t>(rows - maxRows));
}
