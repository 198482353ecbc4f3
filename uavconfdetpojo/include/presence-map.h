#pragma once

#include <array>
#include <cstddef>

inline namespace kelvane {

/// Which keys of an object are present: one flag for each key, without an allocation. `Key` is an enumeration
/// of the keys, with COUNT as its last enumerator.
template <typename Key>
class PresenceMap {
public:
    bool &at(Key key) { return present[static_cast<std::size_t>(key)]; }
    bool at(Key key) const { return present[static_cast<std::size_t>(key)]; }

private:
    std::array<bool, static_cast<std::size_t>(Key::COUNT)> present{};
};

} // namespace kelvane
