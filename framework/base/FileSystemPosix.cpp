#ifndef _WIN32

#include "FileSystem.h"

#include "TextConvert.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace fieldkit::detail;

namespace fieldkit::detail::filesystem {

namespace {

int Fd(HANDLE file) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(file));
}

HANDLE Handle(int fd) {
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(fd));
}

Error Check(int result) {
    return result >= 0 ? 0 : errno;
}

// A signal in between is no failure.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

// Lengths and offsets beyond the system's own type must not wrap round.
bool Fits(ULONGLONG value) {
    return value <= static_cast<ULONGLONG>(std::numeric_limits<off_t>::max());
}

int AccessOf(UINT flags) {
    if ((flags & CFile::modeReadWrite) != 0)
        return O_RDWR;
    return (flags & CFile::modeWrite) != 0 ? O_WRONLY : O_RDONLY;
}

// The share flags become an advisory lock: nobody else at all, or readers only.
Error Share(int fd, UINT flags) {
    const UINT share = flags & kShareMask;
    if (share == CFile::shareDenyNone)
        return 0;
    const bool readers = share == CFile::shareDenyWrite && AccessOf(flags) == O_RDONLY;
    return Check(Uninterrupted([&] { return flock(fd, (readers ? LOCK_SH : LOCK_EX) | LOCK_NB); }));
}

Error Prepare(int fd, UINT flags) {
    struct stat status {};
    if (fstat(fd, &status) != 0)
        return errno;
    if (S_ISDIR(status.st_mode))
        return EACCES; // opening a folder fails on the other system
    if (!S_ISREG(status.st_mode))
        return ENXIO; // a device or a pipe keeps nothing of what is written
    if (const Error error = Share(fd, flags); error != 0)
        return error;
    // Cut only now: a file that another holds must keep its content.
    const bool truncate = (flags & (CFile::modeCreate | CFile::modeNoTruncate)) == CFile::modeCreate;
    return truncate ? Check(Uninterrupted([&] { return ftruncate(fd, 0); })) : 0;
}

} // namespace

Error Open(LPCTSTR path, UINT flags, HANDLE& file) {
    // Nobody waits for the other end of a pipe that is refused anyway; files know no waiting.
    int mode = AccessOf(flags) | O_NONBLOCK | O_NOCTTY;
    if ((flags & CFile::modeCreate) != 0) {
        mode |= O_CREAT;
        if ((mode & O_ACCMODE) == O_RDONLY && (flags & CFile::modeNoTruncate) == 0)
            mode |= O_RDWR; // cutting needs the right to write
    }
    if ((flags & CFile::modeNoInherit) != 0)
        mode |= O_CLOEXEC;
    if ((flags & CFile::osWriteThrough) != 0)
        mode |= O_SYNC;
    const std::string name = AfxNarrow(path);
    const int fd = Uninterrupted([&] { return open(name.c_str(), mode, 0666); });
    if (fd < 0)
        return errno;
    const Error error = Prepare(fd, flags);
    if (error != 0)
        close(fd);
    else
        file = Handle(fd);
    return error;
}

Error Close(HANDLE file) {
    return Check(close(Fd(file)));
}

Error Duplicate(HANDLE file, HANDLE& copy) {
    const int fd = fcntl(Fd(file), F_DUPFD_CLOEXEC, 0);
    copy = Handle(fd);
    return Check(fd);
}

Error Read(HANDLE file, void* buffer, UINT count, UINT& read) {
    read = 0;
    while (read < count) {
        char* const rest = static_cast<char*>(buffer) + read;
        const ssize_t done = Uninterrupted([&] { return ::read(Fd(file), rest, count - read); });
        if (done < 0)
            return errno;
        if (done == 0)
            break;
        read += static_cast<UINT>(done);
    }
    return 0;
}

