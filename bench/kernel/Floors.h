/// @file
/// The floor of each workload: the arithmetic that its formulas cannot do without, for the
/// most frequent kind of case and with no decision taken. Nothing that gives the same bits
/// can be quicker; what a real implementation adds is what deciding costs.
#pragma once

namespace floors {

// Each takes the inputs of its workload, see Cases.h, and writes its result to out.
int Segments(const double* in, double* out);
int Lines(const double* in, double* out);
/// No floor, but the least that decides: Lines with what its formulas depend on, which lines are parallel
/// to an axis and which to each other. It leaves shared ends out.
int DecidingLines(const double* in, double* out);
int LineCircle(const double* in, double* out);
int SegmentArc(const double* in, double* out);
int CircleCircle(const double* in, double* out);
int ArcCentre(const double* in, double* out);
int Bulge(const double* in, double* out);
int MinorCorner(const double* in, double* out);
int MajorCorners(const double* in, double* out);
int LimitAngle(const double* in, double* out);

} // namespace floors
