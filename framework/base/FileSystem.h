/// @file
/// The operating system's file calls, in the one form that CFile needs. Failures are
/// system error numbers (GetLastError on Windows, errno elsewhere), 0 is success.
#pragma once

#include "afx.h"

#include <cstdio>

namespace fieldkit::detail::filesystem {

using Error = LONG;

/// The share flags, one of which applies.
constexpr UINT kShareMask = CFile::shareDenyWrite | CFile::shareDenyRead | CFile::shareDenyNone;
/// Opens a file on disk, and nothing else that may have a name: devices, pipes and folders are
/// refused, since what is written to them is gone.
/// @param flags CFile::OpenFlags.
Error Open(LPCTSTR path, UINT flags, HANDLE& file);
Error Close(HANDLE file);
Error Duplicate(HANDLE file, HANDLE& copy);
/// @param read the bytes that came before the error or the end of the file.
Error Read(HANDLE file, void* buffer, UINT count, UINT& read);
/// @param written fewer than `count` without an error means that the disk is full.
Error Write(HANDLE file, const void* buffer, UINT count, UINT& written);
/// @param from a CFile::SeekPosition.
Error Seek(HANDLE file, LONGLONG offset, UINT from, ULONGLONG& position);
Error SetEndOfFile(HANDLE file, ULONGLONG length);
Error GetLength(HANDLE file, ULONGLONG& length);
Error Flush(HANDLE file);
Error Lock(HANDLE file, ULONGLONG position, ULONGLONG count, bool lock);
/// The handle of a stream of C, its position that of the stream, and whether the stream is of text.
HANDLE HandleOf(std::FILE* stream, bool& text);
/// Writes all of it as it is, in the stream's own way, which may be to append.
Error WriteStream(std::FILE* stream, const void* buffer, UINT count);
Error Rename(LPCTSTR from, LPCTSTR to);
Error Remove(LPCTSTR path);
/// The path from the root; the path as it is if the system gives none.
CString FullPath(LPCTSTR path);
bool IsSeparator(wchar_t ch) noexcept;

} // namespace fieldkit::detail::filesystem
