#pragma once

#include <filesystem>
#include <string>
#include <termios.h>
#include <vector>

/// A pseudo-terminal: bytes that are written to one end are read at the other. A program opens the other end
/// by its path. If root makes the terminal, every user may open it. Throws std::runtime_error if the system
/// has none left.
class Pty {
public:
    /// In ms: how often to check whether the other end was opened. There is no event for that.
    static constexpr int CLOSED_POLL = 5;

    Pty();
    ~Pty();
    Pty(const Pty &) = delete;
    Pty &operator=(const Pty &) = delete;

    /// Makes a link to the terminal at this path, and the folders that are missing there. Both stay until
    /// `unlink` or the destructor. Throws std::runtime_error if the path exists already or the user may not
    /// write there.
    void linkAt(const std::filesystem::path &path);
    void unlink();
    /// The descriptor of our end; it is non-blocking.
    int descriptor() const { return master; }
    const std::string &terminal() const { return slaveName; }
    /// True while the other end is open.
    bool isOpen() const;
    /// Drops the bytes that were written and not read.
    void dropUnread() const;

    termios lineSettings() const;
    void setLineSettings(const termios &settings) const;

private:
    int master = -1;
    std::string slaveName;
    std::vector<std::filesystem::path> made; // the link and its folders, in the order of removing
};

/// Returns the result of a system call. If it failed, throws std::runtime_error with the operation's name and
/// the reason.
int checked(int result, const std::string &operation);
