#include "line-tap.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t MOST_PENDING = 65536; // bytes; above it the side that they come from is not read

/// Bytes pass unchanged: the program's line has made them what they are.
int openRaw(const std::string &path) {
    const int line = checked(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC), path);
    termios settings{};
    if (tcgetattr(line, &settings) != 0) {
        close(line);
        throw std::runtime_error(path + ": no serial line");
    }
    cfmakeraw(&settings);
    settings.c_cflag |= CLOCAL | CREAD;
    tcsetattr(line, TCSANOW, &settings);
    return line;
}

/// What to wait for at an end, by what comes from it and what is to go to it.
short events(const std::string &from, const std::string &to) {
    return static_cast<short>((from.size() < MOST_PENDING ? POLLIN : 0) | (to.empty() ? 0 : POLLOUT));
}

/// As much of it as the line takes now.
void writeTo(int line, std::string &pending) {
    const ssize_t taken = pending.empty() ? 0 : ::write(line, pending.data(), pending.size());
    pending.erase(0, static_cast<std::size_t>(std::max<ssize_t>(taken, 0)));
}

} // namespace

LineTap::LineTap(const std::string &devicePath, const std::filesystem::path &link,
                 const std::string &recordingPath)
    : path(devicePath)
    , device(openRaw(devicePath))
    , recording(recordingPath) {
    if (!link.empty())
        pty.linkAt(link);
}

LineTap::~LineTap() {
    close(device);
}

void LineTap::run(int stop) {
    std::string toDevice, toProgram; // recorded, and not taken by that end yet
    for (bool isOpen = false;;) {
        pollfd ends[] = {{stop, POLLIN, 0},
                         {device, events(toProgram, toDevice), 0},
                         {pty.descriptor(), events(toDevice, toProgram), 0}};
        // A closed line answers every poll at once.
        poll(ends, isOpen ? 3 : 2, isOpen ? -1 : Pty::CLOSED_POLL);
        if (ends[0].revents != 0)
            return;
        const bool wasOpen = std::exchange(isOpen, pty.isOpen());
        if (wasOpen && !isOpen)
            pty.dropUnread(); // or it would meet the next who opens the line
        if ((ends[1].revents & ~POLLOUT) && !read(device, true, toProgram))
            throw std::runtime_error(path + ": the device has gone");
        // A program may have closed the line right after its last words.
        if (!isOpen ? toDevice.size() < MOST_PENDING : ends[2].revents & POLLIN)
            read(pty.descriptor(), false, toDevice);
        writeTo(device, toDevice);
        if (isOpen)
            writeTo(pty.descriptor(), toProgram);
        else
            toProgram.clear(); // what nobody reads is gone, as on a real line
    }
}

/// False when nothing comes from there any more.
bool LineTap::read(int from, bool fromDevice, std::string &pending) {
    char bytes[4096];
    const ssize_t count = ::read(from, bytes, sizeof bytes);
    if (count <= 0)
        return count < 0 && errno == EAGAIN;
    const std::string text(bytes, static_cast<std::size_t>(count));
    recording.write(fromDevice, text);
    pending += text;
    return true;
}
