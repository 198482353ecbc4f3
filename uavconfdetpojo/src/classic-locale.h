#pragma once

#include <locale.h>

inline namespace kelvane {

/// Pins the calling thread to the "C" locale while it lives: the JSON library may read and write numbers by
/// the locale, and the wire knows the decimal point alone.
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
