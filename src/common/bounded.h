#pragma once

#include <algorithm>

inline namespace kelvane {

/// Limits a level in dB or a frequency in MHz to -1e6 and 1e6. A device may send any number. Within these
/// limits a cast to int is defined and pixels can be calculated. No real value comes near them.
inline float bounded(float value) {
    constexpr float LIMIT = 1e6f;
    return value > -LIMIT ? std::min(value, LIMIT) : -LIMIT; // NaN gives the lower bound
}

} // namespace kelvane
