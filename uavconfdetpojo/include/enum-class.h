#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

inline namespace kelvane {

/// Names the class of an enumeration. Each enumeration of the protocol specialises it once.
template <typename Enum>
struct EnumClassOf;

/// The common part of all enumerations of the protocol. Each class has a `Table` with a record for each
/// enumerator. The enumerator is the record's index, and the record's `strValue` is the wire name. The tables
/// are filled before `main` and never change, so every thread may read them.
template <typename Enum, const auto &Table>
class EnumClass {
public:
    static constexpr int length = std::tuple_size_v<std::decay_t<decltype(Table)>>;

    EnumClass(Enum enumerator)
        : value(enumerator) {}

    Enum getValue() const { return value; }
    void setValue(Enum enumerator) { value = enumerator; }
    int ordinal() const { return static_cast<int>(value); }

    /// The wire name: the text in the protocol. `getEnumValue` is the exact inverse.
    std::string name() const { return record().strValue; }

    static int getLength() { return length; }

    /// All enumerators in order.
    static std::vector<Enum> values() {
        std::vector<Enum> all;
        all.reserve(length);
        for (int i = 0; i < length; ++i)
            all.push_back(static_cast<Enum>(i));
        return all;
    }

    /// The enumerator with exactly this wire name (case matters), or nothing.
    static std::optional<Enum> getEnumValue(const std::string &text) {
        for (int i = 0; i < length; ++i)
            if (Table[static_cast<std::size_t>(i)].strValue == text)
                return static_cast<Enum>(i);
        return std::nullopt;
    }

protected:
    /// Throws std::out_of_range for a value that is no enumerator.
    const auto &record() const { return Table.at(static_cast<std::size_t>(value)); }

private:
    Enum value;
};

} // namespace kelvane
