#pragma once

#include "freq-scan-result.h"
#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "testing.h"

/// The text with a line break in place of each '|'. So a text in the written style fits on one line.
inline std::string wire(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\n');
    return text;
}

/// The shortest messages of three types.
inline const std::string OK = R"({"type":"OK"})", STATE = R"({"type":"STATE"})", FAIL = R"({"type":"FAIL"})";

constexpr auto NONE = SigTypeEnum::NONE, WIFI = SigTypeEnum::WIFI, DIG = SigTypeEnum::DIG,
               FPV = SigTypeEnum::FPV;

/// The result of a scan at one frequency: MHz, dB, class.
struct Found {
    float freqMHz;
    float rssi = -90;
    SigTypeEnum type = SigTypeEnum::DIG;
};

inline std::vector<std::shared_ptr<FreqScanResult>> resultsOf(const std::vector<Found> &all) {
    std::vector<std::shared_ptr<FreqScanResult>> results;
    for (const Found &found : all)
        results.push_back(
            FreqScanResultBuilder().freqMHz(found.freqMHz).rssi(found.rssi).type(found.type).share());
    return results;
}

inline std::shared_ptr<ScanResultMsg> scanOf(const std::vector<Found> &all, bool mask = false) {
    return ScanResultMsgBuilder().freqs(resultsOf(all)).mask(mask).share();
}
