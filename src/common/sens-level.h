#pragma once

#include <array>
#include <string>

inline namespace kelvane {

/// A step of the detector's sensitivity, as a user chooses it.
enum class _SensLevelEnum : int { UNKNOWN, LOW, MIDDLE, HIGH };
using SensLevelEnum = _SensLevelEnum;

/// Ties the sensitivity steps to the attenuation that the device is set to: the higher the one, the lower the
/// other.
class SensLevel {
public:
    explicit SensLevel(SensLevelEnum level)
        : sens(level) {}

    int ordinal() const { return static_cast<int>(sens); }
    /// The name for the user; "???" outside the table, as for `UNKNOWN`.
    std::string getEnumName() const;
    /// The word in Russian. No caller today.
    std::string getViewName() const;
    /// The attenuation in the device's steps. Throws std::out_of_range outside the table.
    int getAtten() const;
    /// The step that follows, from the highest on to the lowest; never `UNKNOWN`.
    SensLevelEnum next() const;
    /// `UNKNOWN` for an attenuation that belongs to no step.
    static SensLevelEnum byAtten(int atten);

private:
    static const std::array<int, 4> sens_attens;

    SensLevelEnum sens;
};

} // namespace kelvane
