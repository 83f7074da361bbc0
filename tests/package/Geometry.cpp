// Computes with the geometry alone.
#include "Bits.h"

#include "geometry/Vector.h"

static void Print(const char* pszName, const CVector& p, const CVector& q) {
    Print(pszName, {p.GetX(), p.GetY(), q.GetX(), q.GetY()});
}

int main() {
    CVector p, q;
    CVector::IntersectLineLine(CVector(0.1, 0), CVector(4, 2.7), CVector(0, 3), CVector(6.1, 0.3), p, 0);
    CVector::TwoPointOneLineRp(CVector(0, 0), CVector(7.3, 2.9), CVector(3.1, 8.8), q);
    Print("line and line, foot", p, q);
    CVector::IntersectLineArcInf(CVector(-9, 1.3), CVector(8, -2.1), CVector(0.7, 0.2), 5.5, p, q);
    Print("line and circle", p, q);
    CVector::IntersectArcArcInf(CVector(0, 0), 5.1, CVector(6.3, 1.1), 3.7, p, q);
    Print("two circles", p, q);
    CVector::IntersectLineArc(CVector(-6.1, 2), CVector(6.3, 3.1), CVector(5, 0), CVector(-5, 0),
                              CVector(0, 0), p, q);
    Print("line and arc", p, q);
    Print("unit and normal", CVector(3.3, 4.7).R_Unit(), CVector(3.3, 4.7).R_Normal(CVector::Left));
}
