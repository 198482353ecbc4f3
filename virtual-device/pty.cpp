#include "pty.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace fs = std::filesystem;

int checked(int result, const std::string &operation) {
    if (result < 0)
        throw std::runtime_error(operation + ": " + std::strerror(errno));
    return result;
}

Pty::Pty()
    : master(checked(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC), "posix_openpt")) {
    checked(grantpt(master), "grantpt");
    checked(unlockpt(master), "unlockpt");
    slaveName = ptsname(master);
    // Root plays a device at the system's own place. Every user may open it.
    if (geteuid() == 0)
        checked(chmod(slaveName.c_str(), 0666), "chmod");
    // A program sets the line up when it opens the port. Before that the line must not echo the device's
    // bytes.
    termios line = lineSettings();
    line.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    setLineSettings(line);
    // Only after this a closed end can be recognised.
    close(checked(::open(slaveName.c_str(), O_RDWR | O_NOCTTY), "open"));
}

Pty::~Pty() {
    unlink();
    close(master);
}

void Pty::linkAt(const fs::path &path) {
    const fs::path link = fs::absolute(path);
    std::error_code error;
    for (fs::path folder = link.parent_path(); !fs::exists(folder, error); folder = folder.parent_path())
        made.push_back(folder);
    fs::create_directories(link.parent_path(), error);
    if (!error)
        fs::create_symlink(fs::relative(slaveName, link.parent_path(), error), link, error);
    const char *help = error == std::errc::permission_denied ? "; that needs root"
                       : error == std::errc::file_exists
                           ? "; remove it if no other virtual detector runs there"
                           : "";
    if (error)
        throw std::runtime_error(path.string() + ": " + error.message() + help);
    made.insert(made.begin(), link);
}

void Pty::unlink() {
    std::error_code stays; // ignored: others may use the folder by now
    for (const fs::path &path : std::exchange(made, {}))
        fs::remove(path, stays);
}

bool Pty::isOpen() const {
    pollfd end{master, 0, 0};
    poll(&end, 1, 0);
    return !(end.revents & POLLHUP);
}

void Pty::dropUnread() const {
    const int slave = checked(::open(slaveName.c_str(), O_RDWR | O_NOCTTY), "open");
    tcflush(slave, TCIFLUSH);
    close(slave);
}

termios Pty::lineSettings() const {
    termios line{};
    checked(tcgetattr(master, &line), "tcgetattr");
    return line;
}

void Pty::setLineSettings(const termios &line) const {
    checked(tcsetattr(master, TCSANOW, &line), "tcsetattr");
}
