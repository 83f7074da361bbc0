// Compares the languages of a module's resources, and measures their texts on the screen.
#pragma once

#include "TestApp.h"

#include <map>
#include <regex>
#include <sstream>

namespace languages {

constexpr LANGID JAPANESE = MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT);
constexpr LANGID ENGLISH = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);

inline BOOL CALLBACK AddNumber(HMODULE, LPCTSTR, LPTSTR pszName, LONG_PTR lNumbers) {
    reinterpret_cast<std::vector<WORD>*>(lNumbers)->push_back(LOWORD(pszName));
    return TRUE;
}

/// The numbers of a module's resources of one type.
inline std::vector<WORD> NumbersOf(HMODULE hModule, LPCTSTR pszType) {
    std::vector<WORD> numbers;
    ::EnumResourceNames(hModule, pszType, AddNumber, reinterpret_cast<LONG_PTR>(&numbers));
    return numbers;
}

/// Null, with a failure of the test, if the module does not have it in that language.
inline const void* Find(HMODULE hModule, LPCTSTR pszType, WORD nName, LANGID wLanguage) {
    const HRSRC hResource = ::FindResourceEx(hModule, pszType, MAKEINTRESOURCE(nName), wLanguage);
    EXPECT_NE(nullptr, hResource) << "resource " << nName << " has no language " << std::hex << wLanguage;
    return hResource != nullptr ? ::LockResource(::LoadResource(hModule, hResource)) : nullptr;
}

/// The texts of a block of strings by number, without the empty ones.
inline std::map<UINT, CString> TextsOf(HMODULE hModule, WORD nBlock, LANGID wLanguage) {
    std::map<UINT, CString> texts;
    const auto* p = static_cast<const wchar_t*>(Find(hModule, RT_STRING, nBlock, wLanguage));
    for (UINT i = 0; p != nullptr && i < 16; p += 1 + *p, ++i)
        if (*p != 0)
            texts[16U * (nBlock - 1U) + i] = CString(p + 1, *p);
    return texts;
}

/// What a text is filled with: "%s", "%.6f", "%1", in its order.
inline CString Placeholders(const CString& str) {
    static const std::wregex pattern(L"%(?:[-+#0]*[0-9]*(?:\\.[0-9]+)?[a-zA-Z%]|[0-9])");
    const std::wstring text = str.GetString();
    CString found;
    for (std::wsregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it)
        found += it->str().c_str() + CString(L" ");
    return found;
}

/// A template as a window, which is not shown.
class Dialog {
public:
    Dialog(HMODULE hModule, WORD nName, LANGID wLanguage) {
        const void* pTemplate = Find(hModule, RT_DIALOG, nName, wLanguage);
        if (pTemplate != nullptr)
            m_hWnd = ::CreateDialogIndirectParam(::GetModuleHandle(nullptr),
                                                 static_cast<LPCDLGTEMPLATE>(pTemplate), m_owner, Nothing, 0);
        EXPECT_NE(nullptr, m_hWnd) << "dialog " << nName;
    }
    ~Dialog() { ::DestroyWindow(m_hWnd); }
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    operator HWND() const { return m_hWnd; }

