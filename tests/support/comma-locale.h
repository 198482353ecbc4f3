#pragma once

#include <clocale>
#include <cstdlib>

#include <gtest/gtest.h>

/// Runs the process under a locale that writes a decimal comma, as long as it lives.
class CommaLocale {
public:
    CommaLocale() {
        setenv("LOCPATH", TEST_LOCALE_DIR, 1);
        EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
        EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    }
    ~CommaLocale() { std::setlocale(LC_ALL, "C"); }
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;
};
