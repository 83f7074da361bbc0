/// @file
/// A folder of a test's own, which goes with it.
#pragma once

#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <string_view>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

struct TempFolder : testing::Test {
    static constexpr UINT kCreate = CFile::modeCreate | CFile::modeReadWrite;

    TempFolder() { std::filesystem::create_directories(m_folder); }
    ~TempFolder() override { std::filesystem::remove_all(m_folder); }

    CString Path(LPCTSTR name) const {
        const CString folder(m_folder.c_str());
        return folder + static_cast<TCHAR>(std::filesystem::path::preferred_separator) + name;
    }
    /// Makes a file of these bytes. @return its path
    CString Make(LPCTSTR name, std::string_view bytes) const {
        const CString path = Path(name);
        CFile(path, kCreate).Write(bytes.data(), static_cast<UINT>(bytes.size()));
        return path;
    }
    /// What a file holds, also one that is open.
    static std::string Text(LPCTSTR path) {
        CFile file(path, CFile::modeRead | CFile::shareDenyNone);
        const Bytes bytes = ContentOf(file);
        return {bytes.begin(), bytes.end()};
    }

    /// What another user of the file is told who locks a range for a moment.
    static int CauseOfLocking(LPCTSTR path, ULONGLONG position, ULONGLONG count) {
        const auto lock = [&] {
            return CauseOf([&] {
                CFile other(path, CFile::modeReadWrite | CFile::shareDenyNone);
                other.LockRange(position, count);
                other.UnlockRange(position, count);
            });
        };
#ifdef _WIN32
        return lock();
#else
        const pid_t child = ::fork(); // locks are those of a process
        if (child == 0)
            ::_exit(lock());
        int status = 0;
        ::waitpid(child, &status, 0);
        return WEXITSTATUS(status);
#endif
    }

    const std::filesystem::path m_folder =
        std::filesystem::temp_directory_path() / ("fieldkit-" + std::to_string(std::random_device{}()));
};
