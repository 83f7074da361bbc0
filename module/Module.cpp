// The library's start-up: it is an extension module of the framework, so that its dialog
// templates and texts are found wherever the application's are.
#include <afxdllx.h>

namespace {

AFX_EXTENSION_MODULE g_module;

} // namespace

BOOL APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID) {
    if (dwReason == DLL_PROCESS_ATTACH) {
        AfxInstallNewHandler();
        if (!AfxInitExtensionModule(g_module, hInstance))
            return FALSE;
        new CDynLinkLibrary(g_module, TRUE); // in the framework's chain until AfxTermExtensionModule
    } else if (dwReason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(g_module);
    }
    return TRUE;
}
