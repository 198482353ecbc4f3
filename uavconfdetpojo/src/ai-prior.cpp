#include "ai-prior.h"

const std::array<_AiPriorEnumBase, 5> AiPriorEnum_values = {{
    {"AUTO", "Автоматический", "Авто"},
    {"DEFAULT", "По умолчанию", "Оптим"},
    {"FIELD", "Поле", "Поле"},
    {"CITY", "Город", "Город"},
    {"NONE", "Нет", "Нет"},
}};
