#include "replay.h"

#include "message-reader.h"
#include "msg-to-json-parser.h"

#include <algorithm>
#include <stdexcept>

using json11::Json;
using namespace std::chrono_literals;

namespace {

constexpr auto STEP = 5ms; // between two checks whether the scan was stopped

bool isOrderToScan(const Recorded &entry) {
    return !entry.fromDevice && entry.text.find("\"SCAN\"") != std::string::npos &&
           entry.text.find("true") != std::string::npos;
}

} // namespace

Replay::Replay(PtyDevice &played, const std::vector<Recorded> &recording, double speed)
    : device(played) {
    takeSettings(recording);
    const auto order = std::find_if(recording.begin(), recording.end(), isOrderToScan);
    const auto begin = order == recording.end() ? recording.begin() : order;
    std::copy_if(begin, recording.end(), std::back_inserter(stream),
                 [](const Recorded &entry) { return entry.fromDevice; });
    if (stream.empty())
        throw std::runtime_error("The device says nothing in this recording.");
    for (Recorded &entry : stream)
        entry.at -= begin->at;
    device.setScanPeriod(0ms); // the scans come from the recording
    thread = std::thread([this, speed] { run(speed); });
}

Replay::~Replay() {
    ending = true;
    thread.join();
}

void Replay::takeSettings(const std::vector<Recorded> &recording) {
    MessageReader reader("replay", 0);
    std::vector<MsgTypeEnum> known;
    for (const Recorded &entry : recording) {
        if (!entry.fromDevice)
            continue;
        reader.write(entry.text, entry.at.count());
        while (const auto msg = reader.next(entry.at.count())) {
            if (MsgType(msg->getType()).getRequestMsg() == nullptr ||
                std::find(known.begin(), known.end(), msg->getType()) != known.end())
                continue;
            known.push_back(msg->getType());
            std::string error;
            device.setSettings(MsgType(msg->getType()).name(),
                               Json::parse(MsgToJsonParser::toJson(msg), error).object_items());
        }
    }
}

void Replay::run(double speed) {
    while (!ending) {
        const auto start = std::chrono::steady_clock::now();
        for (auto next = stream.begin(); next != stream.end() && goesOn();) {
            const auto at = std::chrono::duration_cast<std::chrono::milliseconds>(next->at / speed);
            const auto due = start + at;
            std::this_thread::sleep_until(std::min(due, std::chrono::steady_clock::now() + STEP));
            if (std::chrono::steady_clock::now() >= due)
                device.sendText(next++->text);
        }
        while (goesOn())
            std::this_thread::sleep_for(STEP);
        while (!ending && !device.isScanning())
            std::this_thread::sleep_for(STEP);
    }
}
