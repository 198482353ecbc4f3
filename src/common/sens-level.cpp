#include "sens-level.h"

#include <algorithm>

namespace {

struct LevelNames {
    const char *enumName;
    const char *viewName;
};

const std::array<LevelNames, 4> names = {
    {{"???", "???"}, {"LOW", "Низк"}, {"MID", "Сред"}, {"HIGH", "Высок"}}};

const LevelNames &namesOf(int ordinal) {
    const auto index = static_cast<std::size_t>(ordinal);
    return index < names.size() ? names[index] : names.front();
}

} // namespace

const std::array<int, 4> SensLevel::sens_attens = {0, 6, 3, 0};

std::string SensLevel::getViewName() const {
    return namesOf(ordinal()).viewName;
}

std::string SensLevel::getEnumName() const {
    return namesOf(ordinal()).enumName;
}

int SensLevel::getAtten() const {
    return sens_attens.at(static_cast<std::size_t>(ordinal()));
}

SensLevelEnum SensLevel::next() const {
    const int following = ordinal() + 1;
    return following < static_cast<int>(sens_attens.size()) ? static_cast<SensLevelEnum>(following)
                                                            : SensLevelEnum::LOW;
}

SensLevelEnum SensLevel::byAtten(int atten) {
    // On purpose: UNKNOWN and HIGH have the same attenuation. The search begins after UNKNOWN, so that
    // attenuation is read as HIGH.
    const auto found = std::find(sens_attens.begin() + 1, sens_attens.end(), atten);
    return found != sens_attens.end() ? static_cast<SensLevelEnum>(found - sens_attens.begin())
                                      : SensLevelEnum::UNKNOWN;
}
