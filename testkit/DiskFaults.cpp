#include "testkit/DiskFaults.h"

#include "testkit/detail/FaultRuns.h"

#include <cstdlib>

namespace testkit::fault {

namespace {

DWORD g_dwError = ERROR_SUCCESS; ///< Of the present trouble.

/// Which calls the present trouble makes fail.
struct WhenRefused {
    template <class... A>
    bool operator()(const A&...) const {
        return g_dwError != ERROR_SUCCESS;
    }
};
struct WithoutMemory {
    template <class... A>
    bool operator()(const A&...) const {
        return g_dwError == ERROR_NOT_ENOUGH_MEMORY;
    }
};

template <class Result>
Result Refuse(Result failure) {
    ::SetLastError(g_dwError);
    return failure;
}

#define REFUSED(function, failure)                                                                           \
    FAULT_POINT_OF(                                                                                          \
        function, [](auto&&...) { return Refuse(failure); }, WhenRefused())
#define NO(function) REFUSED(function, FALSE)
#define NO_KEY(function) REFUSED(function, static_cast<LSTATUS>(g_dwError))
#define NO_MEMORY(function)                                                                                  \
    FAULT_POINT_OF(                                                                                          \
        function, [](auto&&...) { return nullptr; }, WithoutMemory())
#define LATE(function)                                                                                       \
    FAULT_POINT_OF(                                                                                          \
        function,                                                                                            \
        [](auto real, auto... args) {                                                                        \
            real(args...);                                                                                   \
            return Refuse(FALSE);                                                                            \
        },                                                                                                   \
        WhenRefused())
#define HALF(function)                                                                                       \
    FAULT_POINT_OF(function, [](auto real, HANDLE hFile, auto pBlock, DWORD dwSize, auto... rest) {          \
        return WhenRefused()() ? Refuse(FALSE) : real(hFile, pBlock, dwSize - dwSize / 2, rest...);          \
    })

} // namespace

const std::vector<DiskTrouble>& DiskTroubles() {
    static const std::vector<DiskTrouble> all = {
        {"full disk", ERROR_DISK_FULL, Injection::Once},
        {"disk that stays full", ERROR_DISK_FULL, Injection::Onwards},
        {"card not ready", ERROR_NOT_READY, Injection::Once},
        {"pulled card", ERROR_DEVICE_REMOVED, Injection::Onwards},
        {"file in use", ERROR_SHARING_VIOLATION, Injection::Once},
        {"write protection", ERROR_WRITE_PROTECT, Injection::Onwards},
        {"no memory", ERROR_NOT_ENOUGH_MEMORY, Injection::Once},
        {"half a block", ERROR_SUCCESS, Injection::Once},
        {"half of each block", ERROR_SUCCESS, Injection::Onwards},
    };
    return all;
}

const std::vector<Point>& DiskPoints() {
    static const std::vector<Point> all = {
        // An open file
        REFUSED(CreateFileW, INVALID_HANDLE_VALUE),
        HALF(ReadFile),
        HALF(WriteFile),
        NO(SetFilePointerEx),
        NO(SetEndOfFile),
        NO(GetFileInformationByHandle),
        NO(GetFileSizeEx),
        NO(SetFileTime),
        NO(LockFile),
        NO(FlushFileBuffers),
        LATE(CloseHandle),
        // Names
        NO(CopyFileW),
        NO(DeleteFileW),
        NO(MoveFileW),
        NO(MoveFileExW),
        NO(ReplaceFileW),
        NO(GetFileAttributesExW),
        REFUSED(GetFileAttributesW, INVALID_FILE_ATTRIBUTES),
        NO(SetFileAttributesW),
        REFUSED(FindFirstFileW, INVALID_HANDLE_VALUE),
        NO(FindNextFileW),
        NO(CreateDirectoryW),
        NO(RemoveDirectoryW),
        // Settings
        NO_KEY(RegCreateKeyExW),
        NO_KEY(RegOpenKeyExW),
        NO_KEY(RegSetKeyValueW),
        NO_KEY(RegSetValueExW),
        NO(WritePrivateProfileStringW),
        // Memory
        NO_MEMORY(malloc),
        NO_MEMORY(calloc),
        NO_MEMORY(realloc),
    };
    return all;
}

void FailEachDiskCall(const std::function<bool()>& run, const std::function<void(const DiskRun&)>& check,
                      const std::vector<DiskTrouble>& troubles, const Place& place) {
    detail::FaultRuns runs;
    bool bAnyFailed = false;
    for (const DiskTrouble& trouble : troubles) {
        g_dwError = trouble.dwError;
        int nMost = 0;
        for (int nCall = 0;; ++nCall) {
            const std::string name = trouble.name + ", call " + std::to_string(nCall);
            const detail::FaultRun result = runs.Run(name, nCall, trouble.extent, run);
            const bool bFailed = !result.failed.empty();
            const std::string text = bFailed ? name + ", " + result.failed : name;
            if (!bFailed && !result.bDone) {
                Fail("not done, though nothing fails: " + text + ", " + result.thrown, place);
                return;
            }
            check({result.bDone, text});
            if (nCall == 0)
                nMost = 2 * result.nCalls + 100; // files and histories may grow meanwhile
            else if (!bFailed)
                break;
            if (nCall > nMost) {
                Fail("more calls from run to run, it would never end: " + text, place);
                return;
            }
            bAnyFailed = bAnyFailed || bFailed;
        }
    }
    if (!bAnyFailed)
        Fail("no call could fail: are the modules installed that make them?", place);
}

} // namespace testkit::fault
