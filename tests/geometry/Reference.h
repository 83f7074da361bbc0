// The kernel's formulas written down a second time, plainly and without regard to speed.
// The library has to agree with them to the last bit.
#pragma once

namespace reference {

struct P {
    double x;
    double y;
};

extern double tolerance;

int Double2Int(double value);
double Norm(P v);
P Unit(P v);   // in place
P R_Unit(P v); // returned
P Rotate(P v, double a);
P Normal(P v, int direction);
P Size(P v, double length);
double Angle(P v);
int Equal(P a, P b, double tol);
int IsSameDir(P a, P b, double tol);

double LimitAngleRange(double a);
double Range0To360(double a);
double RangePM90(double a);
double AbsAngle(int turn, double a);
double CalcAngleDist(double a, double b);

int LineLine(P p1, P p2, P p3, P p4, P& out, int bSegment);
int Intersection(P t, P a, P b, P& out, int bInfinite);
int NearerPoint(P p, P a, P b, P& out);
int LineArc(P p1, P p2, P start, P end, P centre, P& out1, P& out2);
int LineArcNearer(P p1, P p2, P start, P end, P centre, P& out);
int LineCircle(P p1, P p2, P centre, double radius, P& out1, P& out2);
int CircleCircle(P c1, double r1, P c2, double r2, P& p1, P& p2);

P ArcCenter(P p1, P p2, double angle);
double VertexBulge(P start, P end, P centre, int ccw);
// The result is -1 where halving the arc would never end.
int PiOfArc(P start, P centre, P end, P& pi1, P& pi2, int& split, int depth = 0);
int TwoPointOneLineRp(P p1, P p2, P dir, P& out);

} // namespace reference
