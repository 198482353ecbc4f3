#pragma once

#include <atomic>
#include <chrono>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <future>
#include <gmock/gmock.h>
#include <list>
#include <map>
#include <mutex>
#include <random>
#include <regex>
#include <set>
#include <sstream>
#include <thread>

using namespace std::chrono_literals;
using namespace testing;

/// Waits for something that another thread brings about. The end of a hung test is its time-out.
inline void await(const std::function<bool()> &isSo) {
    while (!isSo())
        std::this_thread::sleep_for(1ms);
}

/// Runs an action on another thread. The end of the object waits for the action's end.
[[nodiscard]] inline std::future<void> meanwhile(std::function<void()> action) {
    return std::async(std::launch::async, std::move(action));
}

/// The rows of a table, each with its columns, which tabs separate. A line that begins with '#' is a comment.
inline std::vector<std::vector<std::string>> rowsOf(const char *table) {
    std::ifstream file(table);
    std::vector<std::vector<std::string>> rows;
    for (std::string line, column; std::getline(file, line);)
        if (line[0] != '#') {
            rows.emplace_back();
            for (std::istringstream columns(line); std::getline(columns, column, '\t');)
                rows.back().push_back(column);
            rows.back().resize(4); // an empty last column has no end
        }
    EXPECT_GT(rows.size(), 20U) << table;
    return rows;
}

/// What an action writes to the standard output.
inline std::string printedBy(const std::function<void()> &action) {
    internal::CaptureStdout();
    action();
    return internal::GetCapturedStdout();
}

/// Calls both on two threads, the second one after the first one. Nothing else puts the two threads in order,
/// so ThreadSanitizer sees each time that a lock is missing.
inline void inOrder(const std::function<void()> &first, const std::function<void()> &second) {
    std::atomic<bool> isDone{false};
    const auto other = meanwhile([&] {
        first();
        isDone.store(true, std::memory_order_relaxed);
    });
    await([&] { return isDone.load(std::memory_order_relaxed); });
    second();
}

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