Error Write(HANDLE file, const void* buffer, UINT count, UINT& written) {
    written = 0;
    while (written < count) {
        const char* const rest = static_cast<const char*>(buffer) + written;
        const ssize_t done = Uninterrupted([&] { return ::write(Fd(file), rest, count - written); });
        if (done < 0)
            return errno;
        if (done == 0)
            break;
        written += static_cast<UINT>(done);
    }
    return 0;
}

HANDLE HandleOf(std::FILE* stream, bool& text) {
    std::fseek(stream, 0, SEEK_CUR);
    text = true;
    return Handle(fileno(stream));
}

Error WriteStream(std::FILE* stream, const void* buffer, UINT count) {
    return std::fwrite(buffer, 1, count, stream) == count && std::fflush(stream) == 0 ? 0 : errno;
}

Error Seek(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position) {
    constexpr int kOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    if (from >= std::size(kOrigins))
        return EINVAL;
    const auto target = static_cast<off_t>(offset);
    // unreachable: where off_t has 64 bits, but for the ARM build it has 32
    if (target != offset)
        return EOVERFLOW;
    const off_t result = lseek(Fd(file), target, kOrigins[from]);
    position = static_cast<ULONGLONG>(result);
    return result >= 0 ? 0 : errno;
}

Error SetEndOfFile(HANDLE file, ULONGLONG length) {
    if (!Fits(length))
        return EFBIG;
    ULONGLONG position = 0;
    const Error error = Seek(file, static_cast<LONGLONG>(length), CFile::begin, position);
    if (error != 0)
        return error;
    return Check(Uninterrupted([&] { return ftruncate(Fd(file), static_cast<off_t>(length)); }));
}

Error GetLength(HANDLE file, ULONGLONG& length) {
    struct stat status {};
    const Error error = Check(fstat(Fd(file), &status));
    length = static_cast<ULONGLONG>(status.st_size);
    return error;
}

Error Flush(HANDLE file) {
    return Check(Uninterrupted([&] { return fsync(Fd(file)); }));
}

Error Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock) {
    if (!Fits(position) || !Fits(count))
        return EOVERFLOW;
    struct flock range {};
    range.l_type = lock ? F_WRLCK : F_UNLCK;
    range.l_whence = SEEK_SET;
    range.l_start = static_cast<off_t>(position);
    range.l_len = static_cast<off_t>(count);
    const Error error = Check(fcntl(Fd(file), F_SETLK, &range));
    return error == EWOULDBLOCK ? ENOLCK : error; // not the violation of a share flag
}

Error Rename(LPCTSTR from, LPCTSTR to) {
    const std::string target = AfxNarrow(to);
    if (access(target.c_str(), F_OK) == 0)
        return EEXIST; // never replaces a file
    return Check(std::rename(AfxNarrow(from).c_str(), target.c_str()));
}

Error Remove(LPCTSTR path) {
    return Check(unlink(AfxNarrow(path).c_str()));
}

CString FullPath(LPCTSTR path) {
    std::error_code error;
    const auto full = std::filesystem::absolute(AfxNarrow(path), error).lexically_normal();
    return error ? CString(path) : CString(full.c_str());
}

bool IsSeparator(wchar_t ch) noexcept {
    return ch == L'/';
}

} // namespace fieldkit::detail::filesystem

int AFXAPI CFileException::OsErrorToException(LONG lOsErr) {
    switch (lOsErr) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
    case ENXIO:
        return badPath;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EEXIST:
    case EISDIR:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EINVAL:
    case ESPIPE:
    case EOVERFLOW:
        return badSeek;
    case EIO:
    case ENODEV:
    case ENOMEDIUM:
    case EREMOTEIO:
        return hardIO;
    case EWOULDBLOCK:
        return sharingViolation;
    case ENOLCK:
        return lockViolation;
    case ENOSPC:
    case EFBIG:
    case EDQUOT:
        return diskFull;
    default:
        return genericException;
    }
}

#endif
