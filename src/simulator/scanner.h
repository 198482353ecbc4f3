#pragma once

#include "common/joining-thread.h"
#include "msg/ai-prior-msg.h"
#include "msg/config-msg.h"
#include "serial-interface.h"
#include "sig-type.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <random>
#include <vector>

/// Makes up the scans of the simulated device, at the pace and in the ranges of its settings, on a thread of
/// its own.
///
/// Settings may change while it runs, from any thread; a change that finds no gap between two scans within
/// one scan period is lost. `start` and `stop` belong to one thread at a time, never to the callback.
class Scanner {
public:
    /// `callback` receives each scan on the scanning thread, which waits for its return.
    explicit Scanner(std::shared_ptr<MsgListener> callback);
    ~Scanner();

    void setByConfig(const std::shared_ptr<ConfigMsg> &config);
    /// The factors of an AI mode last until the next `setByConfig`.
    void setByAiPrior(const std::shared_ptr<AiPriorMsg> &prior);
    /// Inverts the mask flag of the scans that follow.
    void setMask();

    /// The first scan comes at once. Nothing changes where a scan is running.
    void start();
    /// Returns when the current scan period has ended. A second stop in a row raises std::system_error.
    void stop();
    bool isActive() const { return scanActive; }

    /// A battery charge in percent.
    int getRandBattery();

private:
    void changeSettings(const std::function<void()> &change);
    void run();
    void getScan();
    SigTypeEnum drawType();
    bool hit(int percent);
    int draw(int least, int greatest);

    /// Guards the settings below and is held while a scan is made and delivered.
    std::mutex mx;
    std::condition_variable cv;
    bool available = true;

    std::vector<std::vector<float>> freqs; ///< centre frequencies in MHz of each enabled range
    bool mask = false;
    std::vector<MasterFreqModeEnum> maskedMMs; ///< only ever grows
    int rssiMax;                               ///< dB
    int wifi = 0; ///< this and the next two: chance of the signal class in percent
    int dig = 0;
    int fpv = 0;
    std::chrono::milliseconds delay; ///< the scan period

    std::atomic<bool> scanActive{false};
    bool started = false; ///< this and the next: touched only by `start`, `stop` and the destructor
    JoiningThread scanner;
    std::shared_ptr<MsgListener> callback;

    std::mutex engineMx; ///< guards `engine`, which a battery request shares with the scanning thread
    std::default_random_engine engine;
};
