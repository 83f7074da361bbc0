// The bits of the library's results on every platform: a hash for each function over inputs that
// are made up. Whoever changes a result on purpose puts the new hash here.

#include "Inputs.h"
#include "Tolerance.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

class CHash {
public:
    CHash& operator<<(double v) {
        if (std::isnan(v))
            v = std::numeric_limits<double>::quiet_NaN(); // sign and payload differ between processors
        std::uint64_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        m_Value = (m_Value ^ bits) * 1099511628211ULL;
        return *this;
    }
    CHash& operator<<(CVector v) { return *this << v.GetX() << v.GetY(); }
    std::uint64_t Value() const { return m_Value; }

private:
    std::uint64_t m_Value = 14695981039346656037ULL;
};

/// The arguments of one call, and vectors for its results.
struct Arguments {
    CVector p[6];
    double a[3]; ///< angles
    double length;
    int flag;
    CVector out = CVector(kUntouched, kUntouched), out2 = CVector(kUntouched, kUntouched);
};

Arguments Draw(CInputs& inputs) {
    Arguments g;
    for (CVector& p : g.p) {
        p.SetX(inputs.Coordinate());
        p.SetY(inputs.Coordinate());
    }
    // Every other pair of arcs has both ends on one circle, at right angles or opposite.
    if (inputs.Below(2)) {
        const CVector u = g.p[2] - g.p[4];
        const CVector turned[] = {{-u.GetY(), u.GetX()}, {-u.GetX(), -u.GetY()}, {u.GetY(), -u.GetX()}};
        g.p[3] = g.p[4] + turned[inputs.Below(3)];
    }
    for (double& a : g.a)
        a = inputs.Angle();
    g.length = inputs.Coordinate();
    g.flag = static_cast<int>(inputs.Below(3));
    return g;
}

struct Function {
    const char* name;
    void (*run)(CHash&, Arguments&);
    std::uint64_t hash;
    std::uint64_t hashWithFma; ///< 0 where no trigonometry of the C library takes part
};
using H = CHash&;
using A = Arguments&;

