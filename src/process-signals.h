#pragma once

#include <QSocketNotifier>

/// Ends the event loop when a signal asks the process to end: SIGINT, SIGTERM, or SIGHUP of a closed
/// terminal. So the device does not go on scanning. A second SIGINT or SIGTERM ends the process at once if it
/// comes a second or more after the first signal. An earlier one changes nothing. Writes to a closed pipe
/// fail instead of ending the process. At most one object at a time, made after the application object.
class ProcessSignals {
public:
    ProcessSignals();
    ~ProcessSignals();
    ProcessSignals(const ProcessSignals &) = delete;
    ProcessSignals &operator=(const ProcessSignals &) = delete;

private:
    QSocketNotifier notifier;
};
