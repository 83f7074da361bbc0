/// @file
/// The plane vector and point, and the kernel's algorithms on it.
#pragma once

#include "geometry/Constants.h"
#include "api/Export.h"

#include <cmath>

/// A plane point or free vector: two doubles, copied by value.
///
/// Coordinates are in the caller's length unit; angles are radians, counter-clockwise
/// from the +x axis. Predicates and flags are `int`, 1 or 0. Nothing here throws or
/// locks. Outputs are written only where the member says so.
class FIELDKIT_API CVector {
public:
    /// The turn of Normal and R_Normal: Left is counter-clockwise. Only the value of
    /// Left is tested; every other value turns clockwise.
    enum Direction : int { Right = 0, Left = 1 };

    /// Leaves both coordinates unset: large arrays of points cost nothing to make.
    CVector() {} // NOLINT: "= default" would make CVector() clear them
    /// @param x,y coordinate units
    CVector(double x, double y) : m_dX(x), m_dY(y) {}
    /// Copies both coordinates, also unset ones.
    ///@{
    CVector(const CVector&) = default;
    CVector& operator=(const CVector&) = default;
    ///@}

    /// Sets one coordinate, in coordinate units.
    ///@{
    void SetX(double x) { m_dX = x; }
    void SetY(double y) { m_dY = y; }
    ///@}
    /// One coordinate, in coordinate units.
    ///@{
    double GetX() const { return m_dX; }
    double GetY() const { return m_dY; }
    ///@}
    /// The coordinates as Double2Int rounds them.
    int GetIntX() const { return Double2Int(m_dX); }
    /// See GetIntX.
    int GetIntY() const { return Double2Int(m_dY); }

    /// Rounds to the nearest integer, halves toward zero (2.5 gives 2, -2.5 gives -2).
    /// @param value beyond the range of int it counts as the end of the range, NaN as 0.
    static inline int Double2Int(double value);

    /// Sets the distance, in coordinate units, below which the line and arc
    /// intersections take coordinates for equal. Starts as 1e-08, holds for the whole
    /// process, and is not checked: zero and negative values are kept as given.
    static void SetTolerance(double tolerance);

    /// Exact comparison, without any tolerance.
    int operator==(CVector v) { return m_dX == v.m_dX && m_dY == v.m_dY; }
    /// The reverse of ==.
    int operator!=(CVector v) { return !(*this == v); }
    /// 1 when each coordinate differs by at most `tol` (a square, not a circle; inclusive).
    int Equal(CVector v, double tol) {
        return std::fabs(m_dX - v.m_dX) <= tol && std::fabs(m_dY - v.m_dY) <= tol;
    }
    /// 1 when the unit vectors of both are Equal within `tol`. A zero vector stays zero,
    /// so two of them count as the same direction.
    inline int IsSameDir(CVector v, double tol);

    /// Adds or subtracts the coordinates of `v`, in place.
    ///@{
    void Add(CVector v) { *this = *this + v; }
    void Subtract(CVector v) { *this = *this - v; }
    ///@}
    /// The sum or the difference as a new vector; this one stays.
    ///@{
    CVector operator+(CVector v) { return CVector(m_dX + v.m_dX, m_dY + v.m_dY); }
    CVector operator-(CVector v) { return CVector(m_dX - v.m_dX, m_dY - v.m_dY); }
    ///@}

    /// Makes the length 1. A vector whose norm is exactly 0 stays as it is.
    inline void Unit();
    /// The unit vector; (0, 0) when the norm is exactly 0.
    inline CVector R_Unit();
    /// Turns by a quarter turn; the length is kept.
    void Normal(Direction d) { *this = R_Normal(d); }
    /// The turned vector; this one stays.
    inline CVector R_Normal(Direction d);
    /// Turns by `a` radians, counter-clockwise when positive.
    void Rotate(double a) { *this = R_Rotate(a); }
    /// The turned vector; this one stays.
    /// @param a radians, counter-clockwise when positive
    CVector R_Rotate(double a) { return Turned(std::cos(a), std::sin(a)); }
    /// Gives the vector the length `len`, backwards when negative. A zero vector stays zero.
    inline void Size(double len);
    /// The resized vector; this one stays.
    /// @param len the wanted length, coordinate units
    inline CVector R_Size(double len);
    /// Multiplies both coordinates by `k`.
    void Scalar(double k) { *this = R_Scalar(k); }
    /// The multiplied vector; this one stays.
    CVector R_Scalar(double k) { return CVector(m_dX * k, m_dY * k); }

    /// The length.
    double UNorm() { return std::sqrt(m_dX * m_dX + m_dY * m_dY); }
    /// The dot product, in squared coordinate units.
    double DotProduct(CVector v) { return m_dX * v.m_dX + m_dY * v.m_dY; }
    /// The direction in -pi..pi; 0 for a vector shorter than 0.017 in both coordinates.
    inline double Angle();

