#pragma once

#include <filesystem>
#include <string>
#include <termios.h>
#include <vector>

/// A pseudo-terminal: what is written to one end is read at the other. The program under test opens the other
/// end by its path; where root plays, so may everybody. Throws std::runtime_error where the system has none
/// left.
class Pty {
public:
    /// ms between looks whether somebody opened the other end, which no event tells.
    static constexpr int CLOSED_POLL = 5;

    Pty();
    ~Pty();
    Pty(const Pty &) = delete;
    Pty &operator=(const Pty &) = delete;

    /// Links the terminal at this path, until `unlink` or the end, and makes the folders that are missing on
    /// the way there for as long. Throws std::runtime_error where something is there already or the directory
    /// is not the user's.
    void linkAt(const std::filesystem::path &path);
    void unlink();
    /// Our end, which does not block.
    int descriptor() const { return master; }
    const std::string &terminal() const { return slaveName; }
    /// Somebody has the other end open.
    bool isOpen() const;
    /// Drops what was written and nobody has read.
    void dropUnread() const;

    termios lineSettings() const;
    void setLineSettings(const termios &settings) const;

private:
    int master = -1;
    std::string slaveName;
    std::vector<std::filesystem::path> made; // the link and its folders, to be removed in this order
};

/// The result of a system call, or std::runtime_error with the operation's name and the reason.
int checked(int result, const std::string &operation);
