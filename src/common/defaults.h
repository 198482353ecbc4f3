#pragma once

#include "msg/ai-prior-msg.h"
#include "msg/config-k7-msg.h"
#include "msg/config-msg.h"

#include <memory>
#include <vector>

/// The factory settings as messages, newly built on each call.
class Defaults {
public:
    static std::shared_ptr<ConfigMsg> getDefaultConfigMsg(ProtoEnum proto);
    static std::shared_ptr<AiPriorMsg> getDefaultAiPriorMsg();
    static std::shared_ptr<ConfigK7Msg> getDefaultConfigK7Msg();

    /// All messages of a factory reset, in the order of sending: those that the generation has.
    static std::vector<std::shared_ptr<Msg>> getDefaults(ProtoEnum proto);
};
