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

/// Makes up the scans of the simulated device, at the pace and in the ranges of its settings, on a thread of
/// its own.
///
/// Settings may change while it runs, from any thread but the callback. `start` and `stop` belong to one
/// thread at a time, never to the callback.
class Scanner {
public:
    /// Returns when so much of the device's time has passed.
    using Pause = std::function<void(std::chrono::milliseconds)>;
    static void sleep(std::chrono::milliseconds time);

    /// `callback` receives each scan on the scanning thread, which waits for its return and then for `pause`.
    explicit Scanner(std::shared_ptr<MsgListener> callback, Pause pause = sleep);
    ~Scanner();

    void setByConfig(const std::shared_ptr<ConfigMsg> &config);
    void setByAiPrior(const std::shared_ptr<AiPriorMsg> &prior);
    /// Inverts the mask flag of the scans that follow.
    void setMask();

    /// The first scan comes at once. Nothing changes where a scan is running.
    void start();
    /// Returns when the current scan period has ended. A second stop in a row throws std::system_error.
    void stop();
    bool isActive() const { return scanActive; }

    /// A battery charge in percent.
    int getRandBattery();

private:
    void run();
    std::shared_ptr<Msg> makeScan();

    std::mutex mx; ///< guards `plan` and is held while a scan is made and delivered
    ScanPlan plan;

    std::mutex engineMx; ///< guards `engine`, which a battery request shares with the scanning thread
    std::default_random_engine engine;

    const std::shared_ptr<MsgListener> callback;
    const Pause pause;
    std::atomic<bool> scanActive{false};
    bool started = false; ///< this and the next: touched only by `start`, `stop` and the destructor
    JoiningThread scanner;
};

} // namespace kelvane
