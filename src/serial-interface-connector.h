#pragma once

#include "scope-guard.h"
#include "serial-interface.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>

/// Finds the device, owns the link to it and puts one request at a time on that link.
class SerialInterfaceConnector {
public:
    virtual ~SerialInterfaceConnector() = default;

    /// Finds a device and opens the link to it; false if none answers. Blocks while it probes.
    virtual bool connectInterface() = 0;
    virtual void disconnect() = 0;
    /// In test mode requests go to the simulator and messages come from it.
    virtual void startTesting() = 0;
    virtual void stopTesting() = 0;
    virtual bool isTesting() = 0;
    /// Listeners run on the thread that delivers messages; one that waits for a reply there waits in vain.
    virtual void addListener(std::shared_ptr<MsgListener> listener) = 0;
    virtual void removeListener(std::shared_ptr<MsgListener> listener) = 0;
    /// One request and the first message after it; null after the time-out.
    virtual std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg,
                                                   std::chrono::milliseconds timeout) = 0;

    /// `simpleTransaction` for callers on any thread: a second caller sends its request only when the first
    /// has its reply or its time-out. Null after the time-out, or if the connector stays busy for
    /// BUSY_TIMEOUT.
    std::shared_ptr<Msg> busyTransaction(const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout) {
        std::shared_ptr<Msg> result;
        std::unique_lock lock(busyMutex);
        if (busyCV.wait_for(lock, BUSY_TIMEOUT, [this] { return !busy; })) {
            busy = true;
            // Also when the transaction throws: the connector must not stay busy.
            const ScopeGuard release([this] {
                busy = false;
                busyCV.notify_one();
            });
            result = simpleTransaction(msg, timeout);
        }
        return result;
    }

    bool isBusy() const { return busy; }

private:
    static constexpr std::chrono::seconds BUSY_TIMEOUT{30};

    /// Held for the length of a whole transaction.
    std::mutex busyMutex;
    std::condition_variable busyCV;
    std::atomic<bool> busy{false};
};
