/// @file
/// CQuestions: asks the user for the inputs of the computations, one at a time.
#pragma once

#include <afxwin.h>

#include "PointBook.h"

#include <functional>
#include <map>

/// Each question is a string id. It is asked until the answer is good; the good answer is
/// what it proposes the next time.
///
/// The functions return false when the user cancels.
class CQuestions {
public:
    /// @param parent, book must outlive the object
    CQuestions(CWnd& parent, const CPointBook& book) : m_parent(parent), m_book(book) {}

    /// Begins a round of questions.
    /// @param nTitleId their title, a string id
    void Begin(UINT nTitleId);
    /// The points that were named in this round.
    const std::vector<CString>& GetPointNames() const { return m_pointNames; }

    bool AskPoint(UINT nQuestionId, CCoordinate& point);
    /// @param dRadius more than 0
    bool AskRadius(UINT nQuestionId, double& dRadius);
    /// @param dAngle in radians; the user types d.mmss
    bool AskAngle(UINT nQuestionId, double& dAngle);

private:
    /// Takes an answer over. @return what is wrong with it; empty if it is good
    using Check = std::function<CString(const CString& strAnswer)>;
    /// @param nPanel the soft input panel that is shown with it, see TVShowSIP
    bool Ask(UINT nQuestionId, int nPanel, const Check& check);

    CWnd& m_parent;
    const CPointBook& m_book;
    UINT m_nTitleId = 0;
    std::vector<CString> m_pointNames;
    std::map<UINT, CString> m_lastAnswers; ///< By question.
};
