// The kernel's formulas written down a second time, plainly and without regard to speed.
// The library has to agree with them to the last bit.
#pragma once

namespace reference {

struct P {
    double x;
    double y;
};

extern double tolerance;

double Angle(P v);

double LimitAngleRange(double a);
double Range0To360(double a);
double RangePM90(double a);
double AbsAngle(int turn, double a);

int LineLine(P p1, P p2, P p3, P p4, P& out, int bSegment);
int LineArc(P p1, P p2, P start, P end, P centre, P& out1, P& out2);
int LineCircle(P p1, P p2, P centre, double radius, P& out1, P& out2);
int CircleCircle(P c1, double r1, P c2, double r2, P& p1, P& p2);

P ArcCenter(P p1, P p2, double angle);
double VertexBulge(P start, P end, P centre, int ccw);
// The result is -1 where halving the arc would never end.
int PiOfArc(P start, P centre, P end, P& pi1, P& pi2, int& split, int depth = 0);

} // namespace reference
