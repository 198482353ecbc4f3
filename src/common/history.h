#pragma once

#include "common/uptime.h"
#include "freq-scan-result.h"
#include "master-freq-mode.h"
#include "sig-type.h"

#include <cstdint>
#include <memory>
#include <vector>

inline namespace kelvane {

/// The last scans of one frequency band: a matrix of one row per scan, oldest first, by one column per
/// frequency, and the results of the newest scan as they came. A plain value for the UI thread: each view
/// gets a copy, and only the results of the newest scan, which nobody changes, are shared.
class History {
public:
    using Scan = std::vector<std::shared_ptr<FreqScanResult>>;

    struct _HistoryPoint {
        std::int64_t timeMsg; ///< when the row was added, in ms; one time for the whole row
        float rssi;           ///< dB
        SigTypeEnum sigType;
    };

    static constexpr int DEFAULT_HISTORY_LEN = 10;

    /// Keeps at most `historyLen` rows; a negative length keeps all.
    explicit History(int historyLen = DEFAULT_HISTORY_LEN);
    History(MasterFreqModeEnum masterMode, int historyLen);

    int getHistoryLen() const { return historyLen; }
    /// No caller today.
    void setHistoryLen(int newLen);

    MasterFreqModeEnum getMasterMode() const { return masterMode; }
    /// The band alone changes; what was recorded stays. No caller today.
    void setMasterMode(MasterFreqModeEnum newMode) { masterMode = newMode; }

    /// The number of rows.
    int getSize() const { return static_cast<int>(historyLevels.size()); }
    /// The frequency of each column in MHz, in the device's order.
    std::vector<float> getHistoryFreqs() const { return historyFreqs; }
    std::vector<std::vector<_HistoryPoint>> getHistoryLevels() const { return historyLevels; }
    /// The newest scan of the band.
    Scan getFreqScanResults() const { return freqScanResults; }

    /// Forgets the rows; the columns and the newest scan stay. No caller today.
    void clear() { historyLevels.clear(); }

    /// Adds a row and drops the oldest beyond the length; `nowMs` is the time of the scan. On purpose:
    /// columns are told apart by their count alone, as a device changes its frequencies only with its ranges.
    /// A scan of another length starts new columns with this one row; a scan of the same length over other
    /// frequencies is filed under the old ones.
    void acceptScan(Scan mmResult, std::int64_t nowMs = Uptime::getMs());

private:
    void correctionHistoryFreqs(const Scan &mmResult);
    void addToHistoryLevels(const Scan &mmResult, std::int64_t nowMs);
    void trimToHistoryLen();

    int historyLen;
    MasterFreqModeEnum masterMode;
    std::vector<std::vector<_HistoryPoint>> historyLevels;
    std::vector<float> historyFreqs;
    Scan freqScanResults;
};

} // namespace kelvane
