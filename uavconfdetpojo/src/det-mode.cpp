#include "det-mode.h"

const std::array<_DetModeEnumBase, 4> DetModeEnum_values = {{
    {"ECO", "Экономичный", "Экон"},
    {"BASE", "Базовый", "Станд"},
    {"AUTO", "Авто", "Авто"},
    {"CONT", "Непрерывный", "Непр"},
}};
