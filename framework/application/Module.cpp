// Module state: which module holds which resource.
#include "afxwin.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

namespace {

/// The framework's DLL, or the program that the framework is linked into.
HINSTANCE ModuleOfThisCode() {
    static const wchar_t chAnchor = 0;
    HMODULE hModule = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        &chAnchor, &hModule);
    return hModule;
}

struct CModuleState {
    const HINSTANCE hFramework = ModuleOfThisCode();
    HINSTANCE hInstance = nullptr;
    HINSTANCE hResource = nullptr;
    std::vector<CDynLinkLibrary*> libraries; ///< In the order of their loading.
};

/// Never destroyed: whatever is destroyed last still finds its resources.
CModuleState& State() {
    static CModuleState& state = *new CModuleState;
    return state;
}

/// The modules that are searched, in order.
std::vector<HINSTANCE> SearchOrder() {
    std::vector<HINSTANCE> order = {AfxGetResourceHandle()};
    for (const CDynLinkLibrary* pLibrary : State().libraries)
        order.push_back(pLibrary->m_hResource);
    order.push_back(State().hFramework);
    return order;
}

/// The text of a string resource inside a module's image, with its length; not terminated.
LPCTSTR FindString(HINSTANCE hInstance, UINT nID, int* pnLength) {
    LPCTSTR pszText = nullptr;
    *pnLength = ::LoadString(hInstance, nID, reinterpret_cast<LPTSTR>(&pszText), 0);
    return *pnLength > 0 ? pszText : nullptr;
}

} // namespace

// --- The application's module ------------------------------------------------------------------

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return State().hInstance != nullptr ? State().hInstance : ::GetModuleHandle(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return State().hResource != nullptr ? State().hResource : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    State().hResource = hInstResource;
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    State().hInstance = hInstance;
    const INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_DATE_CLASSES |
                                                                ICC_USEREX_CLASSES | ICC_INTERNET_CLASSES};
    ::InitCommonControlsEx(&controls);
    // Apart from the others, as the older controls refuse a class that they do not know.
    const INITCOMMONCONTROLSEX links = {sizeof links, ICC_LINK_CLASS};
    ::InitCommonControlsEx(&links);
    if (CWinApp* pApp = AfxGetApp()) {
        pApp->m_hInstance = hInstance;
        pApp->m_lpCmdLine = lpCmdLine;
        pApp->m_nCmdShow = nCmdShow;
    }
    return TRUE;
}

// --- Extension modules ---------------------------------------------------------------------------

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (state.bInitialized)
        return TRUE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    if (!state.bInitialized)
        return;
    // Without a copy of the list: a module goes even when there is no memory.
    const std::vector<CDynLinkLibrary*>& libraries = State().libraries;
    const auto isOfModule = [&](const CDynLinkLibrary* p) { return p->m_hModule == state.hModule; };
    for (auto it = libraries.begin(); (it = std::ranges::find_if(libraries, isOfModule)) != libraries.end();)
        delete *it; // which takes it out of the list
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    State().libraries.push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    std::erase(State().libraries, this);
}

// --- Search ------------------------------------------------------------------------------------------

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszResource, LPCTSTR lpszType) {
    for (const HINSTANCE hInstance : SearchOrder())
        if (::FindResource(hInstance, lpszResource, lpszType) != nullptr)
            return hInstance;
    return AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) {
    int nLength = 0;
    for (const HINSTANCE hInstance : SearchOrder())
        if (FindString(hInstance, nID, &nLength) != nullptr)
            return hInstance;
    return nullptr;
}

int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf) {
    lpszBuf[0] = 0;
    const HINSTANCE hInstance = AfxFindStringResourceHandle(nID);
    return hInstance != nullptr ? ::LoadString(hInstance, nID, lpszBuf, static_cast<int>(nMaxBuf)) : 0;
}

template <class Char>
BOOL CStringT<Char>::LoadString(HINSTANCE hInstance, UINT nID) {
    int nLength = 0;
    const LPCTSTR pszText = hInstance != nullptr ? FindString(hInstance, nID, &nLength) : nullptr;
    *this = CStringT(pszText, nLength);
    return pszText != nullptr ? TRUE : FALSE;
}

template <class Char>
BOOL CStringT<Char>::LoadString(UINT nID) {
    return LoadString(AfxFindStringResourceHandle(nID), nID);
}

template BOOL CStringT<wchar_t>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<char>::LoadString(HINSTANCE, UINT);
template BOOL CStringT<wchar_t>::LoadString(UINT);
template BOOL CStringT<char>::LoadString(UINT);
