#include "simulator/scanner.h"

#include <cstdio>
#include <thread>

void Scanner::sleep(std::chrono::milliseconds time) {
    std::this_thread::sleep_for(time);
}

Scanner::Scanner(std::shared_ptr<MsgListener> scanCallback, Pause betweenScans)
    : engine(std::random_device{}())
    , callback(std::move(scanCallback))
    , pause(std::move(betweenScans)) {}

Scanner::~Scanner() {
    scanActive = false;
    scanner.finish();
}

void Scanner::setByConfig(const std::shared_ptr<ConfigMsg> &config) {
    if (!config)
        return;
    const std::lock_guard lock(mx);
    plan.setByConfig(*config);
}

void Scanner::setByAiPrior(const std::shared_ptr<AiPriorMsg> &prior) {
    if (!prior)
        return;
    const std::lock_guard lock(mx);
    plan.setByAiPrior(prior->getAiPrior());
}

void Scanner::setMask() {
    const std::lock_guard lock(mx);
    plan.mask = !plan.mask;
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
    // On purpose: joins if the scanner has ever run, not if it runs now. So a second stop in a row throws.
    // Callers ask `isActive` first.
    if (started)
        scanner.join();
    std::printf("scanner stopped\n");
}

void Scanner::run() {
    while (scanActive) {
        std::chrono::milliseconds period;
        {
            const std::lock_guard lock(mx);
            period = plan.period;
            (*callback)(makeScan());
        }
        // On purpose: a stop does not shorten the pause, because a device ends its sweep first.
        if (scanActive)
            pause(period);
    }
}

std::shared_ptr<Msg> Scanner::makeScan() {
    const std::lock_guard lock(engineMx);
    return plan.makeScan(engine);
}

int Scanner::getRandBattery() {
    const std::lock_guard lock(engineMx);
    return std::uniform_int_distribution<int>(0, 100)(engine);
}
