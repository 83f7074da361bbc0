#include "FaultTable.h"

#include <commctrl.h>
#include <commdlg.h>
#include <dwmapi.h>
#include <shellapi.h>
#include <shlobj.h>

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

// One function each; a list a way to fail.
#define NO_OBJECT(function) FAULT_POINT(function, nullptr, MEMORY)
#define NO_SUCCESS(function) FAULT_POINT(function, FALSE, MEMORY)
#define CARD_OUT(function) FAULT_POINT(function, FALSE, ERROR_NOT_READY)
#define DENIED(function) FAULT_POINT(function, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED)

// clang-format off
std::vector<Point> Points() {
    return {
        NO_OBJECT(malloc), NO_OBJECT(calloc), NO_OBJECT(realloc), NO_OBJECT(LoadResource),
        NO_OBJECT(LoadLibraryW), NO_OBJECT(LoadLibraryExW), NO_OBJECT(BeginPaint),
        NO_OBJECT(CreateDialogIndirectParamW), NO_OBJECT(CreateIconFromResourceEx),
        NO_OBJECT(CreateWindowExW), NO_OBJECT(GetDC), NO_OBJECT(GetWindowDC), NO_OBJECT(LoadBitmapW),
        NO_OBJECT(LoadCursorW), NO_OBJECT(LoadIconW), NO_OBJECT(LoadMenuW), NO_OBJECT(SetWindowsHookExW),
        NO_OBJECT(CreateBitmap), NO_OBJECT(CreateBitmapIndirect), NO_OBJECT(CreateBrushIndirect),
        NO_OBJECT(CreateCompatibleBitmap), NO_OBJECT(CreateCompatibleDC), NO_OBJECT(CreateFontIndirectW),
        NO_OBJECT(CreateFontW), NO_OBJECT(CreateHatchBrush), NO_OBJECT(CreatePatternBrush),
        NO_OBJECT(CreatePen), NO_OBJECT(CreatePenIndirect),
        NO_OBJECT(CommandLineToArgvW), NO_OBJECT(CreateDCW), NO_OBJECT(CreateICW), NO_OBJECT(CreateDiscardableBitmap),
        NO_OBJECT(CreateMappedBitmap), NO_OBJECT(CreateEventW), NO_OBJECT(CreateMutexW), NO_OBJECT(CreateSemaphoreW),
        NO_OBJECT(ExtCreatePen), NO_OBJECT(FindTextW), NO_OBJECT(PathToRegion), NO_OBJECT(ReplaceTextW),
        NO_SUCCESS(AppendMenuW), NO_SUCCESS(ChooseColorW), NO_SUCCESS(ChooseFontW), NO_SUCCESS(GetOpenFileNameW),
        NO_SUCCESS(GetSaveFileNameW), NO_SUCCESS(InsertMenuW), NO_SUCCESS(ModifyMenuW), NO_SUCCESS(SetMenuItemInfoW),
        NO_SUCCESS(TrackPopupMenuEx), NO_SUCCESS(WritePrivateProfileStringW),
        FAULT_POINT(SHGetFolderPathW, E_FAIL, MEMORY),
        NO_OBJECT(CreateRectRgnIndirect), NO_OBJECT(CreateSolidBrush),
        NO_OBJECT(CreatePropertySheetPageW), NO_OBJECT(ImageList_Create), NO_OBJECT(ImageList_Duplicate),
        NO_OBJECT(ImageList_LoadImageW),
        NO_SUCCESS(DuplicateHandle), NO_SUCCESS(SetDlgItemInt), NO_SUCCESS(SetDlgItemTextW),
        NO_SUCCESS(SetWindowPos), NO_SUCCESS(SetWindowTextW), NO_SUCCESS(SystemParametersInfoW),
        NO_SUCCESS(TrackPopupMenu), NO_SUCCESS(GetTextExtentExPointW), NO_SUCCESS(GetTextExtentPoint32W),
        NO_SUCCESS(GetTextMetricsW), NO_SUCCESS(ImageList_Replace), NO_SUCCESS(InitCommonControlsEx),
        CARD_OUT(FindNextFileW), CARD_OUT(GetFileSizeEx), CARD_OUT(ReadFile), CARD_OUT(SetFilePointerEx),
        DENIED(RegCreateKeyExW), DENIED(RegDeleteKeyW), DENIED(RegDeleteValueW), DENIED(RegOpenKeyExW),
        FAULT_POINT(TlsAlloc, TLS_OUT_OF_INDEXES, ERROR_NO_MORE_ITEMS),
        FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE, ERROR_TOO_MANY_OPEN_FILES),
        FAULT_POINT(FindFirstFileW, INVALID_HANDLE_VALUE, ERROR_NOT_READY),
        FAULT_POINT(GetFileAttributesW, INVALID_FILE_ATTRIBUTES, ERROR_NOT_READY),
        FAULT_POINT(GetFileType, DWORD{FILE_TYPE_UNKNOWN}, ERROR_INVALID_HANDLE),
        FAULT_POINT(LockFile, FALSE, ERROR_LOCK_VIOLATION),
        FAULT_POINT(UnlockFile, FALSE, ERROR_NOT_LOCKED),
        LATE_FAULT_POINT(CloseHandle, FALSE, ERROR_NOT_READY),
        LATE_FAULT_POINT(FindClose, FALSE, ERROR_NOT_READY),
        FAULT_POINT(FindResourceW, nullptr, ERROR_RESOURCE_NAME_NOT_FOUND),
        FAULT_POINT(LoadStringW, 0, ERROR_RESOURCE_NAME_NOT_FOUND),
        FAULT_POINT(GetModuleHandleExW, FALSE, ERROR_MOD_NOT_FOUND),
        FAULT_POINT(MultiByteToWideChar, 0, ERROR_NO_UNICODE_TRANSLATION),
        FAULT_POINT(WideCharToMultiByte, 0, ERROR_NO_UNICODE_TRANSLATION),
        FAULT_POINT(RegGetValueW, LSTATUS{ERROR_FILE_NOT_FOUND}, ERROR_FILE_NOT_FOUND),
        FAULT_POINT(RegQueryValueExW, LSTATUS{ERROR_MORE_DATA}, ERROR_MORE_DATA),
        FAULT_POINT(RegSetValueExW, LSTATUS{ERROR_NO_SYSTEM_RESOURCES}, ERROR_NO_SYSTEM_RESOURCES),
        FAULT_POINT(GetComboBoxInfo, FALSE, ERROR_INVALID_WINDOW_HANDLE),
        FAULT_POINT(GetMonitorInfoW, FALSE, ERROR_INVALID_MONITOR_HANDLE),
        FAULT_POINT(MessageBoxW, 0, MEMORY),
        FAULT_POINT(PostMessageW, FALSE, ERROR_NOT_ENOUGH_QUOTA),
        FAULT_POINT(RegisterClassW, ATOM{0}, MEMORY),
        FAULT_POINT(SendInput, UINT{0}, ERROR_ACCESS_DENIED),
        FAULT_POINT(SetTimer, UINT_PTR{0}, MEMORY),
        FAULT_POINT(DwmSetWindowAttribute, E_FAIL, MEMORY),
        FAULT_POINT(GetObjectW, 0, ERROR_INVALID_HANDLE),
        FAULT_POINT(SaveDC, 0, MEMORY),
        FAULT_POINT(SelectObject, nullptr, ERROR_INVALID_HANDLE),
        FAULT_POINT(PropertySheetW, INT_PTR{-1}, MEMORY),
        FAULT_POINT(DeleteFileW, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(MoveFileW, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(FileTimeToLocalFileTime, FALSE, ERROR_INVALID_PARAMETER),
        FAULT_POINT(FileTimeToSystemTime, FALSE, ERROR_INVALID_PARAMETER),
        FAULT_POINT(FlushFileBuffers, FALSE, ERROR_DISK_FULL),
        FAULT_POINT(SetEndOfFile, FALSE, ERROR_DISK_FULL),
        FAULT_POINT(WriteFile, FALSE, ERROR_DISK_FULL),
        FAULT_POINT(GetFullPathNameW, DWORD{0}, MEMORY),
        FAULT_POINT(FormatMessageA, DWORD{0}, MEMORY),
        FAULT_POINT(FormatMessageW, DWORD{0}, MEMORY),
        FAULT_POINT(GetFileAttributesExW, FALSE, ERROR_NOT_READY),
        FAULT_POINT(GetFileInformationByHandle, FALSE, ERROR_NOT_READY),
        FAULT_POINT(SetFileAttributesW, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(SetFileTime, FALSE, ERROR_ACCESS_DENIED),
        FAULT_POINT(GetModuleFileNameW, DWORD{0}, MEMORY),
        FAULT_POINT(ImageList_Add, -1, MEMORY),
        FAULT_POINT(ImageList_AddMasked, -1, MEMORY),
        FAULT_POINT(ImageList_ReplaceIcon, -1, MEMORY),
        MakePoint(
            "SendMessageW", ::SendMessageW,
            [](auto, HWND, UINT nMessage, auto...) { return RefusedByControl(nMessage); },
            [](auto... args) { return InsertsIntoControl(args...); })};
}
// clang-format on

} // namespace

const std::vector<Point>& Table() {
    static const std::vector<Point> table = Points();
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
AcquireSRWLockExclusive AddVectoredExceptionHandler CompareStringA CompareStringW CreateEventA CreateSemaphoreA DeleteCriticalSection
EnterCriticalSection FreeLibrary GetCurrentProcess GetCurrentProcessId GetCurrentThread GetCurrentThreadId
GetEnvironmentVariableA GetEnvironmentVariableW GetHandleInformation GetLastError GetModuleHandleW GetProcAddress GetProcessAffinityMask GetStringTypeW
GetSystemTimeAsFileTime GetThreadContext GetThreadPriority GetTickCount64 InitializeCriticalSection
IsDBCSLeadByte IsDBCSLeadByteEx IsDebuggerPresent LeaveCriticalSection LocalFree LockResource MulDiv OpenProcess
OutputDebugStringA OutputDebugStringW RaiseException ReleaseSRWLockExclusive ReleaseSemaphore
RemoveVectoredExceptionHandler ResetEvent ResumeThread RtlCaptureContext RtlLookupFunctionEntry RtlUnwindEx
RtlVirtualUnwind SetEvent SetLastError SetProcessAffinityMask SetThreadContext SetThreadErrorMode
SetThreadPriority SizeofResource Sleep SuspendThread TlsGetValue TlsSetValue TryEnterCriticalSection
VirtualProtect VirtualQuery WaitForMultipleObjects WaitForSingleObject __C_specific_handler lstrcmpiW
lstrcpynW
AdjustWindowRectEx BringWindowToTop CallNextHookEx CallWindowProcW CharLowerBuffA CharLowerBuffW
CharToOemBuffA CharUpperBuffA CharUpperBuffW OemToCharBuffA
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
CheckMenuItem CheckMenuRadioItem ChildWindowFromPoint ChildWindowFromPointEx DrawStateW DrawTextExW
EnableMenuItem ExcludeUpdateRgn FindWindowExW FindWindowW FlashWindowEx GetCaretPos GetClassInfoW
GetClipboardOwner GetCommandLineW GetKeyNameTextW GetMenu GetMenuState GetNextDlgGroupItem
GetPrivateProfileStringW GetSystemMenu GetUpdateRgn GrayStringW HiliteMenuItem InvalidateRgn
MsgWaitForMultipleObjects RegisterWindowMessageW ReleaseMutex ScrollDC ScrollWindowEx SetMenu
SetMenuItemBitmaps ShellExecuteW TabbedTextOutW ValidateRgn
GetBitmapDimensionEx GetTextFaceW GetViewportExtEx GetWindowExtEx OffsetClipRgn OffsetViewportOrgEx PtVisible
RectVisible ScaleViewportExtEx ScaleWindowExtEx SetBitmapDimensionEx SetMapMode SetViewportExtEx
SetWindowExtEx ImageList_DrawIndirect lstrlenW
)");
    static const std::set<std::string> names{std::istream_iterator<std::string>(list), {}};
    return names;
}

} // namespace fault
