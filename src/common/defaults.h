#pragma once

#include "msg/ai-prior-msg.h"
#include "msg/config-ew-msg.h"
#include "msg/config-k7-msg.h"
#include "msg/config-msg.h"

#include <memory>
#include <vector>

inline namespace kelvane {

/// The factory settings as messages, newly built on each call.
class Defaults {
public:
    static std::shared_ptr<ConfigMsg> getDefaultConfigMsg(ProtoEnum proto);
    static std::shared_ptr<AiPriorMsg> getDefaultAiPriorMsg();
    static std::shared_ptr<ConfigK7Msg> getDefaultConfigK7Msg();

    /// A rule for each band of the generation, over the band's widest range.
    static std::shared_ptr<ConfigEwMsg> getDefaultConfigEwMsg(ProtoEnum proto);

    /// All messages of a factory reset, in the order of sending: those that the generation has.
    static std::vector<std::shared_ptr<Msg>> getDefaults(ProtoEnum proto);
};

} // namespace kelvane
