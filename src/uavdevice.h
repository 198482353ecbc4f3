#pragma once

// Finds a Kelvane detector of drone signals on a serial line of this Linux computer and talks to it, from any
// program. The messages themselves are those of the library beside this one: uavconfdetpojo.h tells of them.
//
//     LinuxConnector detector;
//     detector.addListener(std::make_shared<MsgListener>([](const std::shared_ptr<Msg> &msg) { ... }));
//     if (detector.connectInterface())
//         detector.busyTransaction(ScanMsgBuilder().scan(true).share(), std::chrono::milliseconds(200));
//
// Finding. connectInterface() opens one serial device after the other and asks for its state. It returns true
// with the first that answers, and that line stays open; or false after the last. Nothing repeats by itself:
// call it again for a detector that is plugged in later, not while one is connected. What was tried and why
// it was not taken are lines for the two callbacks of the constructor. The user needs the right to open the
// line, by the group dialout or a rule of the system. A line is for one connector: a second one, or another
// program, takes bytes away from the first. For two detectors, give each connector a folder with one link.
//
// Talking. The detector says nothing by itself until it is told to scan (SCAN with scan on); then it sends a
// SCAN_RESULT after each of its sweeps. busyTransaction() sends a request and returns the first message that
// comes, whatever it answers, for the line has nothing that ties a reply to its request. While the detector
// scans, that may be a scan; so take what you want to know from a listener, which gets every message.
// MsgType(type).getReplyType() tells what a request makes the detector send. A setting is sent as a message
// with those keys alone that are to change. Tell it to stop (SCAN with scan off) before you leave: it scans
// on otherwise, and the next search may miss it.
//
// Which call blocks, and for how long. connectInterface(): up to 0.1 s for each serial device that does not
// answer, and half a second more for one that takes no bytes. busyTransaction(): up to its time-out for the
// line to take the request, then up to the same time for the reply; a request that the line did not take in
// time gives null at once, and a second caller waits for the first. send(): up to its time-out, 2 s unless
// given. removeListener(): as long as that listener runs on another thread. disconnect() and the destructor:
// up to half a second where the detector has not taken all bytes yet, and as long as a listener takes. All
// others return at once.
//
// Threads. Listeners run on the link's reading thread, one message after the other. A listener may add and
// remove listeners, itself too, and send() without waiting for a reply. It must not call anything else of the
// connector, must not wait, since this very thread would have to bring what it waits for, and must not throw:
// what leaves a listener ends the process. Other threads may make every call. Once removeListener() has
// returned on another thread, the listener is not running and will not run again; so remove it before what it
// refers to goes.
//
// Who ends what. disconnect(), or the end of the connector, lets what is unsent leave, ends the reading
// thread and closes the line. A request on another thread keeps its time-out. Nothing else has to be ended.
//
// A detector that is pulled out shows only in what does not come: isClosed() stays false and requests end in
// their time-outs. A program that has to notice asks for the state now and then, disconnects when no reply
// comes, and searches again.
//
// What is printed. Lines of the log go to standard output, or where Log::setSink sends them. Why a port did
// not open, and what the simulated detector does, goes to standard output in any case.
//
// Without hardware: startTesting() puts a simulated detector in the line's place for busyTransaction(),
// inside the process. It differs: it returns null for what it tells its listeners alone, does not heed the
// time-out, and runs listeners on the caller's thread or on that of its scan, which ends no sooner than its
// pause, up to 5 s. isClosed() stays true. The program uav-vesper-device plays a detector on a line of its
// own, with faults and recordings.

#include "common/defaults.h"
#include "common/history.h"
#include "common/sens-level.h"
#include "common/strongest-signals.h"
#include "level-scale.h"
#include "linux-connector.h"
#include "uavconfdetpojo.h"
