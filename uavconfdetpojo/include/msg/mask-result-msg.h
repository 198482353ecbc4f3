#pragma once

#include "msg/msg.h"

/// The answer to SET_MASK.
#define MASK_RESULT_MSG_FIELDS(FIELD) FIELD(bool, mask, Mask)

MESSAGE(MaskResultMsg, m_maskResultMsg, MASK_RESULT, MASK_RESULT_MSG_FIELDS)
