#pragma once

#include "common/joining-thread.h"
#include "serial-interface.h"
#include "simulator/scan-plan.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <random>

inline namespace kelvane {

/// Makes the scans of the simulator, at the pace and in the ranges of its settings, on a thread of its own.
///
/// Settings may change while it runs, from any thread, but not inside the callback. Calls of `start` and
/// `stop` must not overlap and must not come from the callback.
class Scanner {
public:
    /// Returns when this time of the device has passed.
    using Pause = std::function<void(std::chrono::milliseconds)>;
    static void sleep(std::chrono::milliseconds time);

    /// `callback` gets each scan on the scanner's thread. That thread calls `pause` after each scan.
    explicit Scanner(std::shared_ptr<MsgListener> callback, Pause pause = sleep);
    ~Scanner();

    void setByConfig(const std::shared_ptr<ConfigMsg> &config);
    void setByAiPrior(const std::shared_ptr<AiPriorMsg> &prior);
    /// Inverts the mask flag of the following scans.
    void setMask();

    /// The first scan comes at once. Does nothing while a scan runs.
    void start();
    /// Returns when the current scan period has ended. A second stop in a row throws std::system_error.
    void stop();
    bool isActive() const { return scanActive; }

    /// A battery charge in percent.
    int getRandBattery();

private:
    void run();
    std::shared_ptr<Msg> makeScan();

    std::mutex mx; ///< guards `plan`; held while a scan is made and delivered
    ScanPlan plan;

    std::mutex engineMx; ///< guards `engine`; both a battery request and the scanner's thread use it
    std::default_random_engine engine;

    const std::shared_ptr<MsgListener> callback;
    const Pause pause;
    std::atomic<bool> scanActive{false};
    bool started = false; ///< this and the next: used only by `start`, `stop` and the destructor
    JoiningThread scanner;
};

} // namespace kelvane
