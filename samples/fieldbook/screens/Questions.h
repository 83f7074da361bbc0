/// @file
/// CQuestions: asks the user for the inputs of the computations, one at a time.
#pragma once

#include <afxwin.h>

#include "screens/Job.h"
#include "screens/Report.h"

#include <functional>
#include <map>

/// Each question is a string id. It is asked until the answer is good; the good answer is what it
/// proposes the next time.
///
/// The functions return false when the user cancels.
class CQuestions {
public:
    /// @param parent, job must outlive the object
    CQuestions(CWnd& parent, CJob& job) : m_parent(parent), m_job(job) {}

    /// Begins a round of questions.
    /// @param nTitleId their title, a string id
    void Begin(UINT nTitleId);
    /// What was answered in this round.
    const std::vector<CReportInput>& GetInputs() const { return m_inputs; }
    /// The points that were named in this round.
    const std::vector<CNamedPoint>& GetPoints() const { return m_points; }

    /// What a question proposes the next time it is asked.
    void Propose(UINT nQuestionId, const CString& strAnswer) { m_lastAnswers[nQuestionId] = strAnswer; }

    /// @param point has N and E
    bool AskPoint(UINT nQuestionId, CCoordinate& point);
    /// Asks for points, at least three, until an empty answer or the first point again.
    bool AskCorners(UINT nQuestionId, std::vector<CCoordinate>& corners);
    bool AskNumber(UINT nQuestionId, double& dNumber);
    /// @param dRadius more than 0
    bool AskRadius(UINT nQuestionId, double& dRadius);
    /// @param dAngle in radians; the user types d.mmss
    bool AskAngle(UINT nQuestionId, double& dAngle);

private:
    /// Puts a question. @param strAnswer proposed; receives the answer. @return false: cancelled
    using Put = std::function<bool(CString& strAnswer)>;
    /// Takes an answer over. @return what is wrong with it; empty if it is good
    using Check = std::function<CString(const CString& strAnswer)>;
    bool Ask(UINT nQuestionId, const Put& put, const Check& check);
    bool AskNumber(UINT nQuestionId, const Check& check);
    bool PutName(const CString& strQuestion, CString& strName);
    /// Looks a point up and remembers it.
    CString TakePoint(UINT nQuestionId, int nNumber, const CString& strName, CCoordinate& point);

    CWnd& m_parent;
    CJob& m_job;
    UINT m_nTitleId = 0;
    std::vector<CReportInput> m_inputs;
    std::vector<CNamedPoint> m_points;
    std::map<UINT, CString> m_lastAnswers; ///< By question.
};
