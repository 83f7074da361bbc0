#ifdef _WIN32

#include "FileSystem.h"

#include <algorithm>
#include <cwchar>
#include <fcntl.h>
#include <io.h>

using namespace fieldkit::detail;

namespace fieldkit::detail::filesystem {

namespace {

constexpr UINT kAccessMask = CFile::modeWrite | CFile::modeReadWrite;

// A failure that leaves no error number would pass for success.
Error LastError() {
    return static_cast<Error>(std::max<DWORD>(GetLastError(), 1));
}

Error Check(BOOL done) {
    return done ? 0 : LastError();
}

DWORD AccessOf(UINT flags) {
    switch (flags & kAccessMask) {
    case CFile::modeRead:
        return GENERIC_READ;
    case CFile::modeWrite:
        return GENERIC_WRITE;
    default:
        return GENERIC_READ | GENERIC_WRITE;
    }
}

DWORD ShareOf(UINT flags) {
    switch (flags & kShareMask) {
    case CFile::shareDenyWrite:
        return FILE_SHARE_READ;
    case CFile::shareDenyRead:
        return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
        return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:
        return 0;
    }
}

DWORD DispositionOf(UINT flags) {
    if ((flags & CFile::modeCreate) == 0)
        return OPEN_EXISTING;
    return (flags & CFile::modeNoTruncate) != 0 ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD AttributesOf(UINT flags) {
    DWORD attributes = FILE_ATTRIBUTE_NORMAL;
    if ((flags & CFile::osNoBuffer) != 0)
        attributes |= FILE_FLAG_NO_BUFFERING;
    if ((flags & CFile::osWriteThrough) != 0)
        attributes |= FILE_FLAG_WRITE_THROUGH;
    if ((flags & CFile::osRandomAccess) != 0)
        attributes |= FILE_FLAG_RANDOM_ACCESS;
    if ((flags & CFile::osSequentialScan) != 0)
        attributes |= FILE_FLAG_SEQUENTIAL_SCAN;
    return attributes;
}

bool StartsWith(const CString& path, LPCTSTR start) {
    return path.Left(static_cast<int>(std::wcslen(start))).CompareNoCase(start) == 0;
}

// The system's own spelling of a full path: \\.\NUL for NUL, and for AUX.txt where that is still
// a device. Opening one to see what it is may already start it.
bool IsDevice(const CString& path) {
    if (!StartsWith(path, L"\\\\.\\") && !StartsWith(path, L"\\\\?\\"))
        return false;
    const CString rest = path.Mid(4);
    return rest.Mid(1, 2) != L":\\" && !StartsWith(rest, L"UNC\\") && !StartsWith(rest, L"Volume{");
}

} // namespace

Error Open(LPCTSTR path, UINT flags, HANDLE& file) {
    if (IsDevice(path))
        return ERROR_BAD_PATHNAME;
    SECURITY_ATTRIBUTES security{};
    security.nLength = sizeof(security);
    security.bInheritHandle = (flags & CFile::modeNoInherit) == 0;
    file = CreateFileW(path, AccessOf(flags), ShareOf(flags), &security, DispositionOf(flags),
                       AttributesOf(flags), nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return LastError();
    if (GetFileType(file) == FILE_TYPE_DISK)
        return 0;
    CloseHandle(file); // a console, or a pipe of a server
    return ERROR_BAD_PATHNAME;
}

Error Close(HANDLE file) {
    return Check(CloseHandle(file));
}

Error Duplicate(HANDLE file, HANDLE& copy) {
    if (file == INVALID_HANDLE_VALUE)
        return ERROR_INVALID_HANDLE; // the same number means this process
    const HANDLE process = GetCurrentProcess();
    return Check(DuplicateHandle(process, file, process, &copy, 0, FALSE, DUPLICATE_SAME_ACCESS));
}

Error Read(HANDLE file, void* buffer, UINT count, UINT& read) {
    DWORD done = 0;
    const Error error = Check(ReadFile(file, buffer, count, &done, nullptr));
    read = done;
    return error == ERROR_BROKEN_PIPE ? 0 : error; // the end of a pipe
}

Error Write(HANDLE file, const void* buffer, UINT count, UINT& written) {
    // Again for the rest of what was written only in part: that call tells why.
    for (written = 0; written < count;) {
        DWORD done = 0;
        const auto* rest = static_cast<const BYTE*>(buffer) + written;
        const Error error = Check(WriteFile(file, rest, count - written, &done, nullptr));
        written += done;
        if (error != 0 || done == 0)
            return error;
    }
    return 0;
}

HANDLE HandleOf(std::FILE* stream, bool& text) {
    std::fseek(stream, 0, SEEK_CUR);
    const int number = _fileno(stream);
    const int mode = _setmode(number, _O_BINARY); // there is no other way to ask for it
    _setmode(number, mode);
    text = (mode & _O_TEXT) != 0;
    return reinterpret_cast<HANDLE>(_get_osfhandle(number));
}

Error WriteStream(std::FILE* stream, const void* buffer, UINT count) {
    const int mode = _setmode(_fileno(stream), _O_BINARY);
    const bool done = std::fwrite(buffer, 1, count, stream) == count && std::fflush(stream) == 0;
    const Error error = done ? 0 : LastError();
    _setmode(_fileno(stream), mode);
    return error;
}

Error Seek(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position) {
    LARGE_INTEGER distance{};
    LARGE_INTEGER result{};
    distance.QuadPart = offset;
    const Error error = Check(SetFilePointerEx(file, distance, &result, from));
    position = static_cast<ULONGLONG>(result.QuadPart);
    return error;
}

Error SetEndOfFile(HANDLE file, ULONGLONG length) {
    ULONGLONG position = 0;
    const Error error = Seek(file, static_cast<LONGLONG>(length), FILE_BEGIN, position);
    return error != 0 ? error : Check(::SetEndOfFile(file));
}

Error GetLength(HANDLE file, ULONGLONG& length) {
    LARGE_INTEGER size{};
    const Error error = Check(GetFileSizeEx(file, &size));
    length = static_cast<ULONGLONG>(size.QuadPart);
    return error;
}

Error Flush(HANDLE file) {
    return Check(FlushFileBuffers(file));
}

Error Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock) {
    const auto change = lock ? LockFile : UnlockFile;
    return Check(change(file, static_cast<DWORD>(position), static_cast<DWORD>(position >> 32),
                        static_cast<DWORD>(count), static_cast<DWORD>(count >> 32)));
}

Error Rename(LPCTSTR from, LPCTSTR to) {
    return Check(MoveFileW(from, to));
}

Error Remove(LPCTSTR path) {
    return Check(DeleteFileW(path));
}

CString FullPath(LPCTSTR path) {
    const DWORD needed = GetFullPathNameW(path, 0, nullptr, nullptr);
    CString full;
    const DWORD length =
        GetFullPathNameW(path, needed, full.GetBufferSetLength(static_cast<int>(needed)), nullptr);
    if (length == 0 || length >= needed)
        return path;
    full.ReleaseBuffer(static_cast<int>(length));
    return full;
}

bool IsSeparator(wchar_t ch) noexcept {
    return ch == L'\\' || ch == L'/' || ch == L':';
}

} // namespace fieldkit::detail::filesystem

namespace {

// ERROR_DISK_QUOTA_EXCEEDED, which not every system header knows.
constexpr LONG kDiskQuotaExceeded = 1295;

} // namespace

int AFXAPI CFileException::OsErrorToException(LONG lOsErr) {
    switch (lOsErr) {
    case NO_ERROR:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_SHARING_BUFFER_EXCEEDED:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
    case ERROR_DIR_NOT_EMPTY:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_CANNOT_MAKE:
        return directoryFull;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
    case ERROR_SEEK_ON_DEVICE:
        return badSeek;
    case ERROR_CRC:
    case ERROR_NOT_READY:
    case ERROR_BAD_UNIT:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
    case ERROR_WRONG_DISK:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_FILE_INVALID: // the volume was changed under the open file
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_MEDIA_CHANGED:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_DEVICE_REMOVED:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_NETNAME_DELETED:
        return hardIO;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
    case ERROR_LOCK_FAILED:
    case ERROR_NOT_LOCKED:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

#endif