    std::vector<CWnd*> Controls() const {
        std::vector<CWnd*> controls;
        for (HWND h = ::GetWindow(m_hWnd, GW_CHILD); h != nullptr; h = ::GetWindow(h, GW_HWNDNEXT))
            controls.push_back(CWnd::FromHandle(h));
        return controls;
    }

private:
    static INT_PTR CALLBACK Nothing(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

    fx::Frame m_owner;
    HWND m_hWnd = nullptr;
};

inline std::string ClassOf(const CWnd& wnd) {
    WCHAR szName[64] = L"";
    ::GetClassName(wnd, szName, 64);
    return fx::Utf8(szName);
}

/// All of a dialog, a line a window.
/// @param bDesign also its texts, and its places in dialog units
inline std::string Describe(const Dialog& dialog, bool bDesign) {
    CRect unit(0, 0, 4, 8); // four units wide and eight high
    ::MapDialogRect(dialog, unit);
    std::ostringstream text;
    const auto add = [&](const CWnd& wnd, CRect place) {
        LOGFONT font{};
        if (CFont* pFont = wnd.GetFont())
            pFont->GetLogFont(&font);
        text << ClassOf(wnd) << ' ' << wnd.GetDlgCtrlID() << std::hex << ' ' << wnd.GetStyle() << ' '
             << wnd.GetExStyle() << std::dec << ' ' << font.lfHeight << fx::Utf8(font.lfFaceName);
        if (bDesign)
            text << ' ' << ::MulDiv(place.left, 4, unit.right) << ',' << ::MulDiv(place.top, 8, unit.bottom)
                 << ',' << ::MulDiv(place.Width(), 4, unit.right) << ','
                 << ::MulDiv(place.Height(), 8, unit.bottom) << " \"" << fx::Utf8(fx::TextOf(wnd)) << '"';
        text << '\n';
    };
    CRect client;
    ::GetClientRect(dialog, client);
    add(*CWnd::FromHandle(dialog), client);
    for (const CWnd* pControl : dialog.Controls()) {
        CRect place = fx::RectOf(*pControl);
        CWnd::FromHandle(dialog)->ScreenToClient(place);
        add(*pControl, place);
    }
    return text.str();
}

/// Whether a control's text fits into it. Fields and lists scroll, and what has room for an icon only
/// shows that alone.
inline bool Fits(const CWnd& control) {
    constexpr int ICON_BUTTON = 32;
    const DWORD dwStyle = control.GetStyle(), dwType = dwStyle & BS_TYPEMASK;
    const bool bButton = ClassOf(control) == "Button", bDrawn = dwType == BS_OWNERDRAW;
    const bool bLabel = ClassOf(control) == "Static" && (dwStyle & SS_ELLIPSISMASK) == 0 &&
                        (dwStyle & SS_TYPEMASK) != SS_ICON;
    CRect room;
    control.GetClientRect(room);
    if (bButton ? bDrawn && room.Width() < AfxScale(control, ICON_BUTTON) : !bLabel)
        return true;
    // The frame of a button, or its box and the gap behind.
    if (bButton)
        room.DeflateRect(AfxScale(control, dwType > BS_DEFPUSHBUTTON && !bDrawn ? 9 : 2), 1);
    const CString str = fx::TextOf(control);
    CClientDC dc(CWnd::FromHandle(control.m_hWnd));
    CFont* const pOuter = dc.SelectObject(control.GetFont());
    CRect needed(0, 0, room.Width(), 0);
    dc.DrawText(str, needed,
                DT_CALCRECT | (bButton && str.Find(L'\n') < 0 ? DT_SINGLELINE : DT_WORDBREAK) |
                    (dwStyle & SS_NOPREFIX && !bButton ? DT_NOPREFIX : 0));
    dc.SelectObject(pOuter);
    return needed.Width() <= room.Width() && needed.Height() <= room.Height() + 1;
}

/// Between the left edge of the title bar and the "OK" in it.
inline bool CaptionFits(const Dialog& dialog) {
    constexpr int ROOM = 176;
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    CFont font;
    font.CreateFontIndirect(&metrics.lfCaptionFont);
    CWindowDC dc(CWnd::FromHandle(dialog));
    CFont* const pOuter = dc.SelectObject(&font);
    const int nWidth = dc.GetTextExtent(fx::TextOf(*CWnd::FromHandle(dialog))).cx;
    dc.SelectObject(pOuter);
    return nWidth <= ROOM;
}

/// Fails for whatever differs between the Japanese and the English of a module, and for what is
/// clipped in either. @return how many texts and dialogs were compared
inline int Compare(HMODULE hModule) {
    int nCompared = 0;
    for (const WORD nBlock : NumbersOf(hModule, RT_STRING)) {
        const auto japanese = TextsOf(hModule, nBlock, JAPANESE);
        const auto english = TextsOf(hModule, nBlock, ENGLISH);
        EXPECT_EQ(japanese.size(), english.size()) << "strings of block " << nBlock;
        for (const auto& [nID, str] : japanese) {
            const auto other = english.find(nID);
            if (other == english.end())
                ADD_FAILURE() << "no English for string " << nID << ": " << fx::Utf8(str);
            else
                EXPECT_EQ(Placeholders(str), Placeholders(other->second)) << "string " << nID;
            ++nCompared;
        }
    }
    for (const WORD nName : NumbersOf(hModule, RT_DIALOG)) {
        const Dialog japanese(hModule, nName, JAPANESE), english(hModule, nName, ENGLISH);
        EXPECT_EQ(Describe(japanese, false), Describe(english, false)) << "dialog " << nName;
        for (const Dialog* pDialog : {&japanese, &english}) {
            EXPECT_TRUE(CaptionFits(*pDialog)) << fx::Utf8(fx::TextOf(*CWnd::FromHandle(*pDialog)));
            for (const CWnd* pControl : pDialog->Controls())
                EXPECT_TRUE(Fits(*pControl))
                    << "clipped in dialog " << nName << ": " << fx::Utf8(fx::TextOf(*pControl));
        }
        ++nCompared;
    }
    EXPECT_TRUE(NumbersOf(hModule, RT_MENU).empty()) << "menus are not compared";
    return nCompared;
}

} // namespace languages
