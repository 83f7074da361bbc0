#include "Workloads.h"

#include "Cases.h"
#include "Floors.h"
#include "Own.h"

#ifdef FIELDKIT_PEERS
#include "Peers.h"
#endif

namespace {

template <std::size_t Arity, Compute Floor, Compute Plain, Compute Kernel>
std::vector<Form> OwnForms() {
    return {MakeForm<Arity, Floor>("floor", Kind::Floor), MakeForm<Arity, Plain>("plain", Kind::Plain),
            MakeForm<Arity, Kernel>("Fieldkit", Kind::Kernel)};
}

template <std::size_t Arity, Compute F>
void AddPeer(Workload& workload, const char* name) {
    workload.forms.push_back(MakeForm<Arity, F>(name, Kind::Peer));
}

} // namespace

std::vector<Workload> AllWorkloads() {
    Workload segments{"segments",
                      "segment x segment",
                      8,
                      2.0,
                      cases::Segments,
                      OwnForms<8, floors::Segments, plain::LineLine<1>, own::LineLine<1>>()};
    Workload lines{
        "lines", "infinite lines", 8,
        1.3,     cases::Segments,  OwnForms<8, floors::Lines, plain::LineLine<0>, own::LineLine<0>>()};
    Workload lineCircle{"line-circle",
                        "line x circle",
                        7,
                        1.3,
                        cases::LineCircle,
                        OwnForms<7, floors::LineCircle, plain::LineCircle, own::LineCircle>()};
    Workload segmentArc{"segment-arc",
                        "segment x arc",
                        10,
                        6.0,
                        cases::SegmentArc,
                        OwnForms<10, floors::SegmentArc, plain::SegmentArc, own::SegmentArc>()};
    Workload circles{"circle-circle",
                     "circle x circle",
                     6,
                     2.0,
                     cases::CircleCircle,
                     OwnForms<6, floors::CircleCircle, plain::CircleCircle, own::CircleCircle>()};
    Workload centre{
        "arc-centre", "arc centre",     5,
        1.2,          cases::ArcCentre, OwnForms<5, floors::ArcCentre, plain::ArcCentre, own::ArcCentre>()};
    Workload bulge{"bulge", "bulge",      7,
                   1.2,     cases::Bulge, OwnForms<7, floors::Bulge, plain::Bulge, own::Bulge>()};
    Workload minor{"tangent-minor",
                   "tangent point, minor arc",
                   6,
                   6.0,
                   cases::MinorArc,
                   OwnForms<6, floors::MinorCorner, plain::Corners, own::Corners>()};
    Workload major{"tangent-major",
                   "tangent points, major arc",
                   6,
                   1.8,
                   cases::MajorArc,
                   OwnForms<6, floors::MajorCorners, plain::Corners, own::Corners>()};
    Workload angle{"angle",
                   "angle into half turns",
                   1,
                   2.5,
                   cases::Angle,
                   OwnForms<1, floors::LimitAngle, plain::LimitAngle, own::LimitAngle>()};

#ifdef FIELDKIT_PEERS
    AddPeer<8, peers::boost_geometry::Segments>(segments, "Boost.Geometry");
    AddPeer<8, peers::eigen::Segments>(segments, "Eigen");
    AddPeer<8, peers::cgal::Segments>(segments, "CGAL");
    AddPeer<8, peers::geos_library::Segments>(segments, "GEOS");
    AddPeer<8, peers::boost_geometry::Lines>(lines, "Boost.Geometry");
    AddPeer<8, peers::eigen::Lines>(lines, "Eigen");
    AddPeer<8, peers::cgal::Lines>(lines, "CGAL");
    AddPeer<8, peers::geos_library::Lines>(lines, "GEOS");
    AddPeer<7, peers::eigen::LineCircle>(lineCircle, "Eigen");
    AddPeer<7, peers::cgal::LineCircle>(lineCircle, "CGAL");
    AddPeer<10, peers::cgal::SegmentArc>(segmentArc, "CGAL");
    AddPeer<6, peers::cgal::CircleCircle>(circles, "CGAL");
    AddPeer<5, peers::eigen::ArcCentre>(centre, "Eigen");
    AddPeer<5, peers::cgal::ArcCentre>(centre, "CGAL");
    AddPeer<6, peers::eigen::Corner>(minor, "Eigen");
    AddPeer<6, peers::cgal::Corner>(minor, "CGAL");
    AddPeer<1, peers::LimitAngleByRemainder>(angle, "libm");
    AddPeer<1, peers::geos_library::LimitAngle>(angle, "GEOS");
#endif

    return {segments, lines, lineCircle, segmentArc, circles, centre, bulge, minor, major, angle};
}
