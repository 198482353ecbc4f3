#include "msg/all-messages.h"
#include "object-io.h"

#include "macros-on.h"

#include "msg/message-list.h"

// The reader and the writer of each message. They are all here, so that no client needs the JSON library to
// compile.
#define INSTANTIATE(NAME, since, Message, Request) template class TypedMsg<Message>;
ENUMERATORS(INSTANTIATE)
#undef INSTANTIATE

#include "macros-off.h"
