#pragma once

#include <QSocketNotifier>

/// Ends the event loop in good order when the process is told to end (SIGINT, SIGTERM, a closed terminal), so
/// that the device does not go on scanning. SIGINT or SIGTERM a second or more after the first of these
/// signals ends the process at once; one that comes sooner changes nothing. Has writes to a closed pipe fail
/// instead of ending the process. At most one object at a time, made after the application object.
class ProcessSignals {
public:
    ProcessSignals();
    ~ProcessSignals();
    ProcessSignals(const ProcessSignals &) = delete;
    ProcessSignals &operator=(const ProcessSignals &) = delete;

private:
    QSocketNotifier notifier;
};
