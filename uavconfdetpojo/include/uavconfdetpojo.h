#pragma once

// This library reads and writes the protocol of the Kelvane detectors of drone signals.
//
// A message is one JSON object on the line. Its key "type" names one of the types in msg/message-list.h. Each
// type has a class: SCAN_RESULT is a ScanResultMsg, GET_STATE a GetStateMsg. A value of a closed set is an
// enumerator, and a class knows its wire name, the text in the protocol: ProtoEnum::K7,
// Proto(ProtoEnum::K7).name(), Proto::getEnumValue("K7").
//
// To receive, give the bytes as they come to a MessageReader, with the time, and take messages out of it:
//
//     reader.write(bytes, nowMs);
//     while (auto msg = reader.next(nowMs))
//         if (const auto scan = messageCast<ScanResultMsg>(msg))
//             show(scan->getFreqs());
//
// To send, build a message and write its text to the line:
//
//     const auto scan = ScanMsgBuilder().scan(true).share();
//     line.write(MsgToJsonParser::toJson(scan));
//
// Or derive your link from SerialInterfaceAdapter. It does both and matches a request with its reply.
//
// Presence. Every key is optional in both directions. For a key that was not there, a getter returns zero,
// the first enumerator, an empty string, an empty list or a null pointer. A getter does not show the
// difference. A message writes only the keys that a setter, its builder or the reader has set. A remover
// takes a key out again.
//
// Errors. Reading never throws, and there are no error codes. A text that is no known message gives null. If
// a value is of the wrong kind, its key stays absent, and the other keys are still read. Only a list of the
// wrong kind is present and empty. For an object in a stream that is no message, the log gets a line. The log
// goes to standard output, or to the function that is given to Log::setSink. Writing cannot fail. Strings are
// written without escapes, so they must not contain quotes, backslashes or line ends.
//
// Memory and threads. Messages have no virtual operations, not even a destructor. So make each message with
// std::make_shared of its own class and keep it in a shared_ptr. Fill a message on one thread. Do not change
// it any more when others have it; any thread may read it. Tables and writers may be used from any thread.
// Only one thread at a time may use a MessageReader. A SerialInterfaceAdapter calls its listeners on the
// thread that feeds it; they must not wait there for a reply. Numbers are read and written with a decimal
// point in every locale.

#include "log.h"
#include "message-reader.h"
#include "msg-to-json-parser.h"
#include "msg/all-messages.h"
#include "serial-interface-adapter.h"
