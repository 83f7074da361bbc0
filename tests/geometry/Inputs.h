// Pseudo-random inputs that come close to the kernel's limits far more often than chance
// would have it. The same numbers on every platform: no library generator, no trigonometry.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

class CInputs {
public:
    explicit CInputs(std::uint64_t seed) : m_State(seed) {}

    unsigned Below(unsigned n) { return static_cast<unsigned>((Next() >> 33) % n); }

    /// -1..1
    double Unit() { return static_cast<double>(Next() >> 11) * 0x1p-52 - 1; }

    /// Often on a small grid, equal to an earlier one, or a tolerance away from it.
    double Coordinate() {
        const double v = MakeCoordinate();
        m_Recent[Below(kRecent)] = v;
        return v;
    }

    /// Often a last digit or two away from the end of some range.
    double Angle() {
        static constexpr double kEnds[] = {3.141592654, 6.283185308, 1.570796327, 3.141592664,
                                           1e-8,        5e-9,        1e-20,       0.0};
        if (Below(3) == 0)
            return 20 * Unit();
        // A statement for each draw: the order within an expression is the compiler's.
        const double turns = static_cast<double>(Below(5)) - 2;
        const double end = kEnds[Below(8)] + 6.283185308 * turns;
        return Nudge(Signed(end));
    }

private:
    static constexpr unsigned kRecent = 4;
    // Not 1, for no coordinate may be a power of two: the run-time library of the ARM compiler
    // takes the difference of a power of two and a number 2^33 times smaller to the wrong
    // neighbour, and quarter turns are full of those.
    static constexpr double kGrid = 0.7;

    std::uint64_t Next() {
        m_State ^= m_State >> 12;
        m_State ^= m_State << 25;
        m_State ^= m_State >> 27;
        return m_State * 0x2545F4914F6CDD1DULL;
    }

    double Signed(double v) { return Below(2) ? v : -v; }

    double Nudge(double v) {
        const double inf = std::numeric_limits<double>::infinity();
        switch (Below(4)) {
        case 0:
            return std::nextafter(v, inf);
        case 1:
            return std::nextafter(v, -inf);
        default:
            return v;
        }
    }

    double MakeCoordinate() {
        static constexpr double kLimits[] = {1e-8, 0.017, 0.35, 1e-12};
        const double recent = m_Recent[Below(kRecent)], limit = Signed(kLimits[Below(4)]);
        switch (Below(8)) {
        case 0:
        case 1:
            return kGrid * (static_cast<double>(Below(9)) - 4);
        case 2:
            return kGrid * (static_cast<double>(Below(33)) - 16) / 4;
        case 3:
            return recent;
        case 4:
            // Without the remnants of rounding, which are powers of two again.
            return std::fabs(recent + limit) < 1e-13 ? 0 : Nudge(recent + limit);
        case 5:
            return Nudge(limit);
        case 6:
            return Below(8) ? 10 * Unit() : 1e3 * Unit();
        default:
            return 10 * Unit();
        }
    }

    std::uint64_t m_State;
    std::array<double, kRecent> m_Recent{};
};
