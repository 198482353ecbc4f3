#include "msg/all-messages.h"
#include "object-io.h"

#include "macros-on.h"

#include "msg/message-list.h"

// The reader and the writer of each message, in one place so that no client needs the JSON library for them.
#define INSTANTIATE(NAME, since, Message, Request) template class TypedMsg<Message>;
ENUMERATORS(INSTANTIATE)
#undef INSTANTIATE

#include "macros-off.h"
