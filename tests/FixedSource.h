#pragma once

#include "app/RandomSource.h"

#include <cstddef>
#include <utility>
#include <vector>

/// Brings the same values every time, over and over.
class FixedSource : public RandomSource
{
public:
    explicit FixedSource(std::vector<float> values) : m_values(std::move(values)) {}

    void ReseedFromClock() override { ++reseeds; }
    float Next() override { return m_values.at(draws++ % m_values.size()); }

    std::size_t draws = 0;
    std::size_t reseeds = 0;

private:
    std::vector<float> m_values;
};

/// The value that RandomIndex turns into this index out of so many.
inline float ValueFor(int index, int count)
{
    return (static_cast<float>(index) - 0.5F) / static_cast<float>(count);
}

/// The values for several indexes out of so many.
inline std::vector<float> ValuesFor(const std::vector<int>& indexes, int count)
{
    std::vector<float> values;
    values.reserve(indexes.size());
    for (const int index : indexes) {
        values.push_back(ValueFor(index, count));
    }
    return values;
}
