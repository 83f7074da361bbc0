#include "dialogs/ResMsgBox.h"

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

using namespace fieldkit::detail;

namespace {

constexpr UINT kErrorType = MB_OK | MB_ICONERROR;
constexpr UINT kWarningType = MB_YESNO | MB_ICONEXCLAMATION;
constexpr UINT kInformationType = MB_OK | MB_ICONINFORMATION;

/// Pixels at AFX_DESIGN_DPI of a message box around its text: icon, buttons, margins and frame.
constexpr int kBesideText = 76;
constexpr int kAboveAndBelowText = 100;

/// Lines that are shown on the smallest screen.
constexpr int kFewestLines = 8;

using View = std::wstring_view;

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

/// How much of a line fits into the width, disregarding words. Measures little more than that:
/// the line may be the rest of a very long one.
size_t CharactersWithin(const CDC& dc, View line, int nWidth) {
    constexpr size_t kFirstTry = 64;
    for (size_t nTry = kFirstTry;; nTry *= 2) {
        const size_t nMeasured = std::min(nTry, line.size());
        int nFit = 0;
        CSize size;
        ::GetTextExtentExPoint(dc.m_hDC, line.data(), static_cast<int>(nMeasured), nWidth, &nFit, nullptr,
                               &size);
        const auto nFitting = static_cast<size_t>(nFit);
        if (nFitting < nMeasured || nMeasured == line.size())
            return nFitting;
    }
}

/// How much of a line to show on one: if not all, then up to a blank or any character.
size_t FittingLength(const CDC& dc, View line, int nWidth) {
    size_t nFit = CharactersWithin(dc, line, nWidth);
    if (nFit >= line.size())
        return line.size();
    const size_t nBlank = line.substr(0, nFit).rfind(L' ');
    if (nBlank != View::npos && nBlank > 0)
        return nBlank + 1;
    while (nFit > 1 && IsAttached(line[nFit]))
        --nFit;
    return std::max<size_t>(nFit, 1);
}

/// The lines of a text, none of them wider than that.
std::vector<View> BreakIntoLines(const CDC& dc, View text, int nWidth) {
    std::vector<View> lines;
    for (;;) {
        const size_t nEnd = std::min(text.find(L'\n'), text.size());
        View line = text.substr(0, nEnd);
        do {
            const size_t nFit = FittingLength(dc, line, nWidth);
            lines.push_back(line.substr(0, nFit));
            line.remove_prefix(nFit);
        } while (!line.empty());
        if (nEnd == text.size())
            return lines;
        text.remove_prefix(nEnd + 1);
    }
}

/// Leaves the middle of too many lines out: the question comes last.
void Shorten(std::vector<View>& lines, size_t nMost) {
    constexpr size_t kLastLines = 4;
    if (lines.size() <= nMost)
        return;
    const auto itLeftOut = lines.begin() + static_cast<std::ptrdiff_t>(nMost - kLastLines - 1);
    *itLeftOut = L"\u2026";
    lines.erase(itLeftOut + 1, lines.end() - kLastLines);
}

/// Breaks lines that are too long for the screen. Not every system does that with a long name,
/// and of a box that is wider than a small screen only the middle is seen; of one that is higher,
/// not the buttons.
std::wstring FitToScreen(View text) {
    const MessageDC dc;
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics); // may have no memory for it
    const int nLineHeight = std::max<LONG>(metrics.tmHeight + metrics.tmExternalLeading, 1);
    const int nRoom = ::GetSystemMetrics(SM_CYSCREEN) - AfxScale(nullptr, kAboveAndBelowText);
    const int nMost = nRoom / nLineHeight;
    std::vector<View> lines =
        BreakIntoLines(dc, text, ::GetSystemMetrics(SM_CXSCREEN) - AfxScale(nullptr, kBesideText));
    Shorten(lines, static_cast<size_t>(std::max(nMost, kFewestLines)));
    std::wstring result(lines.front());
    for (size_t i = 1; i < lines.size(); ++i)
        result.append(L"\n").append(lines[i]);
    return result;
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
    const std::wstring text = FitToScreen(pszText != nullptr ? pszText : L"");
    const int nAnswer =
        (pActive != nullptr ? pActive : &noOwner)->MessageBox(text.c_str(), pszCaption, nType);
    // Not every system keeps a box open that is closed without an answer.
    const bool bYesNo = (nType & MB_TYPEMASK) == MB_YESNO;
    return bYesNo && nAnswer != IDYES ? IDNO : nAnswer;
}

// --- The three kinds -------------------------------------------------------------------------

int CResMsgBox::ErrorMsgBox(unsigned int nTextId) {
    return ErrorMsgBox(TextOf(nTextId));
}

int CResMsgBox::ErrorMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_ERROR, kErrorType);
}

int CResMsgBox::WarningMsgBox(unsigned int nTextId) {
    return WarningMsgBox(TextOf(nTextId));
}

int CResMsgBox::WarningMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_WARNING, kWarningType);
}

int CResMsgBox::InformationMsgBox(unsigned int nTextId) {
    return InformationMsgBox(TextOf(nTextId));
}

int CResMsgBox::InformationMsgBox(const wchar_t* pszText) {
    return MsgBox(pszText, IDS_FK_INFORMATION, kInformationType);
}
