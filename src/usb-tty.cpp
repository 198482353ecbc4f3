#include "usb-tty.h"

#include "reading-loop.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <termios.h>
#include <unistd.h>

namespace {

/// In ms, between two tries to send the rest. The line may have room without reporting it.
constexpr int REST_WAIT = 5;
/// The time that unsent bytes have to leave at the end. A device takes none during a sweep, which is shorter
/// than this.
constexpr std::chrono::milliseconds END_PATIENCE{500};

} // namespace

UsbTty::UsbTty()
    : UsbTty("") {}

UsbTty::UsbTty(std::string name)
    : portName(std::move(name))
    , news(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
    , writer([this] { eventfd_write(news, 1); }) {}

UsbTty::~UsbTty() {
    closeAfter({});
    ::close(news);
}

bool UsbTty::failed(const char *operation) {
    const int error = errno;
    lastOpenError = error;
    std::printf("Error %i from %s: %s\n", error, operation, std::strerror(error));
    return false;
}

/// Bytes arrive unchanged, and a read waits a second for them at most. On purpose, two settings differ from
/// raw mode: signals stay on, and a line feed is sent as carriage return and line feed. The devices expect
/// that.
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
    const int opened = open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (opened < 0)
        return failed("open");
    if (!setUpLine(opened)) {
        ::close(opened);
        return false;
    }
    if (port < 0) {
        port = opened;
    } else {
        writer.finish(END_PATIENCE, {});
        // The new port gets the number of the old one, because the reading thread may be about to use that
        // number.
        dup3(opened, port, O_CLOEXEC);
        ::close(opened);
        eventfd_write(news, 1); // the reading thread still waits on the old port
    }
    writer.use(port);
    closed = false;
    startReading();
    return true;
}

void UsbTty::startReading() {
    // A listener must not wait for a thread that closes.
    const std::unique_lock lock(lifecycle, std::try_to_lock);
    if (lock && !readingThread.isStarted() && !closed)
        readingThread.start([this] {
            hasHungUp = false;
            readUntil(closed, [this] { return readBlock(); });
        });
}

/// False if it returned at once and nothing was read or sent.
bool UsbTty::readBlock() {
    const bool hasRest = !hasHungUp && writer.hasRest();
    const short line = hasRest ? POLLIN | POLLOUT : POLLIN;
    pollfd waited[] = {{hasHungUp ? -1 : port.load(), line, 0}, {news, POLLIN, 0}};
    const int ready = poll(waited, 2, hasRest ? REST_WAIT : -1);
    eventfd_t told;
    const bool isNews = waited[1].revents != 0 && eventfd_read(news, &told) == 0;
    const bool hasSent = writer.sendRest();
    hasHungUp = hasHungUp && !isNews;
    if (ready <= 0 || closed || (waited[0].revents & ~POLLOUT) == 0)
        return ready == 0 || isNews || hasSent;
    buffer_t bytes(buffer_size, '\0');
    const ssize_t count = ::read(port, bytes.data(), bytes.size());
    // On purpose: errno is checked also after a successful read, and nothing clears it. So after one
    // interrupted call this thread drops bytes until another call fails with another error.
    if (errno != EINTR && count > 0) {
        bytes.resize(static_cast<std::size_t>(count));
        processNewData(std::move(bytes));
    }
    // The line of an unplugged device has hung up, and nothing comes from it any more. So the thread waits
    // only for news. If there is news now, another port may have taken the line's place.
    hasHungUp = count <= 0 && (waited[0].revents & POLLHUP) != 0 && !isNews;
    return count > 0 || hasSent || hasHungUp;
}

void UsbTty::closeAfter(const buffer_t &last) {
    const std::lock_guard lock(lifecycle);
    writer.finish(END_PATIENCE, last);
    closed = true;
    eventfd_write(news, 1);
    readingThread.finish();
    if (port >= 0)
        ::close(port.exchange(-1));
}
