#pragma once

#include <functional>
#include <string>

inline namespace kelvane {

/// Lines "[LEVEL] [tag] text". Any thread may log.
class Log {
public:
    static void info(const std::string &tag, const std::string &msg);
    static void debug(const std::string &tag, const std::string &msg);
    static void error(const std::string &tag, const std::string &msg);
    /// A line without a level.
    static void write(const std::string &tag, const std::string &msg);

    /// Gets each line, without its line end, on the thread that logs it. Several threads may log at once.
    using Sink = std::function<void(const std::string &line)>;
    /// Sends the lines to this function. An empty function restores the default, standard output. There each
    /// line is written and flushed at once, so that lines do not mix.
    static void setSink(Sink sink);
};

} // namespace kelvane
