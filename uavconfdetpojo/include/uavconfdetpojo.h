#pragma once

// The protocol of the Kelvane detectors of drone signals, as a library: what it needs to be read and spoken.
//
// A message is one JSON object on the line. Its key "type" names a type of msg/message-list.h, and each type
// has a class: SCAN_RESULT is a ScanResultMsg, GET_STATE a GetStateMsg. Values of a closed set are
// enumerations with a class that knows their names on the wire: ProtoEnum::K7, Proto(ProtoEnum::K7).name(),
// Proto::getEnumValue("K7").
//
// To receive, feed the bytes as they come to a MessageReader, together with the time, and take messages out
// of it:
//
//     reader.write(bytes, nowMs);
//     while (auto msg = reader.next(nowMs))
//         if (const auto scan = messageCast<ScanResultMsg>(msg))
//             show(scan->getFreqs());
//
// To send, build a message and write its text to the line. A null pointer gives "{}":
//
//     const auto scan = ScanMsgBuilder().scan(true).share();
//     line.write(MsgToJsonParser::toJson(scan));
//
// Or derive your link from SerialInterfaceAdapter, which does both and matches a request with its reply.
//
// Presence. Every key is optional in both directions. A getter gives zero, the first enumerator, an empty
// string, an empty list or a null pointer for a key that was not there, and does not tell the difference. A
// message writes only what a setter, its builder or the reader has set; a remover takes a key out again.
//
// Errors. Reading never throws and knows no error codes: text that is no known message gives null, a value of
// the wrong kind leaves its key absent, and the rest of the message stands. A list of the wrong kind is
// present and empty. What a stream brings beside messages is a line in the log, which Log::setSink sends
// elsewhere. Writing cannot fail; strings go out without escapes, so keep quotes, backslashes and line ends
// out of them.
//
// Memory and threads. Messages have no virtual operations, not even a destructor: make each by
// std::make_shared of its own class and hold it by shared_ptr. Fill a message on one thread; once others have
// it, it is only read, and then from any thread. Tables and writers may be used from any thread. A
// MessageReader belongs to one thread at a time. A SerialInterfaceAdapter calls its listeners on the thread
// that feeds it; they must not wait there for a reply. Numbers are read and written with a decimal point
// whatever the process's locale.

#include "log.h"
#include "message-reader.h"
#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "serial-interface-adapter.h"
