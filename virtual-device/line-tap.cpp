#include "line-tap.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t MOST_PENDING = 65536; // bytes; with more of them their sender is not read

/// Bytes pass unchanged. The program's terminal has already changed the line ends.
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

/// The events to wait for at an end. `from` is what came from it, `to` is what must go to it.
short events(const std::string &from, const std::string &to) {
    return static_cast<short>((from.size() < MOST_PENDING ? POLLIN : 0) | (to.empty() ? 0 : POLLOUT));
}

/// Writes as much as the line takes now.
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
    std::string toDevice, toProgram; // recorded, but not yet taken by that end
    for (bool isOpen = false;;) {
        pollfd ends[] = {{stop, POLLIN, 0},
                         {device, events(toProgram, toDevice), 0},
                         {pty.descriptor(), events(toDevice, toProgram), 0}};
        // With a closed line every poll returns at once.
        poll(ends, isOpen ? 3 : 2, isOpen ? -1 : Pty::CLOSED_POLL);
        if (ends[0].revents != 0)
            return;
        const bool wasOpen = std::exchange(isOpen, pty.isOpen());
        if (wasOpen && !isOpen)
            pty.dropUnread(); // otherwise the next program would read it
        if ((ends[1].revents & ~POLLOUT) && !read(device, true, toProgram))
            throw std::runtime_error(path + ": the device has gone");
        // A program may have closed the line right after its last bytes.
        if (!isOpen ? toDevice.size() < MOST_PENDING : ends[2].revents & POLLIN)
            read(pty.descriptor(), false, toDevice);
        writeTo(device, toDevice);
        if (isOpen)
            writeTo(pty.descriptor(), toProgram);
        else
            toProgram.clear(); // bytes that nobody reads are lost, as on a real line
    }
}

/// False if that end has gone.
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
