#include "FaultTable.h"

#include <commctrl.h>
#include <dwmapi.h>

#include <cstdlib>
#include <sstream>

namespace fault {

namespace {

/// Messages by which a control allocates, and its answer when there is no memory.
bool InsertsIntoControl(HWND, UINT nMessage, WPARAM, LPARAM) {
    switch (nMessage) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
    case LVM_INSERTITEMW:
    case LVM_INSERTCOLUMNW:
    case TVM_INSERTITEMW:
    case LVM_SETITEMW:
    case LVM_SETITEMTEXTW:
        return true;
    default:
        return false;
    }
}

LRESULT RefusedByControl(UINT nMessage) {
    switch (nMessage) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
        return LB_ERRSPACE;
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
        return CB_ERRSPACE;
    case LVM_INSERTITEMW:
    case LVM_INSERTCOLUMNW:
        return -1;
    default:
        return 0;
    }
}

constexpr DWORD MEMORY = ERROR_NOT_ENOUGH_MEMORY;

std::vector<Point> AllocationPoints() {
    return {
        FAULT_POINT(malloc, nullptr, MEMORY),
        FAULT_POINT(calloc, nullptr, MEMORY),
        FAULT_POINT(realloc, nullptr, MEMORY),
        FAULT_POINT(TlsAlloc, TLS_OUT_OF_INDEXES, ERROR_NO_MORE_ITEMS),
    };
}

