#pragma once

#include <algorithm>

inline namespace kelvane {

/// A level in dB or a frequency in MHz as a device may send it, kept so far inside the range of an int that a
/// cast is defined and pixels can be reckoned from it. No real value comes near the bounds.
inline float bounded(float value) {
    constexpr float LIMIT = 1e6f;
    return value > -LIMIT ? std::min(value, LIMIT) : -LIMIT; // what is no number takes the lower bound
}

} // namespace kelvane
