#pragma once

#include "fields.h"

#include <vector>

#define FREQ_LIST_FIELDS(FIELD) FIELD(std::vector<float>, freqs, Freqs)

/// A frequency plan in MHz. Made from a vector it holds the plan but does not count it as present, so that it
/// writes itself with no keys: such plans are only looked at, never sent.
class FreqList {
    NESTED_VALUE_BODY(FreqList, FREQ_LIST_FIELDS)
public:
    FreqList() = default;
    explicit FreqList(std::vector<float> plan)
        : freqs(std::move(plan)) {}
};

class FreqListBuilder {
    BUILDER_BODY(FreqList, m_freqList, FREQ_LIST_FIELDS)
public:
    FreqListBuilder() = default;
    explicit FreqListBuilder(std::vector<float> plan)
        : m_freqList(std::move(plan)) {}
};
