#include "Measure.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace bench {

namespace {

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

double Now() {
    LARGE_INTEGER frequency;
    LARGE_INTEGER counter;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&counter);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

Pair Compare(int nRounds, const std::function<Cost()>& bare, const std::function<Cost()>& ours) {
    std::vector<Pair> rounds;
    for (int i = 0; i < nRounds; ++i) {
        Pair round = {bare(), ours()};
        round.ratio = round.ours.ms / round.bare.ms;
        rounds.push_back(round);
    }
    const auto median = [&rounds](auto value) {
        std::vector<double> values;
        for (const Pair& round : rounds)
            values.push_back(value(round));
        return Median(std::move(values));
    };
    return {
        {median([](const Pair& p) { return p.bare.ms; }), median([](const Pair& p) { return p.bare.bytes; })},
        {median([](const Pair& p) { return p.ours.ms; }), median([](const Pair& p) { return p.ours.bytes; })},
        median([](const Pair& p) { return p.ratio; })};
}

} // namespace bench
