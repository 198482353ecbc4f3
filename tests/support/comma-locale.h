#pragma once

#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>

/// While it lives, the process has a locale with a decimal comma. There are two: de_DE.UTF-8 and ru_RU.UTF-8,
/// which also groups digits by a blank of several bytes.
class CommaLocale {
public:
    explicit CommaLocale(const char *name = "de_DE.UTF-8") {
        setenv("LOCPATH", TEST_LOCALE_DIR, 1);
        EXPECT_NE(std::setlocale(LC_ALL, name), nullptr);
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    }
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;
};
