#pragma once

#include "fields.h"

#include <vector>

#include "macros-on.h"

#define FIELDS(FIELD) FIELD(std::vector<float>, freqs, Freqs)

/// A frequency plan in MHz. On purpose: the constructor from a vector stores the plan but does not mark it
/// present. Such an object is written without keys. These plans are only read, never sent.
class FreqList : public NestedValue<FreqList> {
    FIELDS_BODY
public:
    FreqList() = default;
    explicit FreqList(std::vector<float> plan)
        : freqs(std::move(plan)) {}
};

class FreqListBuilder {
    BUILDER_BODY(FreqList, m_freqList)
public:
    FreqListBuilder() = default;
    explicit FreqListBuilder(std::vector<float> plan)
        : m_freqList(std::move(plan)) {}
};

#include "macros-off.h"