std::vector<Point> FilePoints() {
    return {
        FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE, ERROR_TOO_MANY_OPEN_FILES),
        FAULT_POINT(DeleteFileW, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(DuplicateHandle, FALSE, MEMORY),
        FAULT_POINT(FileTimeToLocalFileTime, FALSE, ERROR_INVALID_PARAMETER),
        FAULT_POINT(FileTimeToSystemTime, FALSE, ERROR_INVALID_PARAMETER),
        FAULT_POINT(FindFirstFileW, INVALID_HANDLE_VALUE, ERROR_NOT_READY),
        FAULT_POINT(FindNextFileW, FALSE, ERROR_NOT_READY),
        FAULT_POINT(FlushFileBuffers, FALSE, ERROR_DISK_FULL),
        FAULT_POINT(GetFileAttributesW, INVALID_FILE_ATTRIBUTES, ERROR_NOT_READY),
        FAULT_POINT(GetFileType, DWORD{FILE_TYPE_UNKNOWN}, ERROR_INVALID_HANDLE),
        FAULT_POINT(GetFileSizeEx, FALSE, ERROR_NOT_READY),
        FAULT_POINT(GetFullPathNameW, DWORD{0}, MEMORY),
        FAULT_POINT(LockFile, FALSE, ERROR_LOCK_VIOLATION),
        FAULT_POINT(MoveFileW, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(ReadFile, FALSE, ERROR_NOT_READY),
        FAULT_POINT(SetEndOfFile, FALSE, ERROR_DISK_FULL),
        FAULT_POINT(SetFilePointerEx, FALSE, ERROR_NOT_READY),
        FAULT_POINT(UnlockFile, FALSE, ERROR_NOT_LOCKED),
        FAULT_POINT(WriteFile, FALSE, ERROR_DISK_FULL),
        LATE_FAULT_POINT(CloseHandle, FALSE, ERROR_NOT_READY),
        LATE_FAULT_POINT(FindClose, FALSE, ERROR_NOT_READY),
    };
}

std::vector<Point> ModulePoints() {
    return {
        FAULT_POINT(FindResourceW, nullptr, ERROR_RESOURCE_NAME_NOT_FOUND),
        FAULT_POINT(LoadResource, nullptr, MEMORY),
        FAULT_POINT(LoadLibraryW, nullptr, MEMORY),
        FAULT_POINT(LoadLibraryExW, nullptr, MEMORY),
        FAULT_POINT(LoadStringW, 0, ERROR_RESOURCE_NAME_NOT_FOUND),
        FAULT_POINT(FormatMessageA, DWORD{0}, MEMORY),
        FAULT_POINT(GetModuleFileNameW, DWORD{0}, MEMORY),
        FAULT_POINT(GetModuleHandleExW, FALSE, ERROR_MOD_NOT_FOUND),
        FAULT_POINT(MultiByteToWideChar, 0, ERROR_NO_UNICODE_TRANSLATION),
        FAULT_POINT(WideCharToMultiByte, 0, ERROR_NO_UNICODE_TRANSLATION),
        FAULT_POINT(RegCreateKeyExW, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED),
        FAULT_POINT(RegDeleteKeyW, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED),
        FAULT_POINT(RegDeleteValueW, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED),
        FAULT_POINT(RegGetValueW, LSTATUS{ERROR_FILE_NOT_FOUND}, ERROR_FILE_NOT_FOUND),
        FAULT_POINT(RegOpenKeyExW, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED),
        FAULT_POINT(RegQueryValueExW, LSTATUS{ERROR_MORE_DATA}, ERROR_MORE_DATA),
        FAULT_POINT(RegSetValueExW, LSTATUS{ERROR_NO_SYSTEM_RESOURCES}, ERROR_NO_SYSTEM_RESOURCES),
    };
}

std::vector<Point> WindowPoints() {
    return {
        FAULT_POINT(BeginPaint, nullptr, MEMORY),
        FAULT_POINT(CreateDialogIndirectParamW, nullptr, MEMORY),
        FAULT_POINT(CreateIconFromResourceEx, nullptr, MEMORY),
        FAULT_POINT(CreateWindowExW, nullptr, MEMORY),
        FAULT_POINT(GetComboBoxInfo, FALSE, ERROR_INVALID_WINDOW_HANDLE),
        FAULT_POINT(GetDC, nullptr, MEMORY),
        FAULT_POINT(GetMonitorInfoW, FALSE, ERROR_INVALID_MONITOR_HANDLE),
        FAULT_POINT(GetWindowDC, nullptr, MEMORY),
        FAULT_POINT(LoadBitmapW, nullptr, MEMORY),
        FAULT_POINT(LoadCursorW, nullptr, MEMORY),
        FAULT_POINT(LoadIconW, nullptr, MEMORY),
        FAULT_POINT(LoadMenuW, nullptr, MEMORY),
        FAULT_POINT(MessageBoxW, 0, MEMORY),
        FAULT_POINT(PostMessageW, FALSE, ERROR_NOT_ENOUGH_QUOTA),
        FAULT_POINT(RegisterClassW, ATOM{0}, MEMORY),
        FAULT_POINT(SendInput, UINT{0}, ERROR_ACCESS_DENIED),
        FAULT_POINT(SetDlgItemInt, FALSE, MEMORY),
        FAULT_POINT(SetDlgItemTextW, FALSE, MEMORY),
        FAULT_POINT(SetTimer, UINT_PTR{0}, MEMORY),
        FAULT_POINT(SetWindowPos, FALSE, MEMORY),
        FAULT_POINT(SetWindowsHookExW, nullptr, MEMORY),
        FAULT_POINT(SetWindowTextW, FALSE, MEMORY),
        FAULT_POINT(SystemParametersInfoW, FALSE, MEMORY),
        FAULT_POINT(TrackPopupMenu, FALSE, MEMORY),
        FAULT_POINT(DwmSetWindowAttribute, E_FAIL, MEMORY),
        MakePoint(
            "SendMessageW", ::SendMessageW,
            [](auto, HWND, UINT nMessage, auto...) { return RefusedByControl(nMessage); },
            [](auto... args) { return InsertsIntoControl(args...); }),
    };
}

std::vector<Point> DrawingPoints() {
    return {
        FAULT_POINT(CreateBitmap, nullptr, MEMORY),
        FAULT_POINT(CreateBitmapIndirect, nullptr, MEMORY),
        FAULT_POINT(CreateBrushIndirect, nullptr, MEMORY),
        FAULT_POINT(CreateCompatibleBitmap, nullptr, MEMORY),
        FAULT_POINT(CreateCompatibleDC, nullptr, MEMORY),
        FAULT_POINT(CreateFontIndirectW, nullptr, MEMORY),
        FAULT_POINT(CreateFontW, nullptr, MEMORY),
        FAULT_POINT(CreateHatchBrush, nullptr, MEMORY),
        FAULT_POINT(CreatePatternBrush, nullptr, MEMORY),
        FAULT_POINT(CreatePen, nullptr, MEMORY),
        FAULT_POINT(CreatePenIndirect, nullptr, MEMORY),
        FAULT_POINT(CreateRectRgn, nullptr, MEMORY),
        FAULT_POINT(CreateRectRgnIndirect, nullptr, MEMORY),
        FAULT_POINT(CreateSolidBrush, nullptr, MEMORY),
        FAULT_POINT(GetObjectW, 0, ERROR_INVALID_HANDLE),
        FAULT_POINT(GetTextExtentExPointW, FALSE, MEMORY),
        FAULT_POINT(GetTextExtentPoint32W, FALSE, MEMORY),
        FAULT_POINT(GetTextMetricsW, FALSE, MEMORY),
        FAULT_POINT(SaveDC, 0, MEMORY),
        FAULT_POINT(SelectObject, nullptr, ERROR_INVALID_HANDLE),
        FAULT_POINT(CreatePropertySheetPageW, nullptr, MEMORY),
        FAULT_POINT(ImageList_Add, -1, MEMORY),
        FAULT_POINT(ImageList_AddMasked, -1, MEMORY),
        FAULT_POINT(ImageList_Create, nullptr, MEMORY),
        FAULT_POINT(ImageList_Duplicate, nullptr, MEMORY),
        FAULT_POINT(ImageList_LoadImageW, nullptr, MEMORY),
        FAULT_POINT(ImageList_Replace, FALSE, MEMORY),
        FAULT_POINT(ImageList_ReplaceIcon, -1, MEMORY),
        FAULT_POINT(InitCommonControlsEx, FALSE, MEMORY),
        FAULT_POINT(PropertySheetW, INT_PTR{-1}, MEMORY),
    };
}

} // namespace

