#pragma once

inline namespace kelvane {

/// The scale of the devices' levels, in dB. A device may send others, which are carried as they come.
struct LevelScale {
    static constexpr int SILENCE = -105; ///< the bottom
    static constexpr int TOP = -75;
};

} // namespace kelvane
