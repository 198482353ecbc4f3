#pragma once

#include <string>

/// Lines "[LEVEL] [tag] text" on standard output, flushed one by one. Any thread may log: a line is written
/// at once, so that lines do not mix.
class Log {
public:
    static void info(const std::string &tag, const std::string &msg);
    static void debug(const std::string &tag, const std::string &msg);
    static void error(const std::string &tag, const std::string &msg);
    /// A line without a level.
    static void write(const std::string &tag, const std::string &msg);
};
