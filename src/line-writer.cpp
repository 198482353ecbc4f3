#include "line-writer.h"

#include <algorithm>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

using std::chrono::milliseconds;

namespace {

using Clock = std::chrono::steady_clock;

/// Time between two tries. A driver of USB lines holds sixteen pieces. Each takes 0.1 to 1 ms to leave.
constexpr milliseconds RETRY{1};

Clock::time_point nextTry(Clock::time_point deadline) {
    return std::min(deadline, Clock::now() + RETRY);
}

} // namespace

LineWriter::LineWriter(std::function<void()> call)
    : onRest(std::move(call)) {}

void LineWriter::use(int newTerminal) {
    const std::lock_guard lock(mutex);
    terminal = newTerminal;
}

Sent LineWriter::send(const std::string &bytes, milliseconds timeout) {
    const auto deadline = Clock::now() + waitable(timeout);
    std::unique_lock lock(mutex);
    const auto isOpen = [this, line = lines] { return line == lines && terminal >= 0; };
    const auto holdsInTime = [&](auto condition) {
        while (isOpen()) {
            if (condition())
                return true;
            if (Clock::now() >= deadline)
                break;
            changed.wait_until(lock, nextTry(deadline));
        }
        return false;
    };
    if (!holdsInTime([&] { return !finishing && begin(bytes); }))
        return isOpen() ? Sent::NOTHING : Sent::CLOSED;
    const auto hasLeft = [this, request = begun] {
        push();
        return rest.empty() || begun != request;
    };
    if (!holdsInTime(hasLeft))
        return isOpen() ? Sent::PART : Sent::CLOSED;
    return Sent::WHOLE;
}

bool LineWriter::hasRest() const {
    const std::lock_guard lock(mutex);
    return !rest.empty();
}

bool LineWriter::sendRest() {
    const std::lock_guard lock(mutex);
    return push();
}

void LineWriter::finish(milliseconds patience, const std::string &last) {
    const auto deadline = Clock::now() + patience;
    std::unique_lock lock(mutex);
    if (terminal < 0)
        return;
    finishing = true;
    auto hasLeft = [&, isToBegin = !last.empty()]() mutable {
        isToBegin = isToBegin && !begin(last);
        return !holdsUnsent(isToBegin);
    };
    bool isDone = false;
    while (!(isDone = hasLeft()) && Clock::now() < deadline)
        changed.wait_until(lock, nextTry(deadline));
    if (!isDone)
        tcflush(terminal, TCOFLUSH);
    rest.clear();
    terminal = -1;
    finishing = false;
    ++lines;
    changed.notify_all();
}

/// `mutex` is held here and in the next two.
bool LineWriter::begin(const std::string &bytes) {
    push();
    if (!rest.empty())
        return false;
    const ssize_t taken = ::write(terminal, bytes.data(), bytes.size());
    if (taken <= 0 && !bytes.empty())
        return false;
    ++begun;
    rest = bytes.substr(static_cast<std::size_t>(std::max<ssize_t>(taken, 0)));
    if (!rest.empty())
        onRest();
    return true;
}

bool LineWriter::push() {
    const ssize_t taken = rest.empty() ? 0 : ::write(terminal, rest.data(), rest.size());
    if (taken <= 0)
        return false;
    rest.erase(0, static_cast<std::size_t>(taken));
    if (rest.empty())
        changed.notify_all();
    return true;
}

/// False if the line has gone: no byte can reach the device then.
bool LineWriter::holdsUnsent(bool isToBegin) {
    push();
    int underWay = 0;
    return ioctl(terminal, TIOCOUTQ, &underWay) == 0 && (isToBegin || underWay > 0 || !rest.empty());
}
