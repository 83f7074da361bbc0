#include "Questions.h"

#include "PackedAngle.h"
#include "Resource.h"
#include "Tesuvo.h"
#include "Text.h"
#include "dialogs/InputDlg.h"

namespace {

constexpr int LETTERS = 0;
constexpr int DIGITS = 1;

/// The soft input panel while a question is on the screen: its entry field is a plain one.
class CPanel {
public:
    explicit CPanel(int nMode) { TVShowSIP(nMode); }
    ~CPanel() { TVCloseSIP(); }
    CPanel(const CPanel&) = delete;
    CPanel& operator=(const CPanel&) = delete;
};

INT_PTR RunWithPanel(CDialog& dialog, int nPanel) {
    const CPanel panel(nPanel);
    return dialog.DoModal();
}

} // namespace

void CQuestions::Begin(UINT nTitleId) {
    m_nTitleId = nTitleId;
    m_pointNames.clear();
}

bool CQuestions::Ask(UINT nQuestionId, int nPanel, const Check& check) {
    CString strAnswer = m_lastAnswers[nQuestionId];
    for (;;) {
        CInputDlg dialog(static_cast<int>(nQuestionId), static_cast<int>(m_nTitleId), &m_parent);
        dialog.SetString(strAnswer);
        if (RunWithPanel(dialog, nPanel) != IDOK)
            return false;
        strAnswer = dialog.GetString();
        const CString strProblem = check(strAnswer);
        if (strProblem.IsEmpty())
            break;
        AfxMessageBox(strProblem);
    }
    m_lastAnswers[nQuestionId] = strAnswer;
    return true;
}

bool CQuestions::AskPoint(UINT nQuestionId, CCoordinate& point) {
    return Ask(nQuestionId, LETTERS, [&](const CString& strAnswer) {
        CString strName = strAnswer;
        strName.Remove(L' '); // the names in the book have no blanks either
        const CCoordinate* pFound = m_book.Find(strName);
        if (pFound == nullptr)
            return Text(IDS_UNKNOWN_POINT, strName.GetString());
        point = *pFound;
        m_pointNames.push_back(strName);
        return CString();
    });
}

bool CQuestions::AskRadius(UINT nQuestionId, double& dRadius) {
    return Ask(nQuestionId, DIGITS, [&](const CString& strAnswer) {
        const bool bGood = TVString2Double(&strAnswer, &dRadius) && dRadius > 0;
        return bGood ? CString() : Text(IDS_BAD_RADIUS);
    });
}

bool CQuestions::AskAngle(UINT nQuestionId, double& dAngle) {
    return Ask(nQuestionId, DIGITS, [&](const CString& strAnswer) {
        return ParsePackedAngle(strAnswer, dAngle) ? CString() : Text(IDS_BAD_ANGLE);
    });
}
