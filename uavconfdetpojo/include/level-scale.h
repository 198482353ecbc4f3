#pragma once

inline namespace kelvane {

/// The scale of signal levels, in dB. A device may also send levels outside of it; they stay as they are.
struct LevelScale {
    static constexpr int SILENCE = -105; ///< the bottom
    static constexpr int TOP = -75;
};

} // namespace kelvane
