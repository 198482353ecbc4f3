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

/// A device inside the process: it takes the message objects that would go to a device, keeps settings, and
/// answers its listeners.
///
/// Requests come from one thread at a time (the connector's lock sees to it), and their answers are delivered
/// on it; scans are delivered on the scanner's thread.
class TestService {
public:
    /// `devicePause` takes the time of a mask and the time between two scans.
    explicit TestService(Scanner::Pause devicePause = Scanner::sleep);

    void addListener(std::shared_ptr<MsgListener> listener) { msgListeners.add(std::move(listener)); }
    void removeListener(std::shared_ptr<MsgListener> listener) { msgListeners.remove(std::move(listener)); }

    /// Fires the answer to the listeners. On purpose: only GET_CONFIG, SCAN, GET_CONFIG_K7 and GET_AI_PRIOR
    /// return it too, and all others null, as if a device had answered too late. SET_MASK takes two seconds
    /// on the caller's thread, as on a device.
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
