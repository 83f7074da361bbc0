// Worked examples of coordinate geometry, in tests/data/geometry, one a line:
//
//   operation | input numbers | tolerance | expected numbers | where the figures come from

#include "geometry/Vector.h"
#include "support/TestData.h"

#include <gtest/gtest.h>

#include <iterator>
#include <map>
#include <sstream>
#include <vector>

namespace {

using Numbers = std::vector<double>;

constexpr double kRadian = 0.017453292519943295; // a degree

CVector At(const Numbers& in, std::size_t i) {
    return CVector(in.at(i), in.at(i + 1));
}

/// The number of points found and the points.
template <class F>
Numbers Found(F call) {
    CVector points[2] = {CVector(0, 0), CVector(0, 0)};
    const int found = call(points[0], points[1]);
    Numbers out{static_cast<double>(found)};
    for (int i = 0; i < found; ++i)
        out.insert(out.end(), {points[i].GetX(), points[i].GetY()});
    return out;
}

template <int bSegment>
Numbers LinesMeet(const Numbers& in) {
    return Found([&](CVector& p, CVector&) {
        return CVector::IntersectLineLine(At(in, 0), At(in, 2), At(in, 4), At(in, 6), p, bSegment);
    });
}

Numbers CirclesMeet(const Numbers& in) {
    return Found([&](CVector& p1, CVector& p2) {
        return CVector::IntersectArcArcInf(At(in, 0), in.at(2), At(in, 3), in.at(5), p1, p2);
    });
}

Numbers LineMeetsCircle(const Numbers& in) {
    return Found([&](CVector& p1, CVector& p2) {
        return CVector::IntersectLineArcInf(At(in, 0), At(in, 2), At(in, 4), in.at(6), p1, p2);
    });
}

Numbers LineMeetsArc(const Numbers& in) {
    return Found([&](CVector& p1, CVector& p2) {
        return CVector::IntersectLineArc(At(in, 0), At(in, 2), At(in, 4), At(in, 6), At(in, 8), p1, p2);
    });
}

Numbers TangentCorners(const Numbers& in) {
    return Found([&](CVector& p1, CVector& p2) {
        int split = 0;
        const int found = CVector::CalcPiOfArc(At(in, 0), At(in, 2), At(in, 4), p1, p2, split);
        return found + (found && split);
    });
}

Numbers Perpendiculars(const Numbers& in) {
    return Found(
        [&](CVector& p, CVector&) { return CVector::TwoPointOneLineRp(At(in, 0), At(in, 2), At(in, 4), p); });
}

Numbers Bulge(const Numbers& in) {
    return {CVector::CalcVertexBulge(At(in, 0), At(in, 2), At(in, 4), static_cast<int>(in.at(6)))};
}

Numbers Centre(const Numbers& in) {
    const CVector c = CVector::CalcArcCenter(At(in, 0), At(in, 2), in.at(4) * kRadian);
    return {c.GetX(), c.GetY()};
}

Numbers Gap(const Numbers& in) {
    return {CVector::CalcAngleDist(in.at(0) * kRadian, in.at(1) * kRadian) / kRadian};
}

template <double (*Fold)(double)>
Numbers Degrees(const Numbers& in) {
    return {Fold(in.at(0) * kRadian) / kRadian};
}

const std::map<std::string, Numbers (*)(const Numbers&)> kOperations = {
    {"lines", LinesMeet<0>},
    {"segments", LinesMeet<1>},
    {"circles", CirclesMeet},
    {"line-circle", LineMeetsCircle},
    {"line-arc", LineMeetsArc},
    {"bulge", Bulge},
    {"centre", Centre},
    {"tangent-corner", TangentCorners},
    {"perpendiculars", Perpendiculars},
    {"gap", Gap},
    {"turn", Degrees<CVector::Range0To360>},
    {"line", Degrees<CVector::RangePM90>},
    {"limited", Degrees<CVector::LimitAngleRange>},
};

class WorkedExamples : public testing::TestWithParam<const char*> {};

/// Up to the next bar.
Numbers NumbersIn(std::istream& line) {
    std::string field;
    std::getline(line, field, '|');
    std::istringstream text(field);
    return {std::istream_iterator<double>(text), {}};
}

TEST_P(WorkedExamples, ComeOutAsWorked) {
    std::ifstream file = testdata::Open(std::string("geometry/") + GetParam() + ".txt");
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        SCOPED_TRACE(line);
        ++count;
        std::istringstream text(line);
        std::string operation;
        text >> operation;
        NumbersIn(text); // there are none behind the name
        const Numbers input = NumbersIn(text), tolerance = NumbersIn(text), expected = NumbersIn(text);
        const Numbers result = kOperations.at(operation)(input);
        ASSERT_EQ(expected.size(), result.size());
        for (std::size_t i = 0; i < result.size(); ++i)
            EXPECT_NEAR(expected[i], result[i], tolerance.at(0));
    }
    EXPECT_GE(count, 10);
}

INSTANTIATE_TEST_SUITE_P(Geometry, WorkedExamples, testing::Values("lines", "circles", "curves", "angles"),
                         [](const auto& file) { return std::string(file.param); });

} // namespace
