#pragma once

// Finds a Kelvane detector of drone signals on a serial line of this Linux computer and talks to it, from any
// program. The messages themselves are those of the library beside this one: uavconfdetpojo.h tells of them.
//
//     LinuxConnector connector;
//     connector.addListener(listener);
//     if (connector.connectInterface())
//         connector.busyTransaction(ScanMsgBuilder().scan(true).share(), 200ms);
//
// Finding. connectInterface() opens one serial device after the other and asks for its state. It returns true
// with the first that answers, and that line stays open; or false after the last. Nothing repeats by itself:
// call it again for a detector that is plugged in later. What was tried and why it was not taken are lines
// for the two callbacks of the constructor. The user needs the right to open the line, by the group dialout
// or a rule of the system.
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
// time gives null at once, and a second caller waits for the first. disconnect() and the destructor: up to
// half a second where the detector has not taken all bytes yet, and as long as a listener takes. All others
// return at once.
//
// Threads. Every call may come from any thread but a listener's. Listeners run on the link's reading thread,
// one message after the other. A listener must not wait: not for a reply, which this very thread would have
// to bring, and not for the thread that ends the connection. It must not throw: what leaves a listener ends
// the process. It may add and remove listeners, itself too, and send() without waiting for a reply. Once
// removeListener() has returned on another thread, the listener is not running and will not run again, so
// remove it before what it refers to goes.
//
// Who ends what. disconnect(), or the end of the connector, lets what is unsent leave, ends the reading
// thread and closes the line. A request on another thread keeps its time-out. Nothing else has to be ended.
//
// A detector that is pulled out shows only in what does not come: isClosed() stays false and requests end in
// their time-outs. A program that has to notice asks for the state now and then, disconnects when no reply
// comes, and searches again.
//
// Without hardware: startTesting() puts a simulated detector in the line's place, inside the process. The
// program uav-vesper-device plays one on a line of its own, with faults and recordings.

#include "common/defaults.h"
#include "common/history.h"
#include "common/sens-level.h"
#include "common/strongest-signals.h"
#include "level-scale.h"
#include "linux-connector.h"
#include "uavconfdetpojo.h"
