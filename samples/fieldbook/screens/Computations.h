/// @file
/// CComputations: the computations, from the questions to the report.
#pragma once

#include "screens/Questions.h"
#include "screens/Report.h"

#include <optional>

/// Each function asks for its inputs, computes, and remembers which points were used. Nothing
/// comes out when the user cancels.
class CComputations {
public:
    /// @param parent, job must outlive the object
    CComputations(CWnd& parent, CJob& job) : m_job(job), m_questions(parent, job) {}

    std::optional<CReport> Lines();
    std::optional<CReport> LineCircle();
    std::optional<CReport> Circles();
    std::optional<CReport> Bearings();
    std::optional<CReport> ArcCentre();
    std::optional<CReport> Curve();
    std::optional<CReport> Inverse();
    /// Of all points; it asks nothing.
    std::optional<CReport> Extent();

private:
    /// The report with the points that were named in the drawing.
    CReport Finish(CReport report);

    CJob& m_job;
    CQuestions m_questions;
};
