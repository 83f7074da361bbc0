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

struct NewHandler {
    NewHandler() { AfxInstallNewHandler(); }
};
const NewHandler g_newHandler;

} // namespace

HINSTANCE fieldkit::detail::CompanionModule() {
    return ModuleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT);
}

void fieldkit::detail::PinCompanionModule() {
    ModuleOfThisCode(GET_MODULE_HANDLE_EX_FLAG_PIN);
}
