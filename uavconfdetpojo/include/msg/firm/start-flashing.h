#pragma once

#include "msg/msg.h"

#include <string>

#include "macros-on.h"

/// Begins the loading of a firmware image.
///
/// - `md5File`: MD5 digest of the image, as text
#define FIELDS(FIELD) FIELD(std::string, md5File, Md5File)

MESSAGE(StartFlashing, m_startFlashing, START_FLASHING)

#include "macros-off.h"
