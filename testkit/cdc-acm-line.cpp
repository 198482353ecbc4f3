#include "cdc-acm-line.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <vector>

using namespace std::chrono_literals;

// The linker's option --wrap sends the program's calls to the functions "__wrap_". The functions "__real_"
// are the system's.
extern "C" {
int __real_tcgetattr(int descriptor, termios *settings);
int __real_tcsetattr(int descriptor, int when, const termios *settings);
int __real_close(int descriptor);
int __real_dup3(int from, int to, int flags);
ssize_t __real_write(int descriptor, const void *bytes, size_t count);
int __real_poll(pollfd *ends, nfds_t count, int timeout);
int __real_ioctl(int descriptor, unsigned long request, ...);
int __real_tcflush(int descriptor, int queue);
}

namespace {

constexpr std::size_t MOST_PIECES = 16, PIECE_SIZE = 1280; // bytes
constexpr auto STEP = 1ms;                                 // between two checks of states without an event

std::mutex registry;           // guards theLine and its descriptors; every call takes it
CdcAcmLine *theLine = nullptr; // lives while the program uses the terminal; other descriptors live longer

} // namespace

CdcAcmLine::CdcAcmLine(std::string terminal)
    : path(std::move(terminal))
    , thread([this] { run(); }) {
    const std::lock_guard lock(registry);
    theLine = this;
}

CdcAcmLine::~CdcAcmLine() {
    {
        const std::lock_guard lock(registry);
        theLine = nullptr;
    }
    {
        const std::lock_guard lock(mutex);
        ending = true;
    }
    changed.notify_all();
    thread.join();
}

void CdcAcmLine::setPace(std::chrono::microseconds perPiece) {
    const std::lock_guard lock(mutex);
    pace = perPiece;
}

void CdcAcmLine::takeWhile(std::function<bool()> isTaking) {
    const std::lock_guard lock(mutex);
    takes = std::move(isTaking);
    changed.notify_all();
}

void CdcAcmLine::whenAsked(std::function<void()> call) {
    const std::lock_guard lock(mutex);
    asked = std::make_shared<std::function<void()>>(std::move(call));
}

std::size_t CdcAcmLine::leftToClose() const {
    const std::lock_guard lock(mutex);
    return left;
}

CdcAcmLine *CdcAcmLine::of(int terminal) {
    const std::lock_guard lock(registry);
    if (!theLine)
        return nullptr;
    const auto &known = theLine->descriptors;
    return std::find(known.begin(), known.end(), terminal) == known.end() ? nullptr : theLine;
}

void CdcAcmLine::setUp(int terminal) {
    const std::lock_guard lock(registry);
    struct stat given {
    }, named{};
    if (theLine && fstat(terminal, &given) == 0 && stat(theLine->path.c_str(), &named) == 0 &&
        given.st_rdev == named.st_rdev)
        theLine->descriptors.push_back(terminal);
}

void CdcAcmLine::use(int terminal) {
    const std::lock_guard lock(registry);
    descriptors.push_back(terminal);
}

void CdcAcmLine::close(int terminal) {
    const std::lock_guard lock(mutex);
    const bool isGone = hasGone();
    const std::lock_guard registryLock(registry);
    descriptors.erase(std::find(descriptors.begin(), descriptors.end(), terminal));
    if (!descriptors.empty())
        return;
    left += isGone ? 0 : underWay.size();
    underWay.clear();
}

/// Any of the program's descriptors, since all are of the same terminal; -1 without one.
int CdcAcmLine::descriptor() const {
    const std::lock_guard lock(registry);
    return descriptors.empty() ? -1 : descriptors.front();
}

/// True if the device was unplugged. The lock is held.
bool CdcAcmLine::hasGone() const {
    pollfd end{descriptor(), 0, 0};
    __real_poll(&end, 1, 0);
    return end.revents & (POLLHUP | POLLNVAL);
}

ssize_t CdcAcmLine::write(const char *bytes, std::size_t count) {
    std::unique_lock lock(mutex);
    std::size_t taken = 0;
    while (taken < count) {
        if (hasGone())
            return errno = EIO, -1;
        if (underWay.size() >= MOST_PIECES) {
            if (fcntl(descriptor(), F_GETFL) & O_NONBLOCK)
                break;
            changed.wait_for(lock, STEP);
            continue;
        }
        const char *const first = bytes + taken;
        const auto *const lineEnd = static_cast<const char *>(std::memchr(first, '\n', count - taken));
        const std::size_t line = lineEnd ? static_cast<std::size_t>(lineEnd - first) : count - taken;
        const std::size_t piece = line == 0 ? 1 : std::min(line, PIECE_SIZE);
        underWay.emplace_back(first, piece);
        taken += piece;
    }
    changed.notify_all();
    if (taken < count && hasRoomAfterRefusal)
        passOn();
    if (taken == 0 && count > 0)
        return errno = EAGAIN, -1;
    return static_cast<ssize_t>(taken);
}

