#include "line-tap.h"

#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// Bytes pass unchanged: the program's line has made them what they are.
int openRaw(const std::string &path) {
    const int line = checked(::open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC), path);
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

} // namespace

LineTap::LineTap(const std::string &devicePath, fs::path linkPath, const std::string &recordingPath)
    : path(devicePath)
    , link(linkPath.empty() ? linkPath : fs::absolute(linkPath))
    , device(openRaw(devicePath))
    , recording(recordingPath) {
    if (!link.empty())
        pty.linkAt(link);
}

LineTap::~LineTap() {
    std::error_code gone;
    if (!link.empty())
        fs::remove(link, gone);
    close(device);
}

void LineTap::run(int stop) {
    for (;;) {
        const bool isOpen = pty.isOpen();
        pollfd ends[] = {{stop, POLLIN, 0}, {device, POLLIN, 0}, {pty.descriptor(), POLLIN, 0}};
        // A closed line answers every poll at once.
        poll(ends, isOpen ? 3 : 2, isOpen ? -1 : Pty::CLOSED_POLL);
        if (ends[0].revents != 0)
            return;
        if (ends[1].revents & POLLIN)
            pass(device, pty.descriptor(), true);
        else if (ends[1].revents != 0)
            throw std::runtime_error(path + ": the device has gone");
        if (isOpen && ends[2].revents & POLLIN)
            pass(pty.descriptor(), device, false);
    }
}

void LineTap::pass(int from, int to, bool fromDevice) {
    char bytes[4096];
    const ssize_t count = ::read(from, bytes, sizeof bytes);
    if (count <= 0) {
        if (fromDevice)
            throw std::runtime_error(path + ": the device has gone");
        return;
    }
    const std::string text(bytes, static_cast<std::size_t>(count));
    recording.write(fromDevice, text);
    // What nobody reads is gone, as on a real line.
    for (std::size_t passed = 0; passed < text.size() && (!fromDevice || pty.isOpen());) {
        const ssize_t taken = ::write(to, text.data() + passed, text.size() - passed);
        if (taken > 0)
            passed += static_cast<std::size_t>(taken);
        else
            usleep(1000); // the reader is behind
    }
}
