/// @file
/// Times all forms of a workload against its floor, in one process and one run.
#pragma once

#include "Workloads.h"

/// The middle of many measurements and the quarters on both sides of it.
struct Spread {
    double low;
    double median;
    double high;
};

struct Measurement {
    const Form* form;
    Spread nanoseconds; ///< a case
    Spread ratio;       ///< to the floor's time in the same pass
    /// Whether every result, and everything that was left unwritten, is that of the plain form.
    bool identical;
};

struct Row {
    const Workload* workload;
    std::vector<Measurement> forms; ///< in the workload's order

    const Measurement& Of(Kind kind) const;
    /// nullptr without a peer.
    const Measurement* BestPeer() const;
};

Row Measure(const Workload& workload, int passes);
