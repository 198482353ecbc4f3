#include "usb-tty.h"

#include "bounded-write.h"
#include "reading-loop.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

UsbTty::UsbTty()
    : UsbTty("") {}

UsbTty::UsbTty(std::string name)
    : portName(std::move(name))
    , closing(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

UsbTty::~UsbTty() {
    UsbTty::serialClose();
    ::close(closing);
}

bool UsbTty::failed(const char *operation) {
    const int error = errno;
    lastOpenError = error;
    std::printf("Error %i from %s: %s\n", error, operation, std::strerror(error));
    return false;
}

/// Bytes come unchanged and one read waits at most a second for them. On purpose: other than in raw mode
/// signals stay on, and a line feed leaves as carriage return and line feed, which the devices expect.
bool UsbTty::setUpLine(int descriptor) {
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

std::string UsbTty::getPortName() const {
    const std::lock_guard lock(nameMutex);
    return portName;
}

void UsbTty::setPortName(std::string name) {
    const std::lock_guard lock(nameMutex);
    portName = std::move(name);
}

bool UsbTty::openPort() {
    const std::lock_guard lock(lifecycle);
    const std::string path = getPortName();
    lastOpenError = 0;
    if (path.empty())
        return false;
    const int opened = open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
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
            // Under the same number, since the reading thread may be about to use it.
            dup3(opened, port, O_CLOEXEC);
            ::close(opened);
        }
    }
    closed = false;
    startReading();
    return true;
}

void UsbTty::startReading() {
    const std::unique_lock lock(lifecycle, std::try_to_lock); // a listener must not wait for who closes
    if (lock && !readingThread.isStarted() && !closed)
        readingThread.start([this] { readUntil(closed, [this] { return readBlock(); }); });
}

bool UsbTty::readBlock() {
    // As long as a read of the line waits, but closing ends it.
    pollfd waited[] = {{port, POLLIN, 0}, {closing, POLLIN, 0}};
    if (poll(waited, 2, 1000) <= 0 || waited[1].revents != 0)
        return false;
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

void UsbTty::sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) {
    const std::lock_guard lock(portMutex);
    if (port >= 0)
        writeWithin(timeout, port, closing, bytes.data(), bytes.size());
}

void UsbTty::serialClose() {
    const std::lock_guard lock(lifecycle);
    closed = true;
    eventfd_write(closing, 1);
    readingThread.finish();
    const std::lock_guard portLock(portMutex);
    if (port >= 0) {
        // Every request has waited for its reply. What a hung device has not taken would keep the system's
        // close waiting for half a minute.
        int unsent = 0;
        if (ioctl(port, TIOCOUTQ, &unsent) == 0 && unsent > 0)
            tcflush(port, TCOFLUSH);
        ::close(port.exchange(-1));
    }
    eventfd_t closings;
    eventfd_read(closing, &closings);
}
