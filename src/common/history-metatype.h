#pragma once

#include "common/history.h"

#include <QMetaType>

// The documents pass histories on as values.
Q_DECLARE_METATYPE(History)
