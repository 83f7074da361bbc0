// The one function that the framework uses of the device's shell library.
#include "DeviceCaption.h"

using namespace fieldkit::detail;

namespace {

constexpr WORD kOrdinalDoneButton = 69;

using DoneButtonFn = BOOL(WINAPI*)(HWND, DWORD);

/// Looks in the system folder only: a library of this name beside a document or a program
/// is not the shell's.
DoneButtonFn LoadDoneButton() {
    const HMODULE hShell = ::LoadLibraryEx(_T("aygshell.dll"), nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (hShell == nullptr)
        return nullptr;
    const FARPROC pfn = ::GetProcAddress(hShell, MAKEINTRESOURCEA(kOrdinalDoneButton));
    return reinterpret_cast<DoneButtonFn>(reinterpret_cast<void*>(pfn));
}

} // namespace

BOOL AFXAPI SHDoneButton(HWND hWnd, DWORD dwState) {
    static const DoneButtonFn pfnDoneButton = LoadDoneButton();
    const BOOL bShell = pfnDoneButton != nullptr && pfnDoneButton(hWnd, dwState);
    CWnd* pWnd = CWnd::FromHandlePermanent(hWnd);
    if (pWnd == nullptr)
        return bShell;
    CDeviceCaption::ShowOkButton(pWnd, dwState == SHDB_SHOW);
    return TRUE;
}
