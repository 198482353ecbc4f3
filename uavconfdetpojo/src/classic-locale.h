#pragma once

#include <locale.h>

inline namespace kelvane {

/// Sets the locale of the calling thread to "C" while it lives. The JSON library may read and write numbers
/// by the locale, but the protocol always has a decimal point.
class ClassicLocale {
public:
    ClassicLocale()
        : before(uselocale(classic())) {}
    ~ClassicLocale() { uselocale(before); }
    ClassicLocale(const ClassicLocale &) = delete;
    ClassicLocale &operator=(const ClassicLocale &) = delete;

private:
    static locale_t classic() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    const locale_t before;
};

} // namespace kelvane
