#pragma once

#include <array>
#include <string>

inline namespace kelvane {

/// The sensitivity of the detector, as a user chooses it.
enum class _SensLevelEnum : int { UNKNOWN, LOW, MIDDLE, HIGH };
using SensLevelEnum = _SensLevelEnum;

/// Converts between the sensitivity and the attenuation that the device is set to. A higher sensitivity is a
/// lower attenuation.
class SensLevel {
public:
    explicit SensLevel(SensLevelEnum level)
        : sens(level) {}

    int ordinal() const { return static_cast<int>(sens); }
    /// The name for the user; "???" for `UNKNOWN` and outside the table.
    std::string getEnumName() const;
    /// The word in Russian. No caller today.
    std::string getViewName() const;
    /// The attenuation in the device's steps. Throws std::out_of_range outside the table.
    int getAtten() const;
    /// The next higher sensitivity; after the highest the lowest. Never `UNKNOWN`.
    SensLevelEnum next() const;
    /// `UNKNOWN` for an attenuation that is not in the table.
    static SensLevelEnum byAtten(int atten);

private:
    static const std::array<int, 4> sens_attens;

    SensLevelEnum sens;
};

} // namespace kelvane
