// The search for resources: through the modules, and through the languages of each.
#include "ModuleState.h"

#include <algorithm>
#include <string_view>

using namespace fieldkit::detail;

namespace {

constexpr LANGID kLibraryLanguage = MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT);
constexpr UINT kBlock = 16; // so many strings are one resource

/// What is looked for in one module.
struct CWanted {
    HINSTANCE hInstance;
    LPCTSTR pszName;
    LPCTSTR pszType;
    UINT nText = kBlock; ///< A text of a block that must not be empty; kBlock for any resource.
};

std::span<const BYTE> BytesOf(HINSTANCE hInstance, HRSRC hResource) {
    const HGLOBAL hBlock = hResource != nullptr ? ::LoadResource(hInstance, hResource) : nullptr;
    const auto* pBytes = hBlock != nullptr ? static_cast<const BYTE*>(::LockResource(hBlock)) : nullptr;
    return pBytes != nullptr ? std::span(pBytes, ::SizeofResource(hInstance, hResource))
                             : std::span<const BYTE>();
}

/// @param nText from 0 to 15
std::wstring_view TextInBlock(std::span<const BYTE> bytes, UINT nText) {
    const std::wstring_view block(reinterpret_cast<const wchar_t*>(bytes.data()),
                                  bytes.size() / sizeof(wchar_t));
    std::size_t at = 0;
    for (; nText > 0 && at < block.size(); --nText)
        at += 1U + block[at];
    return at < block.size() ? block.substr(at + 1, block[at]) : std::wstring_view();
}

bool Suits(const CWanted& wanted, HRSRC hResource) {
    return wanted.nText == kBlock || !TextInBlock(BytesOf(wanted.hInstance, hResource), wanted.nText).empty();
}

HRSRC FindInLanguage(const CWanted& wanted, LANGID wLanguage) {
    const HRSRC hResource = ::FindResourceEx(wanted.hInstance, wanted.pszType, wanted.pszName, wLanguage);
    return hResource != nullptr && Suits(wanted, hResource) ? hResource : nullptr;
}

/// Goes through the languages that a module has.
struct CLanguages {
    const CWanted& wanted;
    WORD wPrimary; ///< 0 for any language.
    HRSRC hFound = nullptr;

    static BOOL CALLBACK OnLanguage(HMODULE, LPCTSTR, LPCTSTR, WORD wLanguage, LONG_PTR lParam) {
        auto* p = reinterpret_cast<CLanguages*>(lParam);
        if (p->wPrimary == 0 || PRIMARYLANGID(wLanguage) == p->wPrimary)
            p->hFound = FindInLanguage(p->wanted, wLanguage);
        return p->hFound == nullptr;
    }
};

HRSRC FindInLanguages(const CWanted& wanted, WORD wPrimary) {
    CLanguages languages = {wanted, wPrimary};
    ::EnumResourceLanguages(wanted.hInstance, wanted.pszType, wanted.pszName, CLanguages::OnLanguage,
                            reinterpret_cast<LONG_PTR>(&languages));
    return languages.hFound;
}

/// Whether a module is a part of the library. A program that the library is linked into is one.
bool IsOfLibrary(HINSTANCE hInstance) {
    const CModuleState& state = AfxModuleState();
    return hInstance == state.hFramework ||
           std::ranges::any_of(state.libraries, [&](const CDynLinkLibrary* p) {
               return p->m_bSystem && p->m_hResource == hInstance;
           });
}

/// The resource of one module in the best of its languages.
HRSRC FindInModule(const CWanted& wanted) {
    const HRSRC hOfSystem = ::FindResource(wanted.hInstance, wanted.pszName, wanted.pszType);
    if (hOfSystem == nullptr)
        return nullptr; // in no language
    HRSRC hResource = nullptr;
    if (const LANGID wChosen = AfxChosenLanguage()) {
        hResource = FindInLanguage(wanted, wChosen);
        if (hResource == nullptr)
            hResource = FindInLanguages(wanted, PRIMARYLANGID(wChosen));
    }
    if (hResource == nullptr && IsOfLibrary(wanted.hInstance))
        hResource = FindInLanguage(wanted, kLibraryLanguage);
    if (hResource == nullptr && Suits(wanted, hOfSystem))
        hResource = hOfSystem;
    return hResource != nullptr ? hResource : FindInLanguages(wanted, 0);
}

