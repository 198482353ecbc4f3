#pragma once

#include "msg/ai-prior-msg.h"
#include "msg/config-ew-msg.h"
#include "msg/config-k7-msg.h"
#include "msg/config-msg.h"

#include <memory>
#include <vector>

inline namespace kelvane {

/// The factory settings as messages. Each call makes new ones.
class Defaults {
public:
    static std::shared_ptr<ConfigMsg> getDefaultConfigMsg(ProtoEnum proto);
    static std::shared_ptr<AiPriorMsg> getDefaultAiPriorMsg();
    static std::shared_ptr<ConfigK7Msg> getDefaultConfigK7Msg();

    /// One EW target for each band of the generation. It covers the widest sweep range of the band.
    static std::shared_ptr<ConfigEwMsg> getDefaultConfigEwMsg(ProtoEnum proto);

    /// All messages of a factory reset that the generation has, in the order of sending.
    static std::vector<std::shared_ptr<Msg>> getDefaults(ProtoEnum proto);
};

} // namespace kelvane
