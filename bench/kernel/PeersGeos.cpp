#include "Peers.h"

#include <geos/algorithm/Angle.h>
#include <geos/algorithm/Intersection.h>
#include <geos/algorithm/LineIntersector.h>
#include <geos/geom/Coordinate.h>

using geos::geom::Coordinate;

namespace peers::geos_library {

int Segments(const double* in, double* out) {
    geos::algorithm::LineIntersector meeting;
    meeting.computeIntersection(Coordinate(in[0], in[1]), Coordinate(in[2], in[3]), Coordinate(in[4], in[5]),
                                Coordinate(in[6], in[7]));
    if (!meeting.hasIntersection())
        return 0;
    const Coordinate& p = meeting.getIntersection(0);
    out[0] = p.x;
    out[1] = p.y;
    return 1;
}

int Lines(const double* in, double* out) {
    const Coordinate p =
        geos::algorithm::Intersection::intersection(Coordinate(in[0], in[1]), Coordinate(in[2], in[3]),
                                                    Coordinate(in[4], in[5]), Coordinate(in[6], in[7]));
    if (p.isNull())
        return 0;
    out[0] = p.x;
    out[1] = p.y;
    return 1;
}

int LimitAngle(const double* in, double* out) {
    out[0] = geos::algorithm::Angle::normalize(in[0]);
    return 0;
}

} // namespace peers::geos_library