const std::vector<Point>& Table() {
    static const std::vector<Point> table = [] {
        std::vector<Point> all;
        for (auto* const make : {AllocationPoints, FilePoints, ModulePoints, WindowPoints, DrawingPoints}) {
            const std::vector<Point> part = make();
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    }();
    return table;
}

const std::set<std::string>& Infallible() {
    std::istringstream list(R"(
RegCloseKey
DestroyPropertySheetPage ImageList_Destroy ImageList_Draw ImageList_SetBkColor
Arc BitBlt CombineRgn DPtoLP DeleteDC DeleteObject Ellipse ExcludeClipRect ExtSelectClipRgn ExtTextOutW
GetBkColor GetBkMode GetClipBox GetCurrentObject GetCurrentPositionEx GetDeviceCaps GetObjectType GetPixel
GetROP2 GetRgnBox GetStockObject GetTextAlign GetTextColor GetViewportOrgEx IntersectClipRect LPtoDP LineTo
MoveToEx PatBlt Polygon Polyline Rectangle RestoreDC SelectClipRgn SetBkColor SetBkMode SetBrushOrgEx
SetPixel SetROP2 SetRectRgn SetStretchBltMode SetTextAlign SetTextColor SetViewportOrgEx StretchBlt TextOutW
AcquireSRWLockExclusive AddVectoredExceptionHandler CreateEventA CreateSemaphoreA DeleteCriticalSection
EnterCriticalSection FreeLibrary GetCurrentProcess GetCurrentProcessId GetCurrentThread GetCurrentThreadId
GetHandleInformation GetLastError GetModuleHandleW GetProcAddress GetProcessAffinityMask GetStringTypeW
GetSystemTimeAsFileTime GetThreadContext GetThreadPriority GetTickCount64 InitializeCriticalSection
IsDBCSLeadByteEx IsDebuggerPresent LeaveCriticalSection LocalFree LockResource MulDiv OpenProcess
OutputDebugStringA OutputDebugStringW RaiseException ReleaseSRWLockExclusive ReleaseSemaphore
RemoveVectoredExceptionHandler ResetEvent ResumeThread RtlCaptureContext RtlLookupFunctionEntry RtlUnwindEx
RtlVirtualUnwind SetEvent SetLastError SetProcessAffinityMask SetThreadContext SetThreadErrorMode
SetThreadPriority SizeofResource Sleep SuspendThread TlsGetValue TlsSetValue TryEnterCriticalSection
VirtualProtect VirtualQuery WaitForMultipleObjects WaitForSingleObject __C_specific_handler lstrcmpiW
lstrcpynW
AdjustWindowRectEx BringWindowToTop CallNextHookEx CallWindowProcW CharLowerBuffW CharUpperBuffW
CheckDlgButton CheckRadioButton ClientToScreen DefWindowProcW DestroyMenu DestroyWindow DispatchMessageW
DrawEdge DrawFocusRect DrawFrameControl DrawIcon DrawIconEx DrawTextW EnableWindow EndDialog EndPaint
EqualRect FillRect FrameRect GetActiveWindow GetAncestor GetCapture GetClassLongPtrW GetClassLongW
GetClassNameW GetClientRect GetCursorPos GetDesktopWindow GetDlgCtrlID GetDlgItem GetDlgItemInt
GetDlgItemTextW GetFocus GetForegroundWindow GetLastActivePopup GetMenuItemCount GetMenuItemID
GetMenuStringW GetMessageW GetNextDlgTabItem GetParent GetQueueStatus GetScrollInfo GetSubMenu GetSysColor
GetSysColorBrush GetSystemMetrics GetTopWindow GetWindow GetWindowLongPtrW GetWindowLongW GetWindowRect
GetWindowTextLengthW GetWindowTextW InvalidateRect InvertRect IsChild IsDialogMessageW IsDlgButtonChecked
IsIconic IsWindow IsWindowEnabled IsWindowVisible IsZoomed KillTimer MapDialogRect MapVirtualKeyW
MapWindowPoints MonitorFromRect MonitorFromWindow MoveWindow PeekMessageW PostQuitMessage PtInRect
RedrawWindow ReleaseCapture ReleaseDC ScreenToClient SendDlgItemMessageA SendDlgItemMessageW SetActiveWindow
SetCapture SetCursor SetFocus SetForegroundWindow SetParent SetScrollInfo SetWindowLongPtrW SetWindowLongW
ShowWindow TranslateMessage UnhookWindowsHookEx UpdateWindow ValidateRect WindowFromDC WindowFromPoint
wsprintfW
)");
    static const std::set<std::string> names{std::istream_iterator<std::string>(list), {}};
    return names;
}

} // namespace fault
