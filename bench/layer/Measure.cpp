#include "Measure.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace bench {

namespace {

/// The value below which that part of all values is.
double Quantile(std::vector<double> values, double part) {
    const auto at = values.begin() + std::lround(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
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
    std::vector<Pair> rounds(static_cast<std::size_t>(nRounds));
    for (Pair& round : rounds) {
        round = {bare(), ours(), 0, 0, 0};
        // Once more the other way round: what comes first in a round finds the memory as it was left.
        round.ours.ms = (round.ours.ms + ours().ms) / 2;
        round.bare.ms = (round.bare.ms + bare().ms) / 2;
        round.ratio = round.ours.ms / round.bare.ms;
    }
    const auto quantile = [&rounds](double part, auto value) {
        std::vector<double> values;
        for (const Pair& round : rounds)
            values.push_back(value(round));
        return Quantile(std::move(values), part);
    };
    const auto ratio = [](const Pair& p) { return p.ratio; };
    constexpr double kMedian = 0.5;
    return {{quantile(kMedian, [](const Pair& p) { return p.bare.ms; }),
             quantile(kMedian, [](const Pair& p) { return p.bare.bytes; })},
            {quantile(kMedian, [](const Pair& p) { return p.ours.ms; }),
             quantile(kMedian, [](const Pair& p) { return p.ours.bytes; })},
            quantile(kMedian, ratio),
            quantile(0.25, ratio),
            quantile(0.75, ratio)};
}

Pair Compare(const std::function<Cost()>& bare, const std::function<Cost()>& ours) {
    constexpr double kTime = 1500; // ms
    constexpr double kFewest = 5;
    constexpr double kMost = 251;
    const double start = Now();
    bare();
    ours();
    const double rounds = kTime / (2 * (Now() - start));
    return Compare(static_cast<int>(std::clamp(rounds, kFewest, kMost)), bare, ours);
}

} // namespace bench
