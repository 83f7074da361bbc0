#include "testkit/Languages.h"

#include "testkit/Layout.h"

#include "afxwin.h"

#include <regex>
#include <sstream>

namespace testkit {

namespace {

constexpr UINT kBlock = 16; // texts in a resource

BOOL CALLBACK AddNumber(HMODULE, LPCTSTR, LPTSTR pszName, LONG_PTR lNumbers) {
    reinterpret_cast<std::vector<WORD>*>(lNumbers)->push_back(LOWORD(pszName));
    return TRUE;
}

std::vector<WORD> NumbersOf(HMODULE hModule, LPCTSTR pszType) {
    std::vector<WORD> numbers;
    ::EnumResourceNames(hModule, pszType, AddNumber, reinterpret_cast<LONG_PTR>(&numbers));
    return numbers;
}

/// Null if the module does not have it in that language.
const void* Find(HMODULE hModule, LPCTSTR pszType, WORD nName, LANGID language) {
    const HRSRC hResource = ::FindResourceEx(hModule, pszType, MAKEINTRESOURCE(nName), language);
    return hResource != nullptr ? ::LockResource(::LoadResource(hModule, hResource)) : nullptr;
}

/// "%s", "%.6f", "%1", in their order.
std::wstring Placeholders(const CString& str) {
    static const std::wregex pattern(L"%(?:[-+#0]*[0-9]*(?:\\.[0-9]+)?[a-zA-Z%]|[0-9])");
    const std::wstring text = str.GetString();
    std::wstring found;
    for (std::wsregex_iterator it(text.begin(), text.end(), pattern), end; it != end; ++it)
        found += it->str() + L' ';
    return found;
}

/// A line for each text that is missing from another language, or is filled in another way there.
std::string Missing(const std::map<UINT, CString>& texts, const std::map<UINT, CString>& others) {
    std::ostringstream missing;
    for (const auto& [nID, str] : texts) {
        const auto other = others.find(nID);
        if (other == others.end())
            missing << "no second language for the text " << nID << ": " << Utf8(str) << '\n';
        else if (Placeholders(str) != Placeholders(other->second))
            missing << "other placeholders in the text " << nID << ": " << Utf8(other->second) << '\n';
    }
    for (const auto& [nID, str] : others)
        if (texts.count(nID) == 0)
            missing << "no first language for the text " << nID << ": " << Utf8(str) << '\n';
    return missing.str();
}

std::string Clipped(const TemplateWindow& dialog) {
    std::string clipped = dialog.TitleFits() ? "" : "the title is clipped: " + NameOf(dialog) + '\n';
    for (HWND hWnd = ::GetWindow(dialog, GW_CHILD); hWnd != nullptr; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT))
        if (!TextFits(hWnd))
            clipped += "clipped: " + NameOf(hWnd) + '\n';
    return clipped;
}

/// What is wrong with a dialog, without a heading.
std::string Differences(const TemplateWindow& first, const TemplateWindow& second) {
    const std::string here = first.Describe(false), there = second.Describe(false);
    return (here == there ? "" : "its windows differ:\n" + here + "and\n" + there) + Clipped(first) +
           Clipped(second);
}

INT_PTR CALLBACK Nothing(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

} // namespace

int CompareLanguages(HMODULE hModule, LANGID first, LANGID second, const Place& place) {
    const std::map<UINT, CString> texts = StringsOf(hModule, first);
    if (const std::string missing = Missing(texts, StringsOf(hModule, second)); !missing.empty())
        Fail(missing, place);
    const std::vector<WORD> dialogs = NumbersOf(hModule, RT_DIALOG);
    for (const WORD nName : dialogs) {
        const std::string differences = Differences(TemplateWindow(hModule, nName, first, place),
                                                    TemplateWindow(hModule, nName, second, place));
        if (!differences.empty())
            Fail("dialog " + std::to_string(nName) + ": " + differences, place);
    }
    if (!NumbersOf(hModule, RT_MENU).empty())
        Fail("menus are not compared", place);
    return static_cast<int>(texts.size() + dialogs.size());
}

std::map<UINT, CString> StringsOf(HMODULE hModule, LANGID language) {
    std::map<UINT, CString> texts;
    for (const WORD nBlock : NumbersOf(hModule, RT_STRING)) {
        const auto* p = static_cast<const wchar_t*>(Find(hModule, RT_STRING, nBlock, language));
        for (UINT i = 0; p != nullptr && i < kBlock; p += 1 + *p, ++i)
            if (*p != 0)
                texts[kBlock * (nBlock - 1U) + i] = CString(p + 1, *p);
    }
    return texts;
}

TemplateWindow::TemplateWindow(HMODULE hModule, WORD nName, LANGID language, const Place& place) {
    const HMODULE hProgram = ::GetModuleHandle(nullptr);
    m_hOwner = ::CreateWindow(L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, hProgram, nullptr);
    if (const void* const pTemplate = Find(hModule, RT_DIALOG, nName, language))
        m_hWnd = ::CreateDialogIndirectParam(hProgram, static_cast<LPCDLGTEMPLATE>(pTemplate), m_hOwner,
                                             Nothing, 0);
    if (m_hWnd == nullptr)
        Fail("no dialog " + std::to_string(nName) + " in the language " + std::to_string(language), place);
}

TemplateWindow::~TemplateWindow() {
    ::DestroyWindow(m_hWnd);
    ::DestroyWindow(m_hOwner);
}

bool TemplateWindow::TitleFits() const {
    constexpr int kRoom = 176; // between the left edge of the title bar and the "OK" in it
    NONCLIENTMETRICS metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfo(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    CFont font;
    font.CreateFontIndirect(&metrics.lfCaptionFont);
    CWindowDC dc(CWnd::FromHandle(m_hWnd));
    dc.SelectObject(&font); // until the context is given back, before the font goes
    return dc.GetTextExtent(TextOf(m_hWnd).c_str()).cx <= kRoom;
}

std::string TemplateWindow::Describe(bool bDesign) const {
    CRect unit(0, 0, 4, 8); // four units wide and eight high
    ::MapDialogRect(m_hWnd, unit);
    std::ostringstream text;
    const auto add = [&](HWND hWnd, CRect place) {
        const CWnd& wnd = *CWnd::FromHandle(hWnd);
        LOGFONT font{};
        if (CFont* const pFont = wnd.GetFont())
            pFont->GetLogFont(&font);
        text << Utf8(ClassOf(hWnd).c_str()) << ' ' << wnd.GetDlgCtrlID() << std::hex << ' ' << wnd.GetStyle()
             << ' ' << wnd.GetExStyle() << std::dec << ' ' << font.lfHeight << Utf8(font.lfFaceName);
        if (bDesign)
            text << ' ' << ::MulDiv(place.left, 4, unit.right) << ',' << ::MulDiv(place.top, 8, unit.bottom)
                 << ',' << ::MulDiv(place.Width(), 4, unit.right) << ','
                 << ::MulDiv(place.Height(), 8, unit.bottom) << " \"" << Utf8(TextOf(hWnd).c_str()) << '"';
        text << '\n';
    };
    CRect client;
    ::GetClientRect(m_hWnd, client);
    add(m_hWnd, client);
    for (HWND hWnd = ::GetWindow(m_hWnd, GW_CHILD); hWnd != nullptr; hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) {
        CRect place = RectOf(hWnd);
        CWnd::FromHandle(m_hWnd)->ScreenToClient(place);
        add(hWnd, place);
    }
    return text.str();
}

} // namespace testkit
