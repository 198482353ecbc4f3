#pragma once

#include "msg/msg.h"

#include "macros-on.h"

/// The answer to SET_MASK.
#define FIELDS(FIELD) FIELD(bool, mask, Mask)

MESSAGE(MaskResultMsg, m_maskResultMsg, MASK_RESULT)

#include "macros-off.h"