/// The first answer that is not empty, of the modules in the order of the search.
template <class Ask>
auto AskModules(Ask ask) {
    const CModuleState& state = AfxModuleState();
    auto answer = ask(AfxGetResourceHandle());
    for (const CDynLinkLibrary* pLibrary : state.libraries) {
        if (answer)
            break;
        answer = ask(pLibrary->m_hResource);
    }
    return answer ? answer : ask(state.hFramework);
}

HINSTANCE FindModule(LPCTSTR pszName, LPCTSTR pszType) {
    return AskModules([=](HINSTANCE hInstance) {
        return ::FindResource(hInstance, pszName, pszType) != nullptr ? hInstance : nullptr;
    });
}

/// The text of a string resource inside a module's image; not terminated.
std::wstring_view FindText(HINSTANCE hInstance, UINT nID) {
    const CWanted wanted = {hInstance, MAKEINTRESOURCE(LOWORD(nID) / kBlock + 1), RT_STRING, nID % kBlock};
    return hInstance != nullptr ? TextInBlock(BytesOf(hInstance, FindInModule(wanted)), wanted.nText)
                                : std::wstring_view();
}

} // namespace

// --- Languages -------------------------------------------------------------------------------------

LANGID fieldkit::detail::AfxLanguageMark(HINSTANCE hInstance) {
    const HRSRC hResource = ::FindResource(hInstance, L"AFX_RESOURCE_LANGUAGE", RT_RCDATA);
    const std::span<const BYTE> bytes = BytesOf(hInstance, hResource);
    return bytes.size() >= sizeof(LANGID) ? MAKEWORD(bytes[0], bytes[1]) : LANGID{0};
}

LANGID fieldkit::detail::AfxChosenLanguage() {
    const CModuleState& state = AfxModuleState();
    const LANGID wLanguage = state.wLanguage;
    return wLanguage != 0 ? wLanguage : state.wMarked.load();
}

void AFXAPI AfxSetResourceLanguage(LANGID wLanguage) {
    AfxModuleState().wLanguage = wLanguage;
}

LANGID AFXAPI AfxGetResourceLanguage() {
    const LANGID wChosen = AfxChosenLanguage();
    return wChosen != 0 ? wChosen : kLibraryLanguage;
}

// --- Search ----------------------------------------------------------------------------------------

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszResource, LPCTSTR lpszType) {
    const HINSTANCE hInstance = FindModule(lpszResource, lpszType);
    return hInstance != nullptr ? hInstance : AfxGetResourceHandle();
}

std::span<const BYTE> fieldkit::detail::AfxFindResource(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE hInstance = FindModule(lpszName, lpszType);
    return hInstance != nullptr ? BytesOf(hInstance, FindInModule({hInstance, lpszName, lpszType}))
                                : std::span<const BYTE>();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) {
    return AskModules(
        [=](HINSTANCE hInstance) { return FindText(hInstance, nID).empty() ? nullptr : hInstance; });
}

int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf) {
    if (nMaxBuf == 0)
        return 0; // not even room for the end
    const std::wstring_view text = FindText(AfxFindStringResourceHandle(nID), nID);
    const std::size_t nLength = text.copy(lpszBuf, nMaxBuf - 1);
    lpszBuf[nLength] = 0;
    return static_cast<int>(nLength);
}

template <class Char>
BOOL CStringT<Char>::LoadString(HINSTANCE hInstance, UINT nID) {
    const std::wstring_view text = FindText(hInstance, nID);
    *this = CStringT(text.data(), static_cast<int>(text.size()));
    return text.empty() ? FALSE : TRUE;
}

template <class Char>
BOOL CStringT<Char>::LoadString(UINT nID) {
    return LoadString(AfxFindStringResourceHandle(nID), nID);
}

template BOOL CStringT<wchar_t>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<char>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<wchar_t>::LoadString(UINT);
template BOOL CStringT<char>::LoadString(UINT);
