#include "freq-mode.h"

namespace {

_FreqModeEnumBase range(std::string strValue, int visibleIndex, int minMHz, int maxMHz, int stepMHz,
                        std::string viewName) {
    std::vector<float> plan;
    for (int freq = minMHz; freq <= maxMHz; freq += stepMHz)
        plan.push_back(static_cast<float>(freq));
    return {std::move(strValue),        std::make_shared<FreqList>(plan), visibleIndex,
            static_cast<float>(maxMHz), static_cast<float>(minMHz),       std::move(viewName)};
}

} // namespace

// The standard ranges at 2.4, 4.9 and 5.8 GHz follow the 6 MHz raster of the product, all others 10 MHz.
const std::array<_FreqModeEnumBase, 9> FreqModeEnum_values = {{
    range("STD_1200", 0, 1000, 1680, 10, "1.2"),
    range("EXT_1200", 1, 830, 1730, 10, "1.2+"),
    range("STD_2400", 2, 2400, 2484, 6, "2.4"),
    range("EXT_2400", 3, 2350, 2550, 10, "2.4+"),
    range("STD_4900", 4, 5150, 5354, 6, "4.9"),
    range("EXT_4900", 5, 4800, 5460, 10, "4.9+"),
    range("STD_5800", 6, 5725, 5851, 6, "5.8"),
    range("EXT_5800", 7, 5470, 6100, 10, "5.8+"),
    {"CUSTOM", std::make_shared<FreqList>(), -1, 0, 0, "Заданный"},
}};
