#pragma once

#include "common/uptime.h"
#include "freq-scan-result.h"
#include "master-freq-mode.h"
#include "sig-type.h"

#include <cstdint>
#include <memory>
#include <vector>

inline namespace kelvane {

/// The last scans of one band. The matrix has one row for each scan, oldest first, and one column for each
/// frequency. The results of the newest scan are kept as they came. One thread at a time may use a history.
/// Each view has a copy. The copies share only the results of the newest scan, which nobody changes.
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
    /// Changes the band alone; the scans stay. No caller today.
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

    /// Adds a row and drops the oldest ones beyond the length. `nowMs` is the time of the scan. A scan with
    /// another number of results starts new columns, with this one row.
    /// On purpose: only the number of results is compared, not the frequencies. A device changes its
    /// frequencies only when its ranges change. A scan with as many results at other frequencies goes under
    /// the old columns.
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
