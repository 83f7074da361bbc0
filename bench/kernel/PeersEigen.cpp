#include "Peers.h"

#include <Eigen/Dense>

#include <cmath>

using Eigen::Vector2d;
using Plane = Eigen::Hyperplane<double, 2>;
using Line = Eigen::ParametrizedLine<double, 2>;

namespace {

int Store(const Vector2d& p, double* out) {
    out[0] = p.x();
    out[1] = p.y();
    return 1;
}

} // namespace

namespace peers::eigen {

int Segments(const double* in, double* out) {
    const Vector2d a(in[0], in[1]);
    const Vector2d d(in[2] - in[0], in[3] - in[1]);
    const Vector2d b(in[4], in[5]);
    const Vector2d e(in[6] - in[4], in[7] - in[5]);
    Eigen::Matrix2d m;
    m << d, -e;
    const double turn = m.determinant();
    if (std::fabs(turn) < 1e-8)
        return 0;
    const Vector2d t = m.inverse() * (b - a);
    if ((t.array() < 0).any() || (t.array() > 1).any())
        return 0;
    return Store(a + t.x() * d, out);
}

int Lines(const double* in, double* out) {
    const Plane a = Plane::Through(Vector2d(in[0], in[1]), Vector2d(in[2], in[3]));
    const Plane b = Plane::Through(Vector2d(in[4], in[5]), Vector2d(in[6], in[7]));
    if (std::fabs(a.normal().x() * b.normal().y() - a.normal().y() * b.normal().x()) < 1e-8)
        return 0;
    return Store(a.intersection(b), out);
}

int LineCircle(const double* in, double* out) {
    const Line line = Line::Through(Vector2d(in[0], in[1]), Vector2d(in[2], in[3]));
    const Vector2d centre(in[4], in[5]);
    const Vector2d foot = line.projection(centre);
    const double square = in[6] * in[6] - (foot - centre).squaredNorm();
    if (std::fabs(square) < 1e-8)
        return Store(foot, out);
    if (square < 0)
        return 0;
    const Vector2d half = std::sqrt(square) * line.direction();
    Store(foot + half, out);
    Store(foot - half, out + 2);
    return 2;
}

int ArcCentre(const double* in, double* out) {
    // The rotation about the centre takes the chord's start to its end.
    const Eigen::Matrix2d turn = Eigen::Rotation2Dd(in[4]).toRotationMatrix();
    const Vector2d from(in[0], in[1]);
    const Vector2d to(in[2], in[3]);
    const Eigen::Matrix2d rest = Eigen::Matrix2d::Identity() - turn;
    Store(rest.inverse() * (to - turn * from), out);
    return 0;
}

int Corner(const double* in, double* out) {
    const Vector2d centre(in[2], in[3]);
    const Vector2d start(in[0], in[1]);
    const Vector2d end(in[4], in[5]);
    const Plane a((start - centre).normalized(), start);
    const Plane b((end - centre).normalized(), end);
    return Store(a.intersection(b), out);
}

} // namespace peers::eigen
