// Lines and segments once more, by other means: what becomes of a result, how the cases are mixed and
// where they lie each make another program of the same call. Prints a row for each combination, in
// times over the floor in the same combination, and the worst.
#include "Floors.h"
#include "Form.h"
#include "Own.h"

#ifdef FIELDKIT_PEERS
#include "Peers.h"
#endif

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

namespace {

constexpr std::size_t kArity = 8;
constexpr int kCases = 4096;
constexpr int kPasses = 151;

// --- What becomes of a result -----------------------------------------------------------------

/// Into two doubles that are added up at once.
template <Compute F>
double Locals(const double* cases, double*) {
    double sum = 0;
    for (int i = 0; i < kCases; ++i) {
        double out[2] = {0, 0};
        sum += F(cases + kArity * static_cast<std::size_t>(i), out);
        sum += out[0] + out[1];
    }
    return sum;
}

/// Into the elements of an array; the next call follows at once.
template <Compute F>
double Elements(const double* cases, double* results) {
    int sum = 0;
    for (std::size_t i = 0; i < kCases; ++i)
        sum += F(cases + kArity * i, results + 2 * i);
    return sum;
}

/// The next case waits for this one's result.
template <Compute F>
double Chain(const double* cases, double*) {
    double in[kArity];
    double out[2] = {0, 0};
    int sum = 0;
    for (std::size_t i = 0; i < kCases; ++i) {
        std::copy_n(cases + kArity * i, kArity, in);
        std::uint64_t bits = 0;
        std::memcpy(&bits, out, sizeof bits);
        bits &= 0x8000000000000000; // nothing but a sign is taken over
        double zero = 0;
        std::memcpy(&zero, &bits, sizeof zero);
        in[0] += zero;
        sum += F(in, out);
    }
    return sum;
}

using ContextPass = double (*)(const double*, double*);

struct Contender {
    const char* name;
    ContextPass passes[3];
};

template <Compute F>
constexpr Contender Of(const char* name) {
    return {name, {Locals<F>, Elements<F>, Chain<F>}};
}

constexpr const char* kContexts[] = {"locals", "elements", "chain"};

// --- Cases --------------------------------------------------------------------------------------

enum Mix { Mixed, Sorted, General, Misses };
constexpr const char* kMixes[] = {"mixed", "sorted by outcome", "general", "all miss"};

struct Place {
    const char* name;
    double x;
    double y;
    double size;
    double step; ///< that coordinates are rounded to; 0 for none
};
constexpr Place kPlaces[] = {
    {"site", 0, 0, 100, 0}, {"grid, mm", 512345, 167890, 300, 0.001}, {"unit", 0, 0, 1, 0}};

std::vector<double> MakeCases(Mix mix, const Place& place) {
    std::mt19937_64 engine(11);
    std::uniform_real_distribution<double> part(0, 1);
    std::vector<std::pair<int, std::vector<double>>> cases;
    for (int i = 0; i < kCases; ++i) {
        // Around a crossing: parts before and behind it, for misses both behind.
        const int kind = mix == General ? 0 : mix == Misses ? 1 : static_cast<int>(part(engine) * 20);
        const bool miss = mix == Misses || (kind >= 8 && kind < 14);
        const double ux = part(engine) - 0.5, uy = part(engine) - 0.5;
        double vx = part(engine) - 0.5, vy = part(engine) - 0.5;
        const double cx = part(engine), cy = part(engine);
        const double before = 0.2 + part(engine), behind = miss ? -0.1 : 0.2 + part(engine);
        std::vector<double> c = {cx - ux * before,
                                 cy - uy * before,
                                 cx + ux * behind,
                                 cy + uy * behind,
                                 cx - vx * (0.2 + part(engine)),
                                 cy - vy * (0.2 + part(engine)),
                                 cx + vx * (0.2 + part(engine)),
                                 cy + vy * (0.2 + part(engine))};
        if (mix != General && mix != Misses) {
            if (kind == 14 || kind == 15) // parallel
                c = {cx, cy, cx + ux, cy + uy, cx + vx, cy + vy, cx + vx + ux * 2, cy + vy + uy * 2};
            if (kind == 16 || kind == 17) // parallel to an axis
                c[kind == 16 ? 2 : 3] = c[kind == 16 ? 0 : 1];
            if (kind == 18)
                c[7] = c[5];
            if (kind == 19) // a shared end
                c[4] = c[2], c[5] = c[3];
        }
        for (std::size_t k = 0; k < kArity; ++k) {
            c[k] = c[k] * place.size + (k % 2 == 0 ? place.x : place.y);
            if (place.step != 0)
                c[k] = std::round(c[k] / place.step) * place.step;
        }
        cases.emplace_back(kind, std::move(c));
    }
    if (mix == Sorted)
        std::stable_sort(cases.begin(), cases.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<double> flat;
    for (const auto& [kind, c] : cases)
        flat.insert(flat.end(), c.begin(), c.end());
    return flat;
}

/// A fresh order that the branch predictor cannot know; sorted ones stay.
void Shuffle(std::vector<double>& cases, std::mt19937_64& engine) {
    for (std::size_t i = kCases - 1; i > 0; --i) {
        const std::size_t j = engine() % (i + 1);
        std::swap_ranges(&cases[i * kArity], &cases[i * kArity] + kArity, &cases[j * kArity]);
    }
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

double NanosecondsOf(ContextPass pass, const std::vector<double>& cases, std::vector<double>& results) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const volatile double sum = pass(cases.data(), results.data());
    const std::chrono::duration<double, std::nano> time = Clock::now() - start;
    static_cast<void>(sum);
    return time.count() / kCases;
}

/// One cell: every contender by turns. @return the library's time over the floor
double MeasureCell(const std::vector<Contender>& contenders, int context, Mix mix, const Place& place) {
    std::vector<double> cases = MakeCases(mix, place);
    std::vector<double> results(2 * kCases);
    std::mt19937_64 engine(7);
    std::vector<std::vector<double>> ratios(contenders.size());
    std::vector<double> floors;
    for (int pass = 0; pass < kPasses; ++pass) {
        if (mix != Sorted)
            Shuffle(cases, engine);
        std::vector<double> times;
        for (const Contender& contender : contenders)
            times.push_back(NanosecondsOf(contender.passes[context], cases, results));
        floors.push_back(times[0]);
        for (std::size_t i = 0; i < times.size(); ++i)
            ratios[i].push_back(times[i] / times[0]);
    }
    std::printf("%-9s %-18s %-9s %6.2f", kContexts[context], kMixes[mix], place.name, Median(floors));
    for (std::size_t i = 1; i < contenders.size(); ++i)
        std::printf(" %9.2f", Median(ratios[i]));
    std::printf("\n");
    return Median(ratios[2]);
}

void MeasureAll(const char* name, const std::vector<Contender>& contenders, double goal) {
    std::printf("%s\ncontext   mix                coord.    floor", name);
    for (std::size_t i = 1; i < contenders.size(); ++i)
        std::printf(" %9s", contenders[i].name);
    std::printf("\n");
    double worst = 0;
    for (int context = 0; context < 3; ++context)
        for (const Mix mix : {Mixed, Sorted, General, Misses})
            for (const Place& place : kPlaces)
                worst = std::max(worst, MeasureCell(contenders, context, mix, place));
    std::printf("worst %.2f (goal %.1f)\n\n", worst, goal);
}

} // namespace

int main() {
    std::vector<Contender> segments = {Of<floors::Segments>("floor"), Of<plain::LineLine<1>>("plain"),
                                       Of<own::LineLine<1>>("Fieldkit")};
    std::vector<Contender> lines = {Of<floors::Lines>("floor"), Of<plain::LineLine<0>>("plain"),
                                    Of<own::LineLine<0>>("Fieldkit"), Of<floors::DecidingLines>("deciding")};
#ifdef FIELDKIT_PEERS
    segments.push_back(Of<peers::eigen::Segments>("Eigen"));
    segments.push_back(Of<peers::boost_geometry::Segments>("Boost"));
    lines.push_back(Of<peers::eigen::Lines>("Eigen"));
    lines.push_back(Of<peers::boost_geometry::Lines>("Boost"));
#endif
    MeasureAll("segment x segment", segments, 2.0);
    MeasureAll("infinite lines", lines, 1.5);
    return 0;
}
