#include "usb-tty.h"

#include "reading-loop.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

bool failed(const char *operation) {
    const int error = errno;
    std::printf("Error %i from %s: %s\n", error, operation, std::strerror(error));
    return false;
}

/// Bytes come unchanged and one read waits at most a second for them. On purpose: other than in raw mode
/// signals stay on, and a line feed leaves as carriage return and line feed, which the devices expect.
bool setUpLine(int descriptor) {
    termios settings;
    if (tcgetattr(descriptor, &settings) != 0)
        return failed("tcgetattr");
    settings.c_cflag &= ~static_cast<tcflag_t>(PARENB | CSTOPB | CSIZE | CRTSCTS);
    settings.c_cflag |= CS8 | CREAD | CLOCAL;
    settings.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | ECHOE | ECHONL);
    settings.c_lflag |= ISIG;
    settings.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY);
    settings.c_iflag &= ~static_cast<tcflag_t>(IGNBRK | BRKINT | PARMRK | ISTRIP | INLCR | IGNCR | ICRNL);
    settings.c_oflag |= OPOST | ONLCR;
    settings.c_cc[VTIME] = 10; // tenths of a second
    settings.c_cc[VMIN] = 0;
    return tcsetattr(descriptor, TCSANOW, &settings) == 0 || failed("tcsetattr");
}

} // namespace

UsbTty::UsbTty(std::string name)
    : portName(std::move(name)) {}

UsbTty::~UsbTty() {
    UsbTty::serialClose();
}

std::string UsbTty::getPortName() const {
    const std::lock_guard lock(lifecycle);
    return portName;
}

void UsbTty::setPortName(std::string name) {
    const std::lock_guard lock(lifecycle);
    portName = std::move(name);
}

bool UsbTty::openPort() {
    const std::lock_guard lock(lifecycle);
    if (portName.empty())
        return false;
    const int opened = open(portName.c_str(), O_RDWR);
    if (opened < 0)
        return failed("open");
    if (!setUpLine(opened)) {
        ::close(opened);
        return false;
    }
    {
        const std::lock_guard portLock(portMutex);
        if (port < 0) {
            port = opened;
        } else {
            dup2(opened, port); // under the same number, since the reading thread may be about to use it
            ::close(opened);
        }
    }
    closed = false;
    startReading();
    return true;
}

void UsbTty::startReading() {
    const std::lock_guard lock(lifecycle);
    if (!readingThread.isStarted() && !closed)
        readingThread.start([this] { readUntil(closed, [this] { return readBlock(); }); });
}

bool UsbTty::readBlock() {
    buffer_t bytes(buffer_size, '\0');
    const ssize_t count = ::read(port, bytes.data(), bytes.size());
    // On purpose: errno counts whatever the read gave, and nothing clears it, so that on a thread that was
    // once interrupted bytes are dropped until another call fails.
    if (errno != EINTR && count > 0) {
        bytes.resize(static_cast<std::size_t>(count));
        processNewData(std::move(bytes));
    }
    return count > 0;
}

void UsbTty::sendBytes(buffer_t bytes, std::chrono::milliseconds) {
    const std::lock_guard lock(portMutex);
    if (::write(port, bytes.data(), bytes.size()) < 0)
        return;
}

void UsbTty::serialClose() {
    const std::lock_guard lock(lifecycle);
    closed = true;
    readingThread.finish();
    const std::lock_guard portLock(portMutex);
    if (port >= 0)
        ::close(port.exchange(-1));
}
