#include "screens/Questions.h"

#include "compute/Compute.h"
#include "screens/NameDlg.h"
#include "compute/PackedAngle.h"
#include "screens/Resource.h"
#include "Tesuvo.h"
#include "screens/Text.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "resources/ResourceIds.h"

namespace {

/// The soft input panel with its digits: the entry field of the dialog is a plain one.
class CDigitPanel {
public:
    CDigitPanel() {
        constexpr int kDigits = 1;
        TVShowSIP(kDigits);
    }
    ~CDigitPanel() { TVCloseSIP(); }
    CDigitPanel(const CDigitPanel&) = delete;
    CDigitPanel& operator=(const CDigitPanel&) = delete;
};

/// What is proposed is selected: typing replaces it.
class CNumberDlg : public CInputDlg {
public:
    using CInputDlg::CInputDlg;

protected:
    BOOL OnInitDialog() override {
        CInputDlg::OnInitDialog();
        SendDlgItemMessage(IDC_FK_INPUT_VALUE, EM_SETSEL, 0, -1);
        return FALSE;
    }
};

} // namespace

void CQuestions::Begin(UINT nTitleId) {
    m_nTitleId = nTitleId;
    m_points.clear();
}

bool CQuestions::Ask(UINT nQuestionId, const Put& put, const Check& check) {
    CString strAnswer = m_lastAnswers[nQuestionId];
    for (;;) {
        if (!put(strAnswer))
            return false;
        const CString strProblem = check(strAnswer);
        if (strProblem.IsEmpty())
            break;
        CResMsgBox().ErrorMsgBox(strProblem);
    }
    m_lastAnswers[nQuestionId] = strAnswer;
    return true;
}

bool CQuestions::AskNumber(UINT nQuestionId, const Check& check) {
    const auto put = [&](CString& strAnswer) {
        CNumberDlg dialog(static_cast<int>(nQuestionId), static_cast<int>(m_nTitleId), &m_parent);
        dialog.SetString(strAnswer);
        const CDigitPanel panel;
        if (dialog.DoModal() != IDOK)
            return false;
        strAnswer = dialog.GetString();
        return true;
    };
    return Ask(nQuestionId, put, check);
}

bool CQuestions::AskPoint(UINT nQuestionId, CCoordinate& point) {
    const auto put = [&](CString& strName) {
        CNameDlg dialog(Text(nQuestionId), Text(m_nTitleId), m_job.history, &m_parent);
        dialog.SetName(strName);
        dialog.OfferPoints(m_job);
        if (dialog.DoModal() != IDOK)
            return false;
        strName = dialog.GetName();
        return true;
    };
    return Ask(nQuestionId, put, [&](const CString& strName) {
        const CCoordinate* const pFound = m_job.book.Find(strName);
        if (pFound == nullptr)
            return Text(IDS_UNKNOWN_POINT, strName.GetString());
        if (!HasPosition(*pFound))
            return Text(IDS_POINT_WITHOUT_NE, strName.GetString());
        point = *pFound;
        m_points.push_back({strName, point});
        m_job.history.Add(strName);
        return CString();
    });
}

bool CQuestions::AskRadius(UINT nQuestionId, double& dRadius) {
    return AskNumber(nQuestionId, [&](const CString& strAnswer) {
        const bool bGood = TVString2Double(&strAnswer, &dRadius) && dRadius > 0;
        return bGood ? CString() : Text(IDS_BAD_RADIUS);
    });
}

bool CQuestions::AskAngle(UINT nQuestionId, double& dAngle) {
    return AskNumber(nQuestionId, [&](const CString& strAnswer) {
        return AngleProblem(ParsePackedAngle(strAnswer, dAngle));
    });
}
