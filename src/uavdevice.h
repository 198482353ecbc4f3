#pragma once

// This library finds a Kelvane detector of drone signals on a serial line of this Linux computer and talks to
// it. The messages are those of the library uavconfdetpojo; its header uavconfdetpojo.h explains them.
//
//     LinuxConnector detector;
//     detector.addListener(std::make_shared<MsgListener>([](const std::shared_ptr<Msg> &msg) { ... }));
//     if (detector.connectInterface())
//         detector.busyTransaction(ScanMsgBuilder().scan(true).share(), std::chrono::milliseconds(200));
//
// Finding. connectInterface() opens one serial device after the other and asks for its state. It returns true
// with the first one that answers, and keeps that line open. It returns false after the last one. Nothing
// repeats by itself: call it again for a detector that is plugged in later. Do not call it while one is
// connected. One callback of the constructor gets a line for each device that was not taken, with the
// reason. The other gets an error of the file system that ended the search. The user needs the right to open
// the line, by the group dialout or by a rule of the system. Use one connector for a line: a second one, or
// another program, takes bytes away from the first. For two detectors, give each connector a folder with one
// link.
//
// Talking. The detector sends nothing by itself until it gets SCAN with scan on. Then it sends a SCAN_RESULT
// after each sweep. busyTransaction() sends a request and returns the first message that comes, whatever that
// message is. Nothing on the line connects a reply with its request, so while the detector scans, the first
// message may be a scan. A listener gets every message: use one for what you want to know.
// MsgType(type).getReplyType() is the type of message with which the detector answers a request. To change a
// setting, send a message with only the keys that change. Stop the scan (SCAN with scan off) before you
// leave. Otherwise the detector goes on scanning, and the next search may miss it.
//
// Which call blocks, and how long:
// - connectInterface(): up to 0.1 s for each serial device that does not answer, and 0.5 s more for one that
//   takes no bytes.
// - busyTransaction(): up to its time-out until the line has taken the request, then up to the same time for
//   the reply. If the line does not take the request in time, the call returns null then. A second caller
//   waits for the first.
// - send(): up to its time-out, which is 2 s if you give none.
// - removeListener(): while that listener runs on another thread.
// - disconnect() and the destructor: up to 0.5 s if the detector has not taken all bytes yet, and while a
//   listener runs.
// - All others return at once.
//
// Threads. Listeners run on the link's reading thread, one message after the other. A listener may add and
// remove listeners, itself too, and call send(). It must not make other calls of the connector. It must not
// wait for a reply, because the same thread would have to read it. It must not throw: an exception that
// leaves a listener ends the process. Other threads may make every call. When removeListener() has returned
// on another thread, the listener does not run and will not run again. So remove a listener before the
// objects go that it uses.
//
// The end. disconnect() and the destructor send the unsent bytes, end the reading thread and close the line.
// A request on another thread ends after its time-out. Nothing else needs to be ended.
//
// An unplugged detector is not reported: isClosed() stays false, and requests end in their time-outs. To
// notice it, ask for the state now and then. If no reply comes, disconnect and search again.
//
// What is printed. Lines of the log go to standard output, or to the function that is given to Log::setSink.
// Two kinds of lines always go to standard output: why a port did not open, and what the simulator does.
//
// Without hardware. startTesting() starts the simulator inside the process, and busyTransaction() then talks
// to it. Differences: it returns null for requests that it answers through the listeners only. It ignores the
// time-out. It runs listeners on the caller's thread or on the thread of its scan. To stop the scan takes
// until the end of its pause, up to 5 s. isClosed() stays true. The virtual detector, the program
// uav-vesper-device, plays a detector on a line of its own, with faults and recordings.

#include "common/defaults.h"
#include "common/history.h"
#include "common/sens-level.h"
#include "common/strongest-signals.h"
#include "level-scale.h"
#include "linux-connector.h"
#include "uavconfdetpojo.h"
