#include "survey/AngleEdit.h"

#include "Tesuvo.h"
#include "survey/detail/Pi.h"

#include <cmath>
#include <cwchar>
#include <limits>

using fieldkit::survey::kPi;

namespace {

// In tenths of a second.
constexpr int kDegree = 36000;
constexpr int kMinute = 600;

// In units of the packed number's fifth decimal.
constexpr double kPackedDegree = 100000.0;
constexpr int kPackedMinute = 1000;
constexpr int kPackedSecond = 10;

/// Rounds by way of decimal text. Numbers beyond the range count as its ends, and those that
/// have no digits (infinity, NaN) as 0.
int Rounded(double d) {
    static_assert(std::numeric_limits<long>::max() == std::numeric_limits<int>::max(),
                  "the range of the text's conversion is that of the result");
    CString str;
    str.Format(_T("%.0lf"), d);
    return static_cast<int>(std::wcstol(str, nullptr, 10));
}

/// Seconds as a surveyor writes them: 56.7 is 56".7.
CString TenthsText(double dSecond) {
    CString str;
    str.Format(_T("%02.1lf "), dSecond);
    str.Replace(_T('.'), _T('"'));
    const int nTenth = str.GetLength() - 2;
    str.SetAt(nTenth + 1, str[nTenth]);
    str.SetAt(nTenth, _T('.'));
    return str;
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CAngleEdit, CnEdit)
    ON_WM_KILLFOCUS()
    ON_WM_SETFOCUS()
END_MESSAGE_MAP()
// clang-format on

int CAngleEdit::Attach(unsigned int nID, CWnd* pParent, int nMode, unsigned long dwOption) {
    if (!CnEdit::Attach(nID, pParent, dwOption))
        return 0;
    m_nMode = nMode;
    return 1;
}

void CAngleEdit::SetAngle(double dAngle) {
    m_dAngle = dAngle;
    ShowDMS();
}

double CAngleEdit::GetAngle() {
    return m_dAngle;
}

void CAngleEdit::SetConvActive(int nActive) {
    m_nConvActive = nActive;
}

// --- Conversion ------------------------------------------------------------------------------

void CAngleEdit::RadToDMS(double dAngle, int* pDegree, int* pMinute, double* pSecond) {
    const int nSign = dAngle < 0 ? -1 : 1;
    // Rounded once and as a whole, so that minutes and seconds never come to 60.
    const int nTenths = Rounded(std::abs(dAngle) * 3600 * 180 * 10 / kPi);
    *pDegree = nSign * nTenths / kDegree;
    *pMinute = nTenths % kDegree / kMinute;
    *pSecond = nTenths % kMinute / 10.0;
}

double CAngleEdit::DegToRad(double dDegree) {
    const double dSign = dDegree < 0 ? -1.0 : 1.0;
    const int nPacked = Rounded(std::abs(dDegree) * kPackedDegree);
    const int nDegree = nPacked / static_cast<int>(kPackedDegree);
    const int nMinute = nPacked % static_cast<int>(kPackedDegree) / kPackedMinute;
    const int nSecond = nPacked % kPackedMinute / kPackedSecond;
    const int nTenth = nPacked % kPackedSecond;
    // Rounding depends on the order of the steps.
    return dSign * ((((nTenth / 10.0 + nSecond) / 60.0 + nMinute) / 60.0 + nDegree) * kPi / 180.0);
}

double CAngleEdit::RadToDeg(double dAngle) {
    int nDegree = 0;
    int nMinute = 0;
    double dSecond = 0.0;
    RadToDMS(dAngle, &nDegree, &nMinute, &dSecond);
    return nDegree + (nMinute * 100 + dSecond) / 10000;
}

void CAngleEdit::ShowDMS() {
    int nDegree = 0;
    int nMinute = 0;
    double dSecond = 0.0;
    RadToDMS(m_dAngle, &nDegree, &nMinute, &dSecond);
    // The half-width mark U+FF9F serves as degree sign: Japanese fonts show the real one in
    // double width.
    CString str;
    if (ShowsTenths())
        str.Format(_T("%d\uFF9F %d' %s"), nDegree, nMinute, TenthsText(dSecond).GetString());
    else
        str.Format(_T("%d\uFF9F %d' %02.0lf\""), nDegree, nMinute, dSecond);
    SetWindowText(str);
}

// --- Focus -----------------------------------------------------------------------------------

void CAngleEdit::OnSetFocus(CWnd* pOldWnd) {
    CnEdit::OnSetFocus(pOldWnd);
    if (m_nConvActive == 0)
        return;
    int nStart = 0;
    int nEnd = 0;
    GetSel(nStart, nEnd);
    const bool bAllSelected = nStart == 0 && nEnd == GetWindowTextLength(); // by the Tab key
    CString str;
    str.Format(ShowsTenths() ? _T("%.05lf") : _T("%.04lf"), RadToDeg(m_dAngle));
    SetWindowText(str);
    SetSel(bAllSelected ? 0 : str.GetLength(), -1);
}

void CAngleEdit::OnKillFocus(CWnd* pNewWnd) {
    CnEdit::OnKillFocus(pNewWnd);
    if (m_nConvActive == 0)
        return;
    CString str;
    GetWindowText(str);
    double dDegree = 0.0;
    TVString2Double(&str, &dDegree);
    m_dAngle = DegToRad(dDegree);
    ShowDMS();
}
