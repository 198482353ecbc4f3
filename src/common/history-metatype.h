#pragma once

#include "common/history.h"

#include <QMetaType>

// Histories pass through the declarative layer as values.
Q_DECLARE_METATYPE(History)
