#include "testkit/SystemFaults.h"

#include <commctrl.h>
#include <commdlg.h>
#include <dwmapi.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstdlib>

namespace testkit::fault {

namespace {

/// What a control answers to a message when it has no memory; nothing to messages that need none.
std::optional<LRESULT> Refusal(UINT nMessage) {
    switch (nMessage) {
    case LB_ADDSTRING:
    case LB_INSERTSTRING:
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
        return LB_ERRSPACE; // which CB_ERRSPACE is too
    case LVM_INSERTCOLUMNW:
    case LVM_INSERTITEMW:
        return -1;
    case LVM_SETITEMTEXTW:
    case LVM_SETITEMW:
    case TVM_INSERTITEMW:
        return 0;
    default:
        return std::nullopt;
    }
}

/// Null, false or zero, whatever the function gives.
struct Zero {
    template <class Result>
    explicit operator Result() const {
        return Result{};
    }
};

#define FAILS(function, error) FAULT_POINT(function, Zero(), ERROR_##error)
#define NOTHING(function) FAILS(function, NOT_ENOUGH_MEMORY)
#define MINUS_ONE(function) FAULT_POINT(function, -1, ERROR_NOT_ENOUGH_MEMORY)
#define STATUS(function, error) FAULT_POINT(function, LSTATUS{ERROR_##error}, ERROR_##error)

std::vector<Point> Memory() {
    return {
        NOTHING(malloc),
        NOTHING(calloc),
        NOTHING(realloc),
        NOTHING(GlobalAlloc),
        NOTHING(HeapAlloc),
        NOTHING(LocalAlloc),
        NOTHING(VirtualAlloc),
        NOTHING(SysAllocStringLen),
        FAULT_POINT(TlsAlloc, TLS_OUT_OF_INDEXES, ERROR_NO_MORE_ITEMS),
    };
}

std::vector<Point> WindowsAndMenus() {
    return {
        NOTHING(CreateDialogIndirectParamW),
        NOTHING(CreateWindowExW),
        NOTHING(InitCommonControlsEx),
        NOTHING(MessageBoxW),
        NOTHING(MessageBoxExW),
        NOTHING(RegisterClassW),
        NOTHING(SetDlgItemInt),
        NOTHING(SetDlgItemTextW),
        NOTHING(SetTimer),
        NOTHING(SetWindowPos),
        NOTHING(SetWindowsHookExW),
        NOTHING(SetWindowTextW),
        NOTHING(SystemParametersInfoW),
        FAILS(GetComboBoxInfo, INVALID_WINDOW_HANDLE),
        FAILS(GetMonitorInfoW, INVALID_MONITOR_HANDLE),
        FAILS(PostMessageW, NOT_ENOUGH_QUOTA),
        FAILS(SendInput, ACCESS_DENIED),
        FAULT_POINT(DwmSetWindowAttribute, E_FAIL, ERROR_NOT_ENOUGH_MEMORY),
        FAULT_POINT_OF(
            SendMessageW, [](auto, HWND, UINT nMessage, auto...) { return *Refusal(nMessage); },
            [](HWND, UINT nMessage, auto...) { return Refusal(nMessage).has_value(); }),
        NOTHING(AppendMenuW),
        NOTHING(InsertMenuW),
        NOTHING(ModifyMenuW),
        NOTHING(SetMenuItemInfoW),
        NOTHING(TrackPopupMenu),
        NOTHING(TrackPopupMenuEx),
    };
}

std::vector<Point> DialogsOfTheSystem() {
    return {
        NOTHING(ChooseColorW),
        NOTHING(ChooseFontW),
        NOTHING(FindTextW),
        NOTHING(GetOpenFileNameW),
        NOTHING(GetSaveFileNameW),
        NOTHING(ReplaceTextW),
        NOTHING(CreatePropertySheetPageW),
        MINUS_ONE(PropertySheetW),
    };
}

std::vector<Point> Drawing() {
    return {
        NOTHING(BeginPaint),
        NOTHING(CreateBitmap),
        NOTHING(CreateBitmapIndirect),
        NOTHING(CreateBrushIndirect),
        NOTHING(CreateCompatibleBitmap),
        NOTHING(CreateCompatibleDC),
        NOTHING(CreateDCW),
        NOTHING(CreateDIBSection),
        NOTHING(CreateDiscardableBitmap),
        NOTHING(CreateFontIndirectW),
        NOTHING(CreateFontW),
        NOTHING(CreateHatchBrush),
        NOTHING(CreateICW),
        NOTHING(CreateMappedBitmap),
        NOTHING(CreatePatternBrush),
        NOTHING(CreatePen),
        NOTHING(CreatePenIndirect),
        NOTHING(CreateRectRgnIndirect),
        NOTHING(CreateSolidBrush),
        NOTHING(ExtCreatePen),
        NOTHING(GetDC),
        NOTHING(GetTextExtentExPointW),
        NOTHING(GetTextExtentPoint32W),
        NOTHING(GetTextMetricsW),
        NOTHING(GetWindowDC),
        NOTHING(PathToRegion),
        NOTHING(SaveDC),
        FAILS(GetObjectW, INVALID_HANDLE),
        FAILS(SelectObject, INVALID_HANDLE),
        NOTHING(ImageList_Create),
        NOTHING(ImageList_Duplicate),
        NOTHING(ImageList_LoadImageW),
        NOTHING(ImageList_Replace),
        MINUS_ONE(ImageList_Add),
        MINUS_ONE(ImageList_AddMasked),
        MINUS_ONE(ImageList_ReplaceIcon),
    };
}

std::vector<Point> Resources() {
    return {
        NOTHING(CreateIconFromResourceEx),
        NOTHING(LoadBitmapW),
        NOTHING(LoadCursorW),
        NOTHING(LoadIconW),
        NOTHING(LoadImageW),
        NOTHING(LoadMenuIndirectW),
        NOTHING(LoadResource),
        NOTHING(EnumResourceLanguagesW),
        FAILS(FindResourceW, RESOURCE_NAME_NOT_FOUND),
        FAILS(FindResourceExW, RESOURCE_LANG_NOT_FOUND),
        NOTHING(LoadLibraryW),
        NOTHING(LoadLibraryExW),
        NOTHING(GetModuleFileNameW),
        FAILS(GetModuleHandleExW, MOD_NOT_FOUND),
    };
}

std::vector<Point> Files() {
    return {
        FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE, ERROR_TOO_MANY_OPEN_FILES),
        FAILS(FlushFileBuffers, DISK_FULL),
        FAILS(GetFileInformationByHandle, NOT_READY),
        FAILS(GetFileSizeEx, NOT_READY),
        FAILS(GetFileType, INVALID_HANDLE),
        FAILS(LockFile, LOCK_VIOLATION),
        FAILS(ReadFile, NOT_READY),
        FAILS(SetEndOfFile, DISK_FULL),
        FAILS(SetFilePointerEx, NOT_READY),
        FAILS(SetFileTime, ACCESS_DENIED),
        FAILS(UnlockFile, NOT_LOCKED),
        FAILS(WriteFile, DISK_FULL),
        FAILS(CopyFileW, DISK_FULL),
        FAILS(CreateDirectoryW, ACCESS_DENIED),
        FAILS(DeleteFileW, ACCESS_DENIED),
        FAILS(MoveFileW, ACCESS_DENIED),
        FAILS(MoveFileExW, ACCESS_DENIED),
        FAILS(RemoveDirectoryW, ACCESS_DENIED),
        FAILS(ReplaceFileW, ACCESS_DENIED),
        FAULT_POINT(FindFirstFileW, INVALID_HANDLE_VALUE, ERROR_NOT_READY),
        LATE_FAULT_POINT(FindClose, FALSE, ERROR_NOT_READY),
        FAILS(FindNextFileW, NOT_READY),
        FAILS(GetFileAttributesExW, NOT_READY),
        FAULT_POINT(GetFileAttributesW, INVALID_FILE_ATTRIBUTES, ERROR_NOT_READY),
        FAILS(SetFileAttributesW, ACCESS_DENIED),
        FAULT_POINT(SHGetFolderPathW, E_FAIL, ERROR_NOT_ENOUGH_MEMORY),
        NOTHING(GetFullPathNameW),
    };
}

std::vector<Point> Settings() {
    return {
        STATUS(RegCreateKeyExW, ACCESS_DENIED),       STATUS(RegDeleteKeyW, ACCESS_DENIED),
        STATUS(RegDeleteValueW, ACCESS_DENIED),       STATUS(RegGetValueW, FILE_NOT_FOUND),
        STATUS(RegOpenKeyExW, ACCESS_DENIED),         STATUS(RegQueryValueExW, MORE_DATA),
        STATUS(RegSetKeyValueW, NO_SYSTEM_RESOURCES), STATUS(RegSetValueExW, NO_SYSTEM_RESOURCES),
        NOTHING(WritePrivateProfileStringW),
    };
}

std::vector<Point> Others() {
    return {
        LATE_FAULT_POINT(CloseHandle, FALSE, ERROR_NOT_READY),
        NOTHING(CreateEventW),
        NOTHING(CreateMutexW),
        NOTHING(CreateSemaphoreW),
        NOTHING(CreateThread),
        NOTHING(DuplicateHandle),
        NOTHING(CommandLineToArgvW),
        NOTHING(FormatMessageA),
        NOTHING(FormatMessageW),
        FAILS(FileTimeToLocalFileTime, INVALID_PARAMETER),
        FAILS(FileTimeToSystemTime, INVALID_PARAMETER),
        FAILS(MultiByteToWideChar, NO_UNICODE_TRANSLATION),
        FAILS(WideCharToMultiByte, NO_UNICODE_TRANSLATION),
    };
}

} // namespace

const std::vector<Point>& SystemPoints() {
    static const std::vector<Point> all = [] {
        std::vector<Point> points;
        for (const auto part :
             {Memory, WindowsAndMenus, DialogsOfTheSystem, Drawing, Resources, Files, Settings, Others}) {
            const std::vector<Point> some = part();
            points.insert(points.end(), some.begin(), some.end());
        }
        return points;
    }();
    return all;
}

} // namespace testkit::fault
