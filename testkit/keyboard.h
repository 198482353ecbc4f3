#pragma once

#include <QCoreApplication>
#include <QString>
#include <fcntl.h>
#include <linux/input.h>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

/// A keyboard to plug into a program that runs by itself, by QT_QPA_GENERIC_PLUGINS=evdevkeyboard:PATH.
class Keyboard {
public:
    Keyboard() {
        ::mkfifo(qPrintable(path), 0600);
        end = ::open(qPrintable(path), O_RDWR | O_CLOEXEC);
    }
    ~Keyboard() {
        ::close(end);
        ::unlink(qPrintable(path));
    }
    Keyboard(const Keyboard &) = delete;
    Keyboard &operator=(const Keyboard &) = delete;

    /// Presses and releases a key of <linux/input.h>. Throws std::runtime_error if nobody can have noticed.
    void press(unsigned short key) const {
        for (const int value : {1, 0}) {
            input_event event{};
            event.type = EV_KEY;
            event.code = key;
            event.value = value;
            if (::write(end, &event, sizeof event) != ssize_t{sizeof event})
                throw std::runtime_error("The keyboard is not connected.");
        }
    }

    /// Qt takes a device from below /dev alone.
    const QString path = QString("/dev/shm/uav-vesper-keyboard-%1").arg(QCoreApplication::applicationPid());

private:
    int end;
};
