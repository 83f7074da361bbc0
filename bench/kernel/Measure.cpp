#include "Measure.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <random>

namespace {

constexpr int kCases = 2048; // a tenth of the second-level cache at most

using Outcome = std::array<double, kOutputs + 1>;

Outcome OutcomeOf(const Form& form, const double* in) {
    Outcome outcome;
    outcome.fill(-777.25);
    outcome[kOutputs] = form.once(in, outcome.data());
    // A NaN's sign and payload say nothing.
    for (double& v : outcome)
        v = std::isnan(v) ? std::numeric_limits<double>::quiet_NaN() : v;
    return outcome;
}

bool IsIdentical(const Form& a, const Form& b, const std::vector<double>& cases, std::size_t arity) {
    for (std::size_t i = 0; i < cases.size(); i += arity) {
        const Outcome ours = OutcomeOf(a, &cases[i]);
        const Outcome theirs = OutcomeOf(b, &cases[i]);
        if (std::memcmp(&ours, &theirs, sizeof ours) != 0)
            return false;
    }
    return true;
}

double SecondsOf(const Form& form, const std::vector<double>& cases, std::size_t arity) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const volatile int sum = form.pass(cases.data(), cases.size() / arity);
    const auto end = Clock::now();
    static_cast<void>(sum);
    return std::chrono::duration<double>(end - start).count();
}

Spread SpreadOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const auto at = [&](double share) {
        return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1) + 0.5)];
    };
    return {at(0.25), at(0.5), at(0.75)};
}

/// The cases in a new order, so that the branch predictor has nothing to learn by heart.
void Reorder(const std::vector<double>& from, std::size_t arity, std::mt19937_64& engine,
             std::vector<std::size_t>& order, std::vector<double>& to) {
    std::shuffle(order.begin(), order.end(), engine);
    for (std::size_t i = 0; i < order.size(); ++i)
        std::copy_n(&from[order[i] * arity], arity, &to[i * arity]);
}

} // namespace

const Measurement& Row::Of(Kind kind) const {
    return *std::find_if(forms.begin(), forms.end(), [kind](const auto& m) { return m.form->kind == kind; });
}

const Measurement* Row::BestPeer() const {
    const Measurement* best = nullptr;
    for (const Measurement& m : forms) {
        if (m.form->kind == Kind::Peer && (!best || m.ratio.median < best->ratio.median))
            best = &m;
    }
    return best;
}

Row Measure(const Workload& workload, int passes) {
    const std::vector<double> cases = workload.cases(kCases);
    const std::vector<Form>& forms = workload.forms;
    std::vector<double> reordered = cases;
    std::vector<std::size_t> order(kCases);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::vector<std::size_t> turn(forms.size());
    std::iota(turn.begin(), turn.end(), std::size_t{0});
    std::mt19937_64 engine(1);

    std::vector<std::vector<double>> times(forms.size());
    std::vector<std::vector<double>> ratios(forms.size());
    for (int pass = 0; pass < passes; ++pass) {
        Reorder(cases, workload.arity, engine, order, reordered);
        // No form has its place always behind the same other one.
        std::shuffle(turn.begin(), turn.end(), engine);
        for (const std::size_t f : turn)
            times[f].push_back(SecondsOf(forms[f], reordered, workload.arity) * 1e9 / kCases);
        for (std::size_t f = 0; f < forms.size(); ++f)
            ratios[f].push_back(times[f].back() / times[0].back());
    }

    Row row{&workload, {}};
    for (std::size_t f = 0; f < forms.size(); ++f)
        row.forms.push_back({&forms[f], SpreadOf(times[f]), SpreadOf(ratios[f]),
                             IsIdentical(forms[f], forms[1], cases, workload.arity)});
    return row;
}
