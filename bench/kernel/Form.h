/// @file
/// One way to do a workload's computation, with plain doubles in and plain doubles out.
#pragma once

#include <cstddef>

/// The most doubles that a computation writes: two points and a flag.
inline constexpr std::size_t kOutputs = 5;

/// @return what the computation itself returns, the number of points for most.
using Compute = int (*)(const double* in, double* out);

/// What a form is: the yardstick, the formulas as written down, this library, someone else's.
enum class Kind { Floor, Plain, Kernel, Peer };

struct Form {
    const char* name;
    Kind kind;
    Compute once;
    /// Computes `n` cases that lie one behind the other; the sum keeps the results alive.
    int (*pass)(const double* cases, std::size_t n);
};

/// A direct call for each case: through a pointer every form would cost the same few
/// nanoseconds more, and the ratios would come out too kind.
template <std::size_t Arity, Compute F>
int Pass(const double* cases, std::size_t n) {
    double out[kOutputs] = {};
    int sum = 0;
    for (std::size_t i = 0; i < n; ++i)
        sum += F(cases + i * Arity, out);
    return sum;
}

template <std::size_t Arity, Compute F>
constexpr Form MakeForm(const char* name, Kind kind) {
    return {name, kind, F, Pass<Arity, F>};
}
