// Times, memory and the comparison of two works.
#pragma once

#include "testkit/Leftovers.h"

#include <functional>

namespace bench {

/// Milliseconds since some fixed moment.
double Now();

using testkit::HeapBytes;

struct Cost {
    double ms = 0;
    double bytes = 0; ///< Still in use at the end of the work.
};

/// What a work takes once, when it is done that many times.
template <class Work>
Cost Timed(int nTimes, Work work) {
    const double start = Now();
    for (int i = 0; i < nTimes; ++i)
        work();
    return {(Now() - start) / nTimes};
}

struct Pair {
    Cost bare;
    Cost ours;
    double ratio = 0; ///< Of the times, ours to bare.
    double lower = 0; ///< Its quartiles.
    double upper = 0;
};

/// Does both works by turns and takes medians; a round is bare, ours, ours, bare. The ratio is that of
/// works done one directly after the other: what else the computer does falls on both alike.
Pair Compare(int nRounds, const std::function<Cost()>& bare, const std::function<Cost()>& ours);
/// The same, with as many rounds as a second or two has time for.
Pair Compare(const std::function<Cost()>& bare, const std::function<Cost()>& ours);

} // namespace bench