    /// Formats as "( x, y)" with `prec` decimals, padded to 7 characters a number, or
    /// without padding and with six decimals when `prec` is negative.
    /// @return a buffer of the class, which the next call for any vector overwrites. A text
    ///         of more than 1023 characters is cut.
    char* Show(int prec);
    /// The same into the caller's buffer, which must be large enough.
    /// @return `dst`.
    char* Show(char* dst, int prec);

    // ---- Angle ranges. All take and return radians. The result is that of going one step at
    // a time, rounding included, and takes less than a microsecond. An angle that a step does
    // not change, beyond 2^56 (2^55 for half turns) or not finite, comes back as it is.

    /// Into -3.141592664..3.141592664, both ends included.
    static inline double LimitAngleRange(double a);
    /// Into 0..6.283185308, both ends included. Radians, whatever the name says.
    static inline double Range0To360(double a);
    /// Folds a line's direction by half turns into -1.570796327..1.570796327. A positive
    /// angle never ends on the lower bound.
    static inline double RangePM90(double a);
    /// Makes a sweep agree with a turning sense: `turn` 1 gives 0 or more, -1 gives 0 or
    /// less, any other value 0. Below 1e-8 a sweep is 0. One turn at most is added or taken.
    static inline double AbsAngle(int turn, double a);
    /// The smaller gap between two directions, 0..3.141592654. An angle beyond 2^56 or not
    /// finite is no direction, and the result means nothing.
    static inline double CalcAngleDist(double a, double b);

    // ---- Lines.

    /// Intersects the line through (x1, y1), (x2, y2) with that through (x3, y3), (x4, y4).
    ///
    /// Ends shared within the tolerance are found first and count whatever `bSegment` is.
    /// With `bSegment` 0 the lines are unbounded. Otherwise the point has to lie strictly
    /// inside both segments; when one line is parallel to an axis it has to lie in the
    /// second segment's box, its ends included (for a vertical second line: in the x range
    /// of the first and the y range of the second).
    /// @param px,py the point, also when it fails the segment test; untouched for parallels.
    /// @return 1 for an intersection, else 0.
    static int IntersectLineLine(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                                 double y4, double* px, double* py, int bSegment);
    /// The same for points.
    static int IntersectLineLine(CVector p1, CVector p2, CVector p3, CVector p4, CVector& out, int bSegment) {
        return IntersectLineLine(p1.m_dX, p1.m_dY, p2.m_dX, p2.m_dY, p3.m_dX, p3.m_dY, p4.m_dX, p4.m_dY,
                                 &out.m_dX, &out.m_dY, bSegment);
    }

    /// Intersects the line from the origin to this point with the line through `a` and `b`,
    /// to a coarse tolerance of 0.017 in coordinates and slopes.
    /// @param out the point, also when it fails the segment test; untouched for parallels.
    /// @param bInfinite non-zero: unbounded lines; 0: segments. (The reverse of
    ///        IntersectLineLine's flag.)
    /// @return 1 for an intersection, else 0.
    int Intersection(CVector a, CVector b, CVector& out, int bInfinite);

    /// Writes that of A and B which is nearer to (x, y), B when they are equally near.
    /// @return 1 for A, 0 for B.
    static int GetNearerPoint(double x, double y, double ax, double ay, double bx, double by, double* px,
                              double* py);

    // ---- Line and arc. An arc runs counter-clockwise from its start to its end; its radius
    // is the distance of the end from the centre, at which the start need not lie.

    /// Intersects a segment (x1, y1)-(x2, y2) with an arc from (sx, sy) to (ex, ey) about
    /// (cx, cy). Two points come with the larger x first (the larger y on a vertical line).
    /// @return the number of points found and written, 0 to 2; the other outputs stay.
    static int IntersectLineArc(double x1, double y1, double x2, double y2, double sx, double sy, double ex,
                                double ey, double cx, double cy, double* px1, double* py1, double* px2,
                                double* py2);
    /// The same with one result: of two points the one nearer to the point that the outputs
    /// hold on entry, the second when both are equally near.
    /// @return 1 when a point was written, else 0.
    static int IntersectLineArc(double x1, double y1, double x2, double y2, double sx, double sy, double ex,
                                double ey, double cx, double cy, double* px, double* py);
    /// The same for points.
    ///@{
    static int IntersectLineArc(CVector p1, CVector p2, CVector start, CVector end, CVector centre,
                                CVector& out1, CVector& out2) {
        return IntersectLineArc(p1.m_dX, p1.m_dY, p2.m_dX, p2.m_dY, start.m_dX, start.m_dY, end.m_dX,
                                end.m_dY, centre.m_dX, centre.m_dY, &out1.m_dX, &out1.m_dY, &out2.m_dX,
                                &out2.m_dY);
    }
    static int IntersectLineArc(CVector p1, CVector p2, CVector start, CVector end, CVector centre,
                                CVector& out) {
        return IntersectLineArc(p1.m_dX, p1.m_dY, p2.m_dX, p2.m_dY, start.m_dX, start.m_dY, end.m_dX,
                                end.m_dY, centre.m_dX, centre.m_dY, &out.m_dX, &out.m_dY);
        ///@}
    }

