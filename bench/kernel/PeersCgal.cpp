#include "Peers.h"

#include <CGAL/Algebraic_kernel_for_circles_2_2.h>
#include <CGAL/Circular_kernel_2.h>
#include <CGAL/Circular_kernel_intersections.h>
#include <CGAL/Simple_cartesian.h>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

// Doubles all the way: the exact kernels take thousands of times as long.
using Flat = CGAL::Simple_cartesian<double>;
using Round = CGAL::Circular_kernel_2<Flat, CGAL::Algebraic_kernel_for_circles_2_2<double>>;
using RoundPoint = std::pair<Round::Circular_arc_point_2, unsigned>;

int Store(const Flat::Point_2& p, double* out) {
    out[0] = p.x();
    out[1] = p.y();
    return 1;
}

template <class Meeting>
int StoreIfPoint(const Meeting& meeting, double* out) {
    if (!meeting)
        return 0;
    const Flat::Point_2* p = boost::get<Flat::Point_2>(&*meeting);
    return p ? Store(*p, out) : 0;
}

template <class A, class B>
int RoundMeeting(const A& a, const B& b, double* out) {
    std::vector<typename CGAL::CK2_Intersection_traits<Round, A, B>::type> found;
    CGAL::intersection(a, b, std::back_inserter(found));
    int points = 0;
    for (const auto& one : found) {
        if (const RoundPoint* p = boost::get<RoundPoint>(&one)) {
            out[2 * points] = p->first.x();
            out[2 * points + 1] = p->first.y();
            ++points;
        }
    }
    return points;
}

Round::Circle_2 CircleOf(double x, double y, double squaredRadius) {
    return Round::Circle_2(Round::Point_2(x, y), squaredRadius);
}

} // namespace

namespace peers::cgal {

int Segments(const double* in, double* out) {
    const Flat::Segment_2 a(Flat::Point_2(in[0], in[1]), Flat::Point_2(in[2], in[3]));
    const Flat::Segment_2 b(Flat::Point_2(in[4], in[5]), Flat::Point_2(in[6], in[7]));
    return StoreIfPoint(CGAL::intersection(a, b), out);
}

int Lines(const double* in, double* out) {
    const Flat::Line_2 a(Flat::Point_2(in[0], in[1]), Flat::Point_2(in[2], in[3]));
    const Flat::Line_2 b(Flat::Point_2(in[4], in[5]), Flat::Point_2(in[6], in[7]));
    return StoreIfPoint(CGAL::intersection(a, b), out);
}

int LineCircle(const double* in, double* out) {
    const Round::Line_2 line(Round::Point_2(in[0], in[1]), Round::Point_2(in[2], in[3]));
    return RoundMeeting(line, CircleOf(in[4], in[5], in[6] * in[6]), out);
}

int SegmentArc(const double* in, double* out) {
    const double wx = in[6] - in[8];
    const double wy = in[7] - in[9];
    const Round::Line_arc_2 segment(Round::Point_2(in[0], in[1]), Round::Point_2(in[2], in[3]));
    const Round::Circular_arc_2 arc(CircleOf(in[8], in[9], wx * wx + wy * wy),
                                    Round::Circular_arc_point_2(Round::Point_2(in[4], in[5])),
                                    Round::Circular_arc_point_2(Round::Point_2(in[6], in[7])));
    return RoundMeeting(segment, arc, out);
}

int CircleCircle(const double* in, double* out) {
    return RoundMeeting(CircleOf(in[0], in[1], in[2] * in[2]), CircleOf(in[3], in[4], in[5] * in[5]), out);
}

int ArcCentre(const double* in, double* out) {
    const Flat::Point_2 from(in[0], in[1]);
    const Flat::Point_2 to(in[2], in[3]);
    // The arc bulges to the right of its chord by this share of half the chord.
    const double bulge = std::tan(in[4] / 4);
    const Flat::Vector_2 half = (to - from) / 2;
    const Flat::Point_2 middle = from + half + half.perpendicular(CGAL::CLOCKWISE) * bulge;
    Store(CGAL::circumcenter(from, middle, to), out);
    return 0;
}

int Corner(const double* in, double* out) {
    const Flat::Point_2 centre(in[2], in[3]);
    const Flat::Point_2 start(in[0], in[1]);
    const Flat::Point_2 end(in[4], in[5]);
    const Flat::Line_2 a(start, (start - centre).perpendicular(CGAL::COUNTERCLOCKWISE));
    const Flat::Line_2 b(end, (end - centre).perpendicular(CGAL::COUNTERCLOCKWISE));
    return StoreIfPoint(CGAL::intersection(a, b), out);
}

} // namespace peers::cgal
