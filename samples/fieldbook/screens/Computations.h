/// @file
/// CComputations: the computations, from the questions to the report.
#pragma once

#include "compute/Figure.h"
#include "screens/Questions.h"
#include "screens/Report.h"

#include <optional>

/// Each function asks for its inputs, computes, and remembers which points were used. Nothing
/// comes out when the user cancels.
class CComputations {
public:
    /// @param parent, job must outlive the object
    CComputations(CWnd& parent, CJob& job) : m_parent(parent), m_job(job), m_questions(parent, job) {}

    std::optional<CReport> Lines();
    std::optional<CReport> LineCircle();
    std::optional<CReport> Circles();
    std::optional<CReport> Bearings();
    /// The intersections of two figures of any kind.
    std::optional<CReport> Combined();
    std::optional<CReport> Foot();
    std::optional<CReport> ArcCentre();
    std::optional<CReport> Curve();
    std::optional<CReport> Inverse();
    /// Of all points; it asks nothing.
    std::optional<CReport> Extent();
    std::optional<CReport> Area();

private:
    /// How a line or a circle is given: by two points, by a point and a direction, beside a line.
    enum class Figure { Line, Sight, Parallel, Circle };
    static constexpr UINT kFigureCount = static_cast<UINT>(Figure::Circle) + 1;
    struct CAskedFigure {
        CFigure figure;
        CString strFrom{};                  ///< Of a sight.
        std::optional<double> dDirection{}; ///< Of a sight.
    };

    std::optional<Figure> ChooseFigure(UINT nTitleId);
    /// @param nWhich 0 for the only figure of its kind, else 1 or 2
    bool AskFigure(Figure kind, UINT nWhich, CAskedFigure& asked);
    std::optional<CReport> Intersection(UINT nTitleId, Figure first, Figure second);
    /// The report with the points that were named in the drawing.
    CReport Finish(CReport report);

    CWnd& m_parent;
    CJob& m_job;
    CQuestions m_questions;
};
