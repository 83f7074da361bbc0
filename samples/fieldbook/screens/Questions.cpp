#include "screens/Questions.h"

#include "compute/Compute.h"
#include "screens/NameDlg.h"
#include "compute/PackedAngle.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "Tesuvo.h"
#include "screens/Text.h"
#include "dialogs/InputDlg.h"
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
    m_inputs.clear();
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
        TellError(strProblem);
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
    if (!Ask(nQuestionId, put, check))
        return false;
    m_inputs.push_back({nQuestionId, 0, m_lastAnswers[nQuestionId], {}});
    return true;
}

bool CQuestions::PutName(const CString& strQuestion, CString& strName) {
    CNameDlg dialog(strQuestion, Text(m_nTitleId), m_job.history, &m_parent);
    dialog.SetName(strName);
    dialog.OfferPoints(m_job);
    if (dialog.DoModal() != IDOK)
        return false;
    strName = dialog.GetName();
    return true;
}

CString CQuestions::TakePoint(UINT nQuestionId, int nNumber, const CString& strName, CCoordinate& point) {
    const CCoordinate* const pFound = m_job.book.Find(strName);
    if (pFound == nullptr)
        return Text(IDS_UNKNOWN_POINT, strName.GetString());
    if (!HasPosition(*pFound))
        return Text(IDS_POINT_WITHOUT_NE, strName.GetString());
    point = *pFound;
    m_inputs.push_back({nQuestionId, nNumber, strName, point});
    m_points.push_back({strName, point});
    m_job.history.Add(strName);
    return CString();
}

bool CQuestions::AskPoint(UINT nQuestionId, CCoordinate& point) {
    return Ask(
        nQuestionId, [&](CString& strName) { return PutName(Text(nQuestionId), strName); },
        [&](const CString& strName) { return TakePoint(nQuestionId, 0, strName, point); });
}

bool CQuestions::AskCorners(UINT nQuestionId, std::vector<CCoordinate>& corners) {
    constexpr size_t kLeastCorners = 3;
    for (CString strName;;) {
        const int nNumber = static_cast<int>(corners.size()) + 1;
        if (!PutName(Text(nQuestionId, nNumber), strName))
            return false;
        const bool bClosed = strName.IsEmpty() || (!m_points.empty() && strName == m_points.front().strName);
        if (bClosed && corners.size() >= kLeastCorners)
            return true;
        CCoordinate corner;
        const CString strProblem =
            bClosed ? Text(IDS_FEW_CORNERS) : TakePoint(nQuestionId, nNumber, strName, corner);
        if (!strProblem.IsEmpty()) {
            TellError(strProblem);
            continue;
        }
        corners.push_back(corner);
        strName.Empty();
    }
}

bool CQuestions::AskNumber(UINT nQuestionId, double& dNumber) {
    return AskNumber(nQuestionId, [&](const CString& strAnswer) {
        return TVString2Double(&strAnswer, &dNumber) ? CString() : Text(IDS_BAD_NUMBER);
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
