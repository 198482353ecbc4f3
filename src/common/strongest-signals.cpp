#include "common/strongest-signals.h"

#include <algorithm>

inline namespace kelvane {

std::vector<std::shared_ptr<FreqScanResult>>
strongestSignals(const std::vector<std::shared_ptr<FreqScanResult>> &scan, std::size_t maxCount,
                 float floor) {
    std::vector<std::shared_ptr<FreqScanResult>> strongest;
    strongest.reserve(maxCount + 1);
    for (const auto &result : scan) {
        if (!result || result->getRssi() <= floor || result->getType() == SigTypeEnum::NONE)
            continue;
        const auto weaker = std::find_if(strongest.begin(), strongest.end(), [&](const auto &listed) {
            return result->getRssi() > listed->getRssi();
        });
        // On purpose: a signal that is not stronger than one in the list is not appended, even if there is
        // room. Neighbouring frequencies with falling levels are often the slope of one transmitter; only the
        // first of them is named.
        if (weaker != strongest.end() || strongest.empty())
            strongest.insert(weaker, result);
        if (strongest.size() > maxCount)
            strongest.pop_back();
    }
    return strongest;
}

} // namespace kelvane
