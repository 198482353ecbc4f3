#pragma once

#include "scope-guard.h"
#include "serial-interface.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

inline namespace kelvane {

/// Finds the device, owns the link to it and sends one request at a time over that link.
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
    /// Listeners run on the thread that delivers messages. A listener must not wait for a reply: none can
    /// arrive meanwhile.
    virtual void addListener(std::shared_ptr<MsgListener> listener) = 0;
    virtual void removeListener(std::shared_ptr<MsgListener> listener) = 0;
    /// Sends a request. Returns a message that comes within the time-out, also if it is no reply to this
    /// request. Returns null if none comes.
    virtual std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg,
                                                   std::chrono::milliseconds timeout) = 0;

    /// `simpleTransaction` for callers on any thread. A second caller waits until the first one has its reply
    /// or its time-out. Only then does its own time-out begin.
    std::shared_ptr<Msg> busyTransaction(const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout) {
        const std::lock_guard lock(busyMutex);
        busy = true;
        const ScopeGuard release([this] { busy = false; });
        return simpleTransaction(msg, timeout);
    }

    /// True during a transaction. No caller today.
    bool isBusy() const { return busy; }

private:
    std::mutex busyMutex; ///< held during a whole transaction
    std::atomic<bool> busy{false};
};

} // namespace kelvane
