#include "compute/ValueText.h"

#include "compute/Turn.h"
#include "survey/Coordinate.h"

#include <cmath>

CString DirectionText(double dRadians, bool bTenths) {
    const int nUnits = bTenths ? 10 : 1; // of a second
    const long long nTurn = 360LL * 3600 * nUnits;
    long long nCount = std::llround(dRadians * 180 / kPi * 3600 * nUnits) % nTurn;
    if (nCount < 0)
        nCount += nTurn;
    const auto nSeconds = static_cast<int>(nCount / nUnits);
    CString strText;
    strText.Format(L"%d°%02d'%02d", nSeconds / 3600, nSeconds / 60 % 60, nSeconds % 60);
    if (bTenths)
        strText.AppendFormat(L".%d", static_cast<int>(nCount % nUnits));
    return strText + L"\"";
}

CString LengthText(double dMetres, int nDecimals) {
    CString strText;
    if (dMetres == fieldkit::survey::kNull)
        return strText;
    strText.Format(L"%.*f", nDecimals, dMetres);
    const bool bZero = CString(strText).Trim(L"-0.").IsEmpty();
    return bZero && strText[0] == L'-' ? strText.Mid(1) : strText;
}
