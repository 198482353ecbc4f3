#pragma once

#include "bench.h"
#include "uavconfdetpojo.h"

#include <cstdlib>
#include <rapidjson/document.h>
#include <string>

/// A link without a line. The bench feeds it the bytes.
class Link : public SerialInterfaceAdapter {
public:
    std::string getName() override { return "bench"; }
    void serialClose() override {}
    bool isClosed() override { return false; }
    void sendBytes(buffer_t, std::chrono::milliseconds) override {}
};

constexpr std::size_t CHUNK = 512; // bytes, as the serial link reads

inline void feed(Link &link, const std::string &text) {
    for (std::size_t at = 0; at < text.size(); at += CHUNK)
        link.processNewData(text.substr(at, CHUNK));
}

/// The text of a scan over all ranges of a K7, as a device writes it.
inline std::string scanText() {
    std::string text = "{\n\"freqs\" : [";
    int count = 0;
    for (const FreqModeEnum range :
         {FreqModeEnum::EXT_1200, FreqModeEnum::EXT_2400, FreqModeEnum::EXT_4900, FreqModeEnum::EXT_5800})
        for (const float mhz : FreqMode(range).getFreqList()->getFreqs()) {
            text += std::string(count == 0 ? "" : ",") + "\n{\n\"freqMHz\" : " + std::to_string(mhz) +
                    ",\n\"rssi\" : " + std::to_string(-105.0 + count % 30) + ",\n\"type\" : \"" +
                    (count % 9 == 0 ? "FPV" : "NONE") + "\"\n}";
            ++count;
        }
    return text + "\n],\n\"mask\" : false,\n\"type\" : \"SCAN_RESULT\"\n}\n";
}

/// Measures a text on its way through the channel to a listener, against a RapidJSON document of the text.
inline double channelRatio(const std::string &text, int times) {
    Link link;
    int messages = 0;
    link.addListener(std::make_shared<MsgListener>([&](const std::shared_ptr<Msg> &) { ++messages; }));
    const int turns = 400;
    const double ratio = ratioOf(
        turns,
        [&] {
            for (int i = 0; i < times; ++i)
                feed(link, text);
        },
        [&] {
            for (int i = 0; i < times; ++i) {
                rapidjson::Document document;
                if (document.Parse(text.c_str()).HasParseError())
                    std::abort();
            }
        });
    if (messages != turns * times)
        std::abort(); // the messages were not delivered, so the figure would be wrong
    return ratio;
}
