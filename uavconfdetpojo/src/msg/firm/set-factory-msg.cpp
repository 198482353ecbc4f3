#include "msg/firm/set-factory-msg.h"

#include "define-fields.h"

DEFINE_MESSAGE(SetFactoryMsg, SET_FACTORY_MSG_FIELDS)