    /// Intersects an unbounded line with a whole circle; the order of two points is that of
    /// IntersectLineArc.
    /// @return 2; 1 when the line touches, with the touching point in both outputs; 0 when it
    ///         misses, with nothing written.
    static int IntersectLineArcInf(double x1, double y1, double x2, double y2, double cx, double cy,
                                   double radius, double* px1, double* py1, double* px2, double* py2);
    /// The same for points.
    static int IntersectLineArcInf(CVector p1, CVector p2, CVector centre, double radius, CVector& out1,
                                   CVector& out2) {
        return IntersectLineArcInf(p1.m_dX, p1.m_dY, p2.m_dX, p2.m_dY, centre.m_dX, centre.m_dY, radius,
                                   &out1.m_dX, &out1.m_dY, &out2.m_dX, &out2.m_dY);
    }

    // ---- Two arcs.

    /// Intersects two whole circles. Containment is not screened: for a circle wholly inside
    /// the other the result is 2 with points that are not numbers.
    /// @param p1 the point left of the direction from c1 to c2, or the only point.
    /// @param p2 the point right of it; written for two points only.
    /// @return -1 the same circle, 0 none, 1 touching, 2.
    static int IntersectArcArcInf(CVector c1, double r1, CVector c2, double r2, CVector& p1, CVector& p2) {
        return MeetCircles(c1.m_dX, c1.m_dY, r1, c2.m_dX, c2.m_dY, r2, &p1.m_dX, &p1.m_dY, &p2.m_dX,
                           &p2.m_dY);
    }
    /// Keeps the place of the bounded form: reads and writes nothing, returns 1.
    static int IntersectArcArc(double, double, double, double, double, double, double, double, double, double,
                               double, double, double*, double*);

    // ---- Arc construction.

    /// The centre of the arc over the chord p1-p2.
    /// @param angle central angle, radians; positive when it runs counter-clockwise from p1.
    static CVector CalcArcCenter(CVector p1, CVector p2, double angle) {
        CVector centre;
        CentreOnChord(p1.m_dX, p1.m_dY, p2.m_dX, p2.m_dY, angle, &centre.m_dX, &centre.m_dY);
        return centre;
    }
    /// The bulge tan(sweep / 4) of an arc, negative when clockwise. Ends in the same
    /// direction from the centre give 0, never a full circle.
    /// @param ccw 0: clockwise from start to end; else counter-clockwise.
    static double CalcVertexBulge(CVector start, CVector end, CVector centre, int ccw);
    /// The point where the tangents at the ends of a counter-clockwise arc meet. An arc of
    /// half a turn or more is halved first and gives a point for each half. (Mind the order
    /// of the arguments: start, centre, end.)
    /// @param split always written: 1 when the arc was halved, else 0.
    /// @param pi1 the point, or that of the first half.
    /// @param pi2 that of the second half; untouched when the arc was not halved.
    /// @return 1 when found; 0 when the tangents are parallel or a half needs halving again
    ///         (a full turn). The points mean nothing then.
    static int CalcPiOfArc(CVector start, CVector centre, CVector end, CVector& pi1, CVector& pi2,
                           int& split) {
        return TangentCorners(start.m_dX, start.m_dY, centre.m_dX, centre.m_dY, end.m_dX, end.m_dY, &pi1.m_dX,
                              &pi1.m_dY, &pi2.m_dX, &pi2.m_dY, &split);
    }
    /// Where the perpendicular to `dir` through p1 meets the perpendicular to p1-p2 that
    /// stands half its length beyond p2.
    /// @param out always written; (0, 0) for parallels.
    /// @return 1 when found, 0 for parallels.
    static int TwoPointOneLineRp(CVector p1, CVector p2, CVector dir, CVector& out);

private:
    CVector Turned(double cosine, double sine) {
        return CVector(m_dX * cosine - m_dY * sine, m_dX * sine + m_dY * cosine);
    }
    static inline double TwoSteps(double a, double limit, const double (&steps)[4]);
    static inline double StepIfAgainst(double a, double step);
    static double StepToLimit(double a);
    static double StepTo360(double a);
    static double StepToPM90(double a);

    // Points cross the library's border as single doubles: a pair of doubles passed by value
    // is stored in halves and loaded as a whole, which costs more than the arithmetic.
    static int MeetCircles(double x1, double y1, double r1, double x2, double y2, double r2, double* px1,
                           double* py1, double* px2, double* py2);
    static void CentreOnChord(double x1, double y1, double x2, double y2, double angle, double* px,
                              double* py);
    static int TangentCorners(double sx, double sy, double cx, double cy, double ex, double ey, double* px1,
                              double* py1, double* px2, double* py2, int* split);

    double m_dX;
    double m_dY;

    static double m_dTolerance;
};

#include "geometry/VectorInline.h"
