/// @file
/// CReport: what came out of a computation, as data and as a drawing. It becomes text where it is
/// shown.
#pragma once

#include "compute/Compute.h"
#include "plan/Drawing.h"
#include "screens/Settings.h"

#include <afxwin.h>

#include <optional>

/// A line of a result besides its points.
struct CReportLine {
    enum class Unit { None, Length, Direction, Number, Percent, OneIn, Name };

    UINT nTextId; ///< A string id: the whole line, or two blanks between what it is and a place for it.
    Unit unit = Unit::None;
    double dValue = 0; ///< Metres, radians; of OneIn the ratio.
    CString strName{};
};

/// What the user answered.
struct CReportInput {
    UINT nQuestionId; ///< A string id; with a place for the number.
    int nNumber;      ///< Of a question that is asked several times, else 0.
    CString strAnswer;
    std::optional<CCoordinate> point; ///< The point of that name.
};

struct CReport {
    UINT nTitleId = 0;               ///< The computation, a string id.
    UINT nMessageId = 0;             ///< How it ended; with a place for the number of points.
    std::vector<CNamedPoint> points; ///< The solutions, by what they are called.
    std::vector<CReportLine> notes;
    std::vector<CReportInput> inputs; ///< In the order of the questions.
    CDrawing drawing;
};

/// The report of a result: its points, or why there are none. Its drawing has the points only.
/// @param nPointId what a point is called, a string id; several are numbered
CReport MakeReport(UINT nTitleId, UINT nPointId, const CResult& result);
/// A report without points of its own.
CReport MakeReport(UINT nTitleId, const std::vector<CReportLine>& notes);

CString MessageOf(const CReport& report);
CString TextOf(const CReportLine& line, const CSettings& settings);
/// A point as lines: what it is called, N and E.
std::vector<CString> LinesOf(const CNamedPoint& point, const CSettings& settings);
/// All of a report, as it is read in the journal.
std::vector<CString> LinesOf(const CReport& report, const CSettings& settings);
