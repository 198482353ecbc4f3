#pragma once

#include "freq-scan-result.h"
#include "msg-holder.h"
#include "msg-to-json-parser.h"

#include <QObject>
#include <string>
#include <vector>

/// A message from its JSON text.
inline MsgHolder held(const std::string &text) {
    return MsgHolder(Msg::parseJson(text));
}

/// The texts that a settings front-end sends, each as it is at that moment: the message goes on living.
struct SentTexts : std::vector<std::string> {
    template <typename Handler>
    explicit SentTexts(Handler &handler) {
        QObject::connect(&handler, &Handler::gotMsg, [this](const MsgHolder &holder) {
            push_back(MsgToJsonParser::toJson(holder.getMsg()));
        });
    }
};

/// Results at these frequencies (MHz), all of one level (dB).
inline std::vector<std::shared_ptr<FreqScanResult>> resultsAt(const std::vector<float> &freqs, float rssi) {
    std::vector<std::shared_ptr<FreqScanResult>> results;
    for (const float freq : freqs)
        results.push_back(std::make_shared<FreqScanResult>(
            FreqScanResultBuilder().freqMHz(freq).rssi(rssi).type(SigTypeEnum::DIG).build()));
    return results;
}
