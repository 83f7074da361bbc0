#include "Peers.h"

#include <boost/geometry.hpp>
#include <boost/geometry/algorithms/detail/make/make.hpp>
#include <boost/geometry/arithmetic/infinite_line_functions.hpp>
#include <boost/geometry/geometries/geometries.hpp>

namespace bg = boost::geometry;
using Point = bg::model::d2::point_xy<double>;
using Segment = bg::model::segment<Point>;

namespace peers::boost_geometry {

int Segments(const double* in, double* out) {
    const Segment a({in[0], in[1]}, {in[2], in[3]});
    const Segment b({in[4], in[5]}, {in[6], in[7]});
    bg::model::multi_point<Point> points;
    bg::intersection(a, b, points);
    if (points.empty())
        return 0;
    out[0] = points[0].x();
    out[1] = points[0].y();
    return 1;
}

int Lines(const double* in, double* out) {
    const auto a = bg::detail::make::make_infinite_line<double>(in[0], in[1], in[2], in[3]);
    const auto b = bg::detail::make::make_infinite_line<double>(in[4], in[5], in[6], in[7]);
    Point p;
    if (!bg::arithmetic::intersection_point(a, b, p))
        return 0;
    out[0] = p.x();
    out[1] = p.y();
    return 1;
}

} // namespace peers::boost_geometry
