#pragma once

#include "listener-list.h"
#include "msg/ai-prior-msg.h"
#include "msg/config-k7-msg.h"
#include "msg/config-msg.h"
#include "msg/scan-msg.h"
#include "serial-interface.h"
#include "simulator/scanner.h"

#include <chrono>
#include <memory>

inline namespace kelvane {

/// The simulator: a device inside the process. It takes the messages that would go to a device, keeps
/// settings, and answers through its listeners.
///
/// Requests come from one thread at a time, because the connector's lock is held. Their answers are delivered
/// on that thread, and scans on the scanner's thread.
class TestService {
public:
    /// `devicePause` waits for the mask and between two scans.
    explicit TestService(Scanner::Pause devicePause = Scanner::sleep);

    void addListener(std::shared_ptr<MsgListener> listener) { msgListeners.add(std::move(listener)); }
    void removeListener(std::shared_ptr<MsgListener> listener) { msgListeners.remove(std::move(listener)); }

    /// Delivers the answer to the listeners. SET_MASK takes two seconds on the caller's thread, as on a
    /// device. On purpose: only GET_CONFIG, SCAN, GET_CONFIG_K7 and GET_AI_PRIOR also return the answer. All
    /// others return null, as if the device had answered too late.
    std::shared_ptr<Msg> acceptMsg(const std::shared_ptr<Msg> &msg);

private:
    static constexpr std::chrono::milliseconds MASK_TIME{2000};

    std::shared_ptr<Msg> fireMsg(const std::shared_ptr<Msg> &msg);
    std::shared_ptr<Msg> fireOkMsg(MsgTypeEnum respOn);
    void acceptSetMask();
    std::shared_ptr<Msg> scan(const ScanMsg &msg);
    void fireStateMsg();

    const Scanner::Pause pause;
    ListenerList<MsgListener> msgListeners;
    const Proto proto{ProtoEnum::K7};
    std::shared_ptr<ConfigMsg> config;
    std::shared_ptr<AiPriorMsg> aiPrior;
    std::shared_ptr<ConfigK7Msg> configK7;
    Scanner scanner; ///< last, so that its thread has ended before the listeners go
};

} // namespace kelvane
