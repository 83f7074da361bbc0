#include "companion/detail/Module.h"

#include <afxwin.h>

using namespace fieldkit::detail;

namespace {

HMODULE ModuleOfThisCode(DWORD flags) {
    static const wchar_t anchor = 0;
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | flags, &anchor, &module);
    return module;
}

#ifdef FIELDKIT_STATIC
struct StartUp {
    StartUp() { AfxInstallNewHandler(); }
};
#else
/// The labels are found wherever the application's texts are, so that it may have its own.
struct StartUp {
    StartUp() {
        AfxInstallNewHandler();
        AfxInitExtensionModule(module, CompanionModule());
        new CDynLinkLibrary(module, TRUE); // in the framework's chain until AfxTermExtensionModule
    }
    ~StartUp() { AfxTermExtensionModule(module); }

    AFX_EXTENSION_MODULE module = {};
};
#endif

} // namespace

HINSTANCE fieldkit::detail::CompanionModule() {
    return ModuleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT);
}

void fieldkit::detail::PinCompanionModule() {
    ModuleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_PIN);
}

namespace {

StartUp g_startUp;

} // namespace