bool CdcAcmLine::reportsRoom() const {
    const std::lock_guard lock(mutex);
    return underWay.empty();
}

int CdcAcmLine::ask(int *unsent) {
    std::shared_ptr<std::function<void()>> call;
    {
        const std::lock_guard lock(mutex);
        if (hasGone())
            return errno = EIO, -1;
        *unsent = static_cast<int>(underWay.size() * PIECE_SIZE);
        call = asked;
    }
    (*call)();
    return 0;
}

void CdcAcmLine::flush() {
    const std::lock_guard lock(mutex);
    underWay.clear();
}

void CdcAcmLine::run() {
    std::unique_lock lock(mutex);
    /// Called without the lock, because the function may have locks of its own.
    const auto isTaking = [&] {
        const auto condition = takes;
        const auto wait = pace;
        lock.unlock();
        const bool holds = condition();
        if (holds && wait.count() > 0)
            std::this_thread::sleep_for(wait);
        lock.lock();
        return holds;
    };
    while (!ending) {
        changed.wait_for(lock, STEP);
        while (!underWay.empty() && !ending && isTaking() && !underWay.empty() && passOn())
            continue;
    }
}

/// The device takes the oldest piece, or a part of it; false if it can't. The lock is held.
bool CdcAcmLine::passOn() {
    // The terminal itself makes carriage return and line feed of a line end.
    std::string &piece = underWay.front();
    const ssize_t taken = __real_write(descriptor(), piece.data(), piece.size());
    if (taken <= 0)
        return false;
    piece.erase(0, static_cast<std::size_t>(taken));
    if (piece.empty())
        underWay.pop_front();
    changed.notify_all();
    return true;
}

extern "C" {

int __wrap_tcgetattr(int descriptor, termios *settings) {
    CdcAcmLine::setUp(descriptor);
    const int result = __real_tcgetattr(descriptor, settings);
    if (CdcAcmLine *line = CdcAcmLine::of(descriptor))
        settings->c_cflag = line->control;
    return result;
}

int __wrap_tcsetattr(int descriptor, int when, const termios *settings) {
    if (CdcAcmLine *line = CdcAcmLine::of(descriptor))
        line->control = settings->c_cflag;
    return __real_tcsetattr(descriptor, when, settings);
}

int __wrap_close(int descriptor) {
    if (CdcAcmLine *line = CdcAcmLine::of(descriptor))
        line->close(descriptor);
    return __real_close(descriptor);
}

int __wrap_dup3(int from, int to, int flags) {
    CdcAcmLine *const line = CdcAcmLine::of(from);
    if (CdcAcmLine *former = CdcAcmLine::of(to))
        former->close(to);
    const int copy = __real_dup3(from, to, flags);
    if (line)
        line->use(copy);
    return copy;
}

ssize_t __wrap_write(int descriptor, const void *bytes, size_t count) {
    CdcAcmLine *const line = CdcAcmLine::of(descriptor);
    return line ? line->write(static_cast<const char *>(bytes), count)
                : __real_write(descriptor, bytes, count);
}

int __wrap_poll(pollfd *ends, nfds_t count, int timeout) {
    const auto isOnLine = [](const pollfd &end) { return (end.events & POLLOUT) && CdcAcmLine::of(end.fd); };
    if (std::none_of(ends, ends + count, isOnLine))
        return __real_poll(ends, count, timeout);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeout);
    for (;;) {
        std::vector<pollfd> asked(ends, ends + count);
        for (pollfd &end : asked)
            if (CdcAcmLine *line = CdcAcmLine::of(end.fd); line && !line->reportsRoom())
                end.events &= static_cast<short>(~POLLOUT);
        const int ready = __real_poll(asked.data(), count, timeout == 0 ? 0 : 1);
        for (nfds_t i = 0; i < count; ++i)
            ends[i].revents = asked[i].revents;
        if (ready != 0 || (timeout >= 0 && std::chrono::steady_clock::now() >= deadline))
            return ready;
    }
}

int __wrap_ioctl(int descriptor, unsigned long request, ...) {
    va_list arguments;
    va_start(arguments, request);
    void *const argument = va_arg(arguments, void *);
    va_end(arguments);
    CdcAcmLine *const line = request == TIOCOUTQ ? CdcAcmLine::of(descriptor) : nullptr;
    return line ? line->ask(static_cast<int *>(argument)) : __real_ioctl(descriptor, request, argument);
}

int __wrap_tcflush(int descriptor, int queue) {
    CdcAcmLine *const line = queue == TCOFLUSH ? CdcAcmLine::of(descriptor) : nullptr;
    return line ? line->flush(), 0 : __real_tcflush(descriptor, queue);
}

} // extern "C"
