#include "Faults.h"

#include "support/TestData.h"

#include <commctrl.h>
#include <commdlg.h>
#include <dwmapi.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shlobj.h>

#include <cstdlib>
#include <map>
#include <sstream>
#include <string>

using namespace testkit;

using namespace testkit::fault;

namespace fx {

namespace {

/// Messages by which a control allocates, and its answers when there is no memory.
const std::map<UINT, LRESULT> REFUSALS = {{LB_ADDSTRING, LB_ERRSPACE}, {LB_INSERTSTRING, LB_ERRSPACE},
                                          {CB_ADDSTRING, CB_ERRSPACE}, {CB_INSERTSTRING, CB_ERRSPACE},
                                          {LVM_INSERTITEMW, -1},       {LVM_INSERTCOLUMNW, -1},
                                          {TVM_INSERTITEMW, 0},        {LVM_SETITEMW, 0},
                                          {LVM_SETITEMTEXTW, 0}};

/// Null, false or zero, whatever the function gives.
struct Zero {
    template <class Result>
    explicit operator Result() const {
        return Result{};
    }
};

#define NOTHING(function) FAULT_POINT(function, Zero(), ERROR_NOT_ENOUGH_MEMORY)
#define FAILS(function, error) FAULT_POINT(function, Zero(), ERROR_##error)
#define DENIED(function) FAULT_POINT(function, LSTATUS{ERROR_ACCESS_DENIED}, ERROR_ACCESS_DENIED)

// clang-format off
std::vector<Point> Points() {
    return {
        NOTHING(malloc), NOTHING(calloc), NOTHING(realloc), NOTHING(LoadResource), NOTHING(LoadLibraryW),
        NOTHING(SysAllocStringLen), NOTHING(LoadLibraryExW), NOTHING(BeginPaint), NOTHING(CreateDialogIndirectParamW),
        NOTHING(CreateIconFromResourceEx), NOTHING(CreateWindowExW), NOTHING(GetDC), NOTHING(GetWindowDC),
        NOTHING(LoadBitmapW), NOTHING(LoadCursorW), NOTHING(LoadIconW), NOTHING(LoadMenuIndirectW),
        NOTHING(SetWindowsHookExW), NOTHING(CreateBitmap), NOTHING(CreateBitmapIndirect),
        NOTHING(CreateBrushIndirect), NOTHING(CreateCompatibleBitmap), NOTHING(CreateCompatibleDC),
        NOTHING(CreateFontIndirectW), NOTHING(CreateFontW), NOTHING(CreateHatchBrush),
        NOTHING(CreatePatternBrush), NOTHING(CreatePen), NOTHING(CreatePenIndirect),
        NOTHING(CommandLineToArgvW), NOTHING(CreateDCW), NOTHING(CreateICW), NOTHING(CreateDiscardableBitmap),
        NOTHING(CreateMappedBitmap), NOTHING(CreateEventW), NOTHING(CreateMutexW), NOTHING(CreateSemaphoreW),
        NOTHING(ExtCreatePen), NOTHING(FindTextW), NOTHING(PathToRegion), NOTHING(ReplaceTextW),
        NOTHING(AppendMenuW), NOTHING(ChooseColorW), NOTHING(ChooseFontW), NOTHING(GetOpenFileNameW),
        NOTHING(GetSaveFileNameW), NOTHING(InsertMenuW), NOTHING(ModifyMenuW), NOTHING(SetMenuItemInfoW),
        NOTHING(TrackPopupMenuEx), NOTHING(WritePrivateProfileStringW), NOTHING(CreateRectRgnIndirect),
        NOTHING(CreateSolidBrush), NOTHING(CreatePropertySheetPageW), NOTHING(ImageList_Create),
        NOTHING(ImageList_Duplicate), NOTHING(ImageList_LoadImageW), NOTHING(DuplicateHandle),
        NOTHING(SetDlgItemInt), NOTHING(SetDlgItemTextW), NOTHING(SetWindowPos), NOTHING(SetWindowTextW),
        NOTHING(SystemParametersInfoW), NOTHING(TrackPopupMenu), NOTHING(GetTextExtentExPointW),
        NOTHING(GetTextExtentPoint32W), NOTHING(GetTextMetricsW), NOTHING(ImageList_Replace),
        NOTHING(InitCommonControlsEx), NOTHING(MessageBoxW), NOTHING(MessageBoxExW), NOTHING(RegisterClassW), NOTHING(SetTimer),
        NOTHING(SaveDC), NOTHING(GetFullPathNameW), NOTHING(FormatMessageA), NOTHING(FormatMessageW),
        NOTHING(GetModuleFileNameW),
        FAILS(FindNextFileW, NOT_READY), FAILS(GetFileSizeEx, NOT_READY), FAILS(ReadFile, NOT_READY),
        FAILS(SetFilePointerEx, NOT_READY), FAILS(GetFileType, INVALID_HANDLE), FAILS(LockFile, LOCK_VIOLATION),
        FAILS(UnlockFile, NOT_LOCKED), FAILS(FindResourceW, RESOURCE_NAME_NOT_FOUND),
        FAILS(FindResourceExW, RESOURCE_LANG_NOT_FOUND), NOTHING(EnumResourceLanguagesW),
        FAILS(GetModuleHandleExW, MOD_NOT_FOUND),
        FAILS(MultiByteToWideChar, NO_UNICODE_TRANSLATION), FAILS(WideCharToMultiByte, NO_UNICODE_TRANSLATION),
        FAILS(GetComboBoxInfo, INVALID_WINDOW_HANDLE), FAILS(GetMonitorInfoW, INVALID_MONITOR_HANDLE),
        FAILS(PostMessageW, NOT_ENOUGH_QUOTA), FAILS(SendInput, ACCESS_DENIED),
        FAILS(GetObjectW, INVALID_HANDLE), FAILS(SelectObject, INVALID_HANDLE),
        FAILS(DeleteFileW, ACCESS_DENIED), FAILS(MoveFileW, ACCESS_DENIED),
        FAILS(FileTimeToLocalFileTime, INVALID_PARAMETER), FAILS(FileTimeToSystemTime, INVALID_PARAMETER),
        FAILS(FlushFileBuffers, DISK_FULL), FAILS(SetEndOfFile, DISK_FULL), FAILS(WriteFile, DISK_FULL),
        FAILS(GetFileAttributesExW, NOT_READY), FAILS(GetFileInformationByHandle, NOT_READY),
        FAILS(SetFileAttributesW, ACCESS_DENIED), FAILS(SetFileTime, ACCESS_DENIED), DENIED(RegCreateKeyExW),
        DENIED(RegDeleteKeyW), DENIED(RegDeleteValueW), DENIED(RegOpenKeyExW),
        FAULT_POINT(SHGetFolderPathW, E_FAIL, ERROR_NOT_ENOUGH_MEMORY),
        FAULT_POINT(TlsAlloc, TLS_OUT_OF_INDEXES, ERROR_NO_MORE_ITEMS),
        FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE, ERROR_TOO_MANY_OPEN_FILES),
        FAULT_POINT(FindFirstFileW, INVALID_HANDLE_VALUE, ERROR_NOT_READY),
        FAULT_POINT(GetFileAttributesW, INVALID_FILE_ATTRIBUTES, ERROR_NOT_READY),
        FAULT_POINT(RegGetValueW, LSTATUS{ERROR_FILE_NOT_FOUND}, ERROR_FILE_NOT_FOUND),
        FAULT_POINT(RegQueryValueExW, LSTATUS{ERROR_MORE_DATA}, ERROR_MORE_DATA),
        FAULT_POINT(RegSetValueExW, LSTATUS{ERROR_NO_SYSTEM_RESOURCES}, ERROR_NO_SYSTEM_RESOURCES),
        FAULT_POINT(DwmSetWindowAttribute, E_FAIL, ERROR_NOT_ENOUGH_MEMORY), FAULT_POINT(PropertySheetW, INT_PTR{-1}, ERROR_NOT_ENOUGH_MEMORY),
        FAULT_POINT(ImageList_Add, -1, ERROR_NOT_ENOUGH_MEMORY), FAULT_POINT(ImageList_AddMasked, -1, ERROR_NOT_ENOUGH_MEMORY),
        FAULT_POINT(ImageList_ReplaceIcon, -1, ERROR_NOT_ENOUGH_MEMORY), LATE_FAULT_POINT(CloseHandle, FALSE, ERROR_NOT_READY),
        LATE_FAULT_POINT(FindClose, FALSE, ERROR_NOT_READY),
        MakePoint(
            "SendMessageW", ::SendMessageW,
            [](auto, HWND, UINT nMessage, auto...) { return REFUSALS.at(nMessage); },
            [](HWND, UINT nMessage, auto...) { return REFUSALS.contains(nMessage); })};
}
// clang-format on

} // namespace

const std::vector<Point>& Table() {
    static const std::vector<Point> table = Points();
    return table;
}

const std::set<std::string>& Infallible() {
    static const std::set<std::string> names = [] {
        std::ifstream file = testdata::Open("faults/infallible.txt");
        std::set<std::string> all;
        for (std::string line; std::getline(file, line);)
            if (std::istringstream words(line); !line.starts_with('#'))
                all.insert(std::istream_iterator<std::string>(words), {});
        return all;
    }();
    return names;
}

} // namespace fx
