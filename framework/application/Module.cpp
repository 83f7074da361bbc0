// Module state: which module holds which resource.
#include "ModuleState.h"

#include <algorithm>

using namespace fieldkit::detail;

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

CModuleState* MakeState() {
    auto* const pState = new CModuleState{ModuleOfThisCode()};
    pState->wMarked = AfxLanguageMark(::GetModuleHandle(nullptr));
    return pState;
}

} // namespace

CModuleState& fieldkit::detail::AfxModuleState() {
    static CModuleState& state = *MakeState();
    return state;
}

// --- The application's module ------------------------------------------------------------------

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxModuleState().hInstance != nullptr ? AfxModuleState().hInstance : ::GetModuleHandle(nullptr);
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    return AfxModuleState().hResource != nullptr ? AfxModuleState().hResource : AfxGetInstanceHandle();
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxModuleState().hResource = hInstResource;
    AfxModuleState().wMarked = AfxLanguageMark(AfxGetResourceHandle());
}

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AfxModuleState().hInstance = hInstance;
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
    const std::vector<CDynLinkLibrary*>& libraries = AfxModuleState().libraries;
    const auto isOfModule = [&](const CDynLinkLibrary* p) { return p->m_hModule == state.hModule; };
    for (auto it = libraries.begin(); (it = std::ranges::find_if(libraries, isOfModule)) != libraries.end();)
        delete *it; // which takes it out of the list
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem) {
    AfxModuleState().libraries.push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() {
    std::erase(AfxModuleState().libraries, this);
}
