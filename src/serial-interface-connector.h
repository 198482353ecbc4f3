#pragma once

#include "scope-guard.h"
#include "serial-interface.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

inline namespace kelvane {

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
    /// One request and a message that comes within the time-out, whatever it answers; null without one.
    virtual std::shared_ptr<Msg> simpleTransaction(std::shared_ptr<Msg> msg,
                                                   std::chrono::milliseconds timeout) = 0;

    /// `simpleTransaction` for callers on any thread: a second caller sends its request only when the first
    /// has its reply or its time-out, however long that takes.
    std::shared_ptr<Msg> busyTransaction(const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout) {
        const std::lock_guard lock(busyMutex);
        busy = true;
        const ScopeGuard release([this] { busy = false; });
        return simpleTransaction(msg, timeout);
    }

    /// A transaction is under way. No caller today.
    bool isBusy() const { return busy; }

private:
    std::mutex busyMutex; ///< held for the length of a whole transaction
    std::atomic<bool> busy{false};
};

} // namespace kelvane