const Function kFunctions[] = {
    {"rounding", [](H h, A g) { h << g.p[0].GetIntX() << g.p[0].GetIntY(); }, 6338949153911158821U, 0},
    {"comparing",
     [](H h, A g) {
         h << g.p[0].Equal(g.p[1], g.length) << g.p[0].IsSameDir(g.p[1], 1e-8) << (g.p[0] == g.p[1]);
     },
     11250475791413519013U, 0},
    {"sums",
     [](H h, A g) {
         CVector v = g.p[0];
         v.Add(g.p[1]);
         v.Scalar(g.length);
         v.Subtract(g.p[2]);
         h << v << v.DotProduct(g.p[3]) << (v != g.p[0]);
     },
     2355653507409136598U, 0},
    {"lengths",
     [](H h, A g) {
         h << g.p[0].UNorm() << g.p[0].R_Unit() << g.p[0].R_Size(g.length);
         g.p[1].Size(g.length);
         g.p[2].Unit();
         g.p[3].Normal(CVector::Direction(g.flag));
         h << g.p[1] << g.p[2] << g.p[3];
     },
     17182956087232004760U, 0},
    {"LimitAngleRange", [](H h, A g) { h << CVector::LimitAngleRange(g.a[0]); }, 5672899291520788225U, 0},
    {"Range0To360", [](H h, A g) { h << CVector::Range0To360(g.a[0]); }, 15730342488047087023U, 0},
    {"RangePM90", [](H h, A g) { h << CVector::RangePM90(g.a[0]); }, 1504493282460670678U, 0},
    {"AbsAngle", [](H h, A g) { h << CVector::AbsAngle(g.flag - 1, g.a[0]); }, 1470925242352859138U, 0},
    {"CalcAngleDist", [](H h, A g) { h << CVector::CalcAngleDist(g.a[0], g.a[1]); }, 135010682739319647U, 0},
    {"IntersectLineLine",
     [](H h, A g) {
         h << CVector::IntersectLineLine(g.p[0], g.p[1], g.p[2], g.p[3], g.out, g.flag) << g.out;
     },
     12810780233388937254U, 0},
    {"Intersection", [](H h, A g) { h << g.p[0].Intersection(g.p[1], g.p[2], g.out, g.flag) << g.out; },
     12095901738182998687U, 0},
    {"GetNearerPoint",
     [](H h, A g) {
         double x = kUntouched, y = kUntouched;
         h << CVector::GetNearerPoint(g.p[0].GetX(), g.p[0].GetY(), g.p[1].GetX(), g.p[1].GetY(),
                                      g.p[2].GetX(), g.p[2].GetY(), &x, &y);
         h << x << y;
     },
     13005312895379702463U, 0},
    {"IntersectLineArcInf",
     [](H h, A g) {
         h << CVector::IntersectLineArcInf(g.p[0], g.p[1], g.p[2], g.length, g.out, g.out2);
         h << g.out << g.out2;
     },
     3683950513698281547U, 0},
    {"IntersectArcArcInf",
     [](H h, A g) {
         h << CVector::IntersectArcArcInf(g.p[0], g.length, g.p[1], g.p[2].GetX(), g.out, g.out2);
         h << g.out << g.out2;
     },
     4080539184288071419U, 0},
    {"TwoPointOneLineRp",
     [](H h, A g) { h << CVector::TwoPointOneLineRp(g.p[0], g.p[1], g.p[2], g.out) << g.out; },
     7465973690565878278U, 0},
    {"Angle", [](H h, A g) { h << g.p[0].Angle(); }, 16630337971070552166U, 8205230993029342994U},
    {"Rotate",
     [](H h, A g) {
         g.p[0].Rotate(g.a[0]);
         h << g.p[0];
     },
     18197812432988695731U, 8812068929610864100U},
    {"IntersectLineArc",
     [](H h, A g) {
         h << CVector::IntersectLineArc(g.p[0], g.p[1], g.p[2], g.p[3], g.p[4], g.out, g.out2);
         h << g.out << g.out2;
         h << CVector::IntersectLineArc(g.p[0], g.p[1], g.p[2], g.p[3], g.p[4], g.p[5]) << g.p[5];
     },
     14023229909577675430U, 14023229909577675430U},
    {"CalcArcCenter", [](H h, A g) { h << CVector::CalcArcCenter(g.p[0], g.p[1], g.a[0]); },
     7776535910881113623U, 7776535910881113623U},
    {"CalcVertexBulge", [](H h, A g) { h << CVector::CalcVertexBulge(g.p[0], g.p[1], g.p[2], g.flag); },
     12992945731250967299U, 12992945731250967299U},
    {"CalcPiOfArc",
     [](H h, A g) {
         int split = -9;
         const int found = CVector::CalcPiOfArc(g.p[0], g.p[1], g.p[2], g.out, g.out2, split);
         h << found << split;
         if (found != 0) // how far the points of a full turn get is no matter
             h << g.out << g.out2;
     },
     5178236901637878956U, 18363295112445474674U},
};

/// Tells mathematics libraries apart, and their variants for processors with and without a
/// fused multiply-add: they differ in the last digit now and then.
std::uint64_t MathematicsLibrary() {
    CInputs inputs(1);
    CHash hash;
    for (int i = 0; i < 2000; ++i) {
        const double a = inputs.Angle(), x = inputs.Coordinate();
        hash << std::sin(a) << std::cos(a) << std::tan(a / 4) << std::atan2(a, x);
    }
    return hash.Value();
}

constexpr std::uint64_t kPlain = 6136019339542782932U; // ARM, older PCs
constexpr std::uint64_t kFma = 9210877775690072957U;   // PCs

TEST(BitExactness, ResultsAreTheSameOnEveryPlatform) {
    constexpr double kTolerances[] = {1e-08, 1e-08, 1e-08, 0, 0.35};
    const std::uint64_t library = MathematicsLibrary();
    for (const Function& function : kFunctions) {
        CInputs inputs(0x9E3779B97F4A7C15ULL);
        CHash hash;
        for (int round = 0; round < 20000; ++round) {
            const CToleranceScope tolerance(kTolerances[inputs.Below(5)]);
            Arguments g = Draw(inputs);
            function.run(hash, g);
        }
        const bool bFma = function.hashWithFma != 0 && library == kFma;
        if (function.hashWithFma == 0 || library == kPlain || bFma) {
            EXPECT_EQ((bFma ? function.hashWithFma : function.hash), hash.Value()) << function.name;
        }
    }
    if (library != kPlain && library != kFma)
        GTEST_SKIP() << "no results known for the trigonometry of this library, " << library;
}

} // namespace
