#include "points/PointOrder.h"

#include <algorithm>
#include <numeric>

namespace {

bool IsBefore(const CNamedPoint& a, const CNamedPoint& b, PointColumn column) {
    switch (column) {
    case PointColumn::N:
        return a.point.GetN() < b.point.GetN();
    case PointColumn::E:
        return a.point.GetE() < b.point.GetE();
    case PointColumn::Z:
        // A missing height is a number, too, but none to compare with.
        return a.point.IsExistZ() && (!b.point.IsExistZ() || a.point.GetZ() < b.point.GetZ());
    default:
        return a.strName < b.strName;
    }
}

} // namespace

std::vector<size_t> OrderPoints(const std::vector<CNamedPoint>& points, PointColumn column) {
    std::vector<size_t> order(points.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t a, size_t b) { return IsBefore(points[a], points[b], column); });
    return order;
}
