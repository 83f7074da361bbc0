#include "plan/PlanPick.h"

#include <cmath>

std::optional<size_t> NearestPoint(const CDrawing& drawing, const CPlanScale& scale, CPoint tap, int nReach) {
    double dNearest = nReach;
    std::optional<size_t> found;
    for (size_t i = 0; i < drawing.GetPoints().size(); ++i) {
        const CVector pixel = scale.ToPixel(drawing.GetPoints()[i].point);
        const double dAway = std::hypot(pixel.GetX() - tap.x, pixel.GetY() - tap.y);
        if (dAway < dNearest) {
            dNearest = dAway;
            found = i;
        }
    }
    return found;
}
