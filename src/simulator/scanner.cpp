#include "simulator/scanner.h"

#include "freq-scan-result.h"
#include "msg/scan-result-msg.h"

#include <algorithm>
#include <cstdio>

using std::chrono::milliseconds;

namespace {

constexpr int RSSI_FLOOR = -105; // dB, the level of silence
constexpr int RSSI_TOP = -75;    // dB
constexpr int RSSI_PER_ATTEN = 3;
constexpr int MAX_ATTEN = 1000; // far more than reaches the floor, and no overflow
constexpr int BASE_CHANCE = 5;  // percent

milliseconds scanPeriod(DetModeEnum mode) {
    switch (mode) {
    case DetModeEnum::ECO:
        return milliseconds(5000);
    case DetModeEnum::AUTO:
        return milliseconds(2000);
    case DetModeEnum::CONT:
        return milliseconds(500);
    case DetModeEnum::BASE:
        break;
    }
    return milliseconds(1000);
}

template <typename Values, typename Value>
bool contains(const Values &values, Value value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

} // namespace

Scanner::Scanner(std::shared_ptr<MsgListener> scanCallback)
    : rssiMax(RSSI_TOP)
    , delay(scanPeriod(DetModeEnum::BASE))
    , callback(std::move(scanCallback))
    , engine(std::random_device{}()) {}

Scanner::~Scanner() {
    scanActive = false;
    scanner.finish();
}

void Scanner::changeSettings(const std::function<void()> &change) {
    std::unique_lock lock(mx);
    if (!cv.wait_for(lock, delay, [this] { return available; }))
        return;
    available = false;
    change();
    available = true;
}

void Scanner::setByConfig(const std::shared_ptr<ConfigMsg> &config) {
    if (!config)
        return;
    const auto ranges = config->getRanges();
    const auto masterModes = Proto(config->getProto()).getMasterModes();
    std::vector<std::vector<float>> plans;
    for (const FreqModeEnum range : ranges)
        plans.push_back(FreqMode(range).getFreqList()->getFreqs());
    changeSettings([&] {
        delay = scanPeriod(config->getMode());
        rssiMax = std::max(RSSI_TOP - RSSI_PER_ATTEN * std::clamp(config->getAtten(), -MAX_ATTEN, MAX_ATTEN),
                           RSSI_FLOOR);
        freqs = plans;
        wifi = config->getWifiDet() ? BASE_CHANCE : 0;
        dig = config->getUavDet() ? BASE_CHANCE : 0;
        fpv = BASE_CHANCE;
        if (freqs.empty())
            wifi = dig = fpv = 0;
        for (const MasterFreqModeEnum masterMode : masterModes) {
            const auto modes = MasterFreqMode(masterMode).getModes();
            const bool enabled = std::any_of(modes.begin(), modes.end(),
                                             [&](FreqModeEnum mode) { return contains(ranges, mode); });
            if (enabled && !contains(maskedMMs, masterMode))
                maskedMMs.push_back(masterMode);
        }
    });
}

void Scanner::setByAiPrior(const std::shared_ptr<AiPriorMsg> &prior) {
    if (!prior)
        return;
    changeSettings([&] {
        wifi = wifi ? BASE_CHANCE : 0;
        dig = dig ? BASE_CHANCE : 0;
        fpv = BASE_CHANCE;
        const auto multiply = [this](int wifiFactor, int digFactor, int fpvFactor) {
            wifi *= wifiFactor;
            dig *= digFactor;
            fpv *= fpvFactor;
        };
        switch (prior->getAiPrior()) {
        case AiPriorEnum::AUTO:
            multiply(2, 1, 2);
            break;
        case AiPriorEnum::DEFAULT:
            break;
        case AiPriorEnum::FIELD:
            multiply(4, 2, 3);
            break;
        case AiPriorEnum::CITY:
            multiply(1, 2, 2);
            break;
        case AiPriorEnum::NONE:
            multiply(2, 1, 1);
            break;
        }
    });
}

void Scanner::setMask() {
    changeSettings([this] { mask = !mask; });
}

void Scanner::start() {
    std::printf("starting scan\n");
    if (scanActive)
        return;
    scanner.finish();
    scanActive = started = true;
    scanner.start([this] { run(); });
}

void Scanner::stop() {
    scanActive = false;
    if (started)
        scanner.join();
    std::printf("scanner stopped\n");
}

void Scanner::run() {
    while (scanActive) {
        std::unique_lock lock(mx);
        const milliseconds period = delay;
        if (!cv.wait_for(lock, period, [this] { return available; }))
            continue;
        available = false;
        getScan();
        available = true;
        lock.unlock();
        cv.notify_all();
        // Not cut short by a stop: the simulated device ends its sweep first.
        if (scanActive)
            std::this_thread::sleep_for(period);
    }
}

void Scanner::getScan() {
    const auto scan = std::make_shared<ScanResultMsg>();
    scan->setMask(mask);
    scan->setMaskedModes(maskedMMs);
    std::vector<std::shared_ptr<FreqScanResult>> results;
    {
        std::lock_guard lock(engineMx);
        for (const auto &range : freqs) {
            for (const float freq : range) {
                const auto result = std::make_shared<FreqScanResult>();
                result->setFreqMHz(freq);
                result->setType(drawType());
                result->setRssi(static_cast<float>(hit(50) ? RSSI_FLOOR : draw(RSSI_FLOOR, rssiMax)));
                results.push_back(result);
            }
        }
    }
    scan->setFreqs(results);
    (*callback)(scan);
}

/// The chances are tried one after the other, and a chance of nothing costs no draw.
SigTypeEnum Scanner::drawType() {
    if (wifi != 0 && hit(wifi))
        return SigTypeEnum::WIFI;
    if (fpv != 0 && hit(fpv))
        return SigTypeEnum::FPV;
    if (dig != 0 && hit(dig))
        return SigTypeEnum::DIG;
    return SigTypeEnum::NONE;
}

bool Scanner::hit(int percent) {
    return percent > draw(0, 100);
}

int Scanner::draw(int least, int greatest) {
    return std::uniform_int_distribution<int>(least, greatest)(engine);
}

int Scanner::getRandBattery() {
    std::lock_guard lock(engineMx);
    return draw(0, 100);
}
