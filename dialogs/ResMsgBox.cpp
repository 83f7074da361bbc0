#include "dialogs/ResMsgBox.h"

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

#include <algorithm>

namespace {

constexpr UINT ERROR_TYPE = MB_OK | MB_ICONERROR;
constexpr UINT WARNING_TYPE = MB_YESNO | MB_ICONEXCLAMATION;
constexpr UINT INFORMATION_TYPE = MB_OK | MB_ICONINFORMATION;

/// Pixels of a message box beside its text: the icon, margins and frame.
constexpr int AROUND_TEXT = 76;

CString TextOf(unsigned int nId) {
    return LoadText(static_cast<int>(nId));
}

/// The screen with the font of the system's message boxes.
class MessageDC : public CWindowDC {
public:
    MessageDC() : CWindowDC(nullptr) {
        NONCLIENTMETRICS metrics = {};
        metrics.cbSize = sizeof metrics;
        ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0);
        m_font.CreateFontIndirect(&metrics.lfMessageFont);
        m_pOldFont = SelectObject(&m_font);
    }
    ~MessageDC() override { SelectObject(m_pOldFont); }

private:
    CFont m_font;
    CFont* m_pOldFont;
};

/// Whether a line must not begin with a character: half of one, a mark on the one before, or
/// the end of a sentence.
bool IsAttached(wchar_t ch) {
    WORD wType = 0;
    ::GetStringTypeW(CT_CTYPE3, &ch, 1, &wType);
    return IS_LOW_SURROGATE(ch) || (wType & C3_NONSPACING) != 0 || CString(L"、。？").Find(ch) >= 0;
}

/// How much of a line fits into the width: if not all, then up to a blank or any character.
int FittingLength(const CDC& dc, const CString& strLine, int nWidth) {
    int nFit = 0;
    CSize size;
    ::GetTextExtentExPoint(dc.m_hDC, strLine, strLine.GetLength(), nWidth, &nFit, nullptr, &size);
    if (nFit >= strLine.GetLength())
        return strLine.GetLength();
    if (const int nBlank = strLine.Left(nFit).ReverseFind(L' '); nBlank > 0)
        return nBlank + 1;
    while (nFit > 1 && IsAttached(strLine[nFit]))
        --nFit;
    return std::max(nFit, 1);
}

void AppendLine(CString& strText, const CDC& dc, CString strLine, int nWidth) {
    for (;;) {
        const int nFit = FittingLength(dc, strLine, nWidth);
        strText += strLine.Left(nFit);
        if (nFit == strLine.GetLength())
            return;
        strText += L'\n';
        strLine = strLine.Mid(nFit);
    }
}

/// Breaks lines that are too long for the screen. Not every system does that with a long name,
/// and of a box that is wider than a small screen only the middle is seen.
CString FitToScreen(const CString& strText) {
    const MessageDC dc;
    const int nWidth = ::GetSystemMetrics(SM_CXSCREEN) - AROUND_TEXT;
    CString strResult;
    int nStart = 0;
    for (int nEnd; (nEnd = strText.Find(L'\n', nStart)) >= 0; nStart = nEnd + 1) {
        AppendLine(strResult, dc, strText.Mid(nStart, nEnd - nStart), nWidth);
        strResult += L'\n';
    }
    AppendLine(strResult, dc, strText.Mid(nStart), nWidth);
    return strResult;
}

} // namespace

// Out of line, so that the library exports them.
CResMsgBox::CResMsgBox() = default;
CResMsgBox::CResMsgBox(const CResMsgBox&) = default;
CResMsgBox& CResMsgBox::operator=(const CResMsgBox&) = default;
CResMsgBox::~CResMsgBox() = default;

// --- Any box ---------------------------------------------------------------------------------

int CResMsgBox::MsgBox(unsigned int nTextId, unsigned int nCaptionId, unsigned int nType) {
    return MsgBox(TextOf(nTextId), TextOf(nCaptionId), nType);
}

int CResMsgBox::MsgBox(const wchar_t* pszText, unsigned int nCaptionId, unsigned int nType) {
    return MsgBox(pszText, TextOf(nCaptionId), nType);
}

int CResMsgBox::MsgBox(unsigned int nTextId, const wchar_t* pszCaption, unsigned int nType) {
    return MsgBox(TextOf(nTextId), pszCaption, nType);
}

int CResMsgBox::MsgBox(const wchar_t* pszText, const wchar_t* pszCaption, unsigned int nType) {
    CWnd noOwner;
    CWnd* const pActive = CWnd::GetActiveWindow();
    return (pActive != nullptr ? pActive : &noOwner)->MessageBox(FitToScreen(pszText), pszCaption, nType);
}

// --- The three kinds -------------------------------------------------------------------------

int CResMsgBox::ErrorMsgBox(unsigned int nTextId) {
    return ErrorMsgBox(TextOf(nTextId));
}

int CResMsgBox::ErrorMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_ERROR, ERROR_TYPE);
}

int CResMsgBox::WarningMsgBox(unsigned int nTextId) {
    return WarningMsgBox(TextOf(nTextId));
}

int CResMsgBox::WarningMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_WARNING, WARNING_TYPE);
}

int CResMsgBox::InformationMsgBox(unsigned int nTextId) {
    return InformationMsgBox(TextOf(nTextId));
}

int CResMsgBox::InformationMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_INFORMATION, INFORMATION_TYPE);
}
