// What the texts utilities make of want of memory and bad disks.
#include "support/NativeFaults.h"
#include "support/TempFolder.h"
#include "util/BufferedAsciiFile.h"

#include <cerrno>
#include <csignal>
#include <cwchar>

#include <sys/resource.h>

// fieldkit::detail::OemToWide by the name that the linker knows.
#define OEM_TO_WIDE(prefix) prefix##_ZN8fieldkit6detail9OemToWideEPKcPwi
extern "C" int OEM_TO_WIDE(__real_)(LPCSTR, LPWSTR, int);

namespace {

enum class Converter { Sound, Unterminated, Failing };
Converter g_converter = Converter::Sound;

constexpr LPCTSTR kLong = L"a text that is longer than any small string";

/// The disk takes files of so many bytes only, and what fits of larger ones.
struct Limit {
    explicit Limit(rlim_t nBytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {nBytes, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~Limit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_pfnBefore);
    }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

private:
    rlimit m_before = {};
    void (*m_pfnBefore)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

struct BufferedAsciiFileFaults : TempFolder {
    const CString m_path = Path(L"faults.txt");
};

TEST_F(BufferedAsciiFileFaults, ReadingLeaksNothingAndTrustsNoConverter) {
    CAsciiFile file;
    ASSERT_TRUE(file.Open(Make(L"faults.txt", "old1\r\n"), CFile::modeRead));
    const auto read = [&] {
        file.SeekToBegin();
        CString str = kLong;
        EXPECT_EQ(1, file.ReadString(str));
        return str;
    };
    EXPECT_GT(faults::FailEach(faults::FailMemory, read), 0);
    g_converter = Converter::Unterminated;
    EXPECT_STREQ(L"xxx", read());
    g_converter = Converter::Failing;
    EXPECT_STREQ(L"", read());
    g_converter = Converter::Sound;
}

TEST_F(BufferedAsciiFileFaults, EachFailureIsTheCallersAndNothingIsLeft) {
    const auto fail = [](long nth) { faults::FailCall(nullptr, EIO, nth); };
    const auto use = [this](bool bClose) {
        CBufferedAsciiFile file;
        CFileException error;
        if (!file.Open(m_path, kCreate, &error))
            AfxThrowFileException(error.m_cause);
        file.WriteString(kLong);
        file.SeekToBegin();
        char ch = 0;
        file.Read(&ch, 1);
        file.WriteString(kLong);
        if (bClose)
            file.Close();
    };
    EXPECT_GT(faults::FailEach(faults::FailMemory, [&] { use(true); }), 1);
    EXPECT_GT(faults::FailEach(fail, [&] { use(true); }), 8);
    faults::FailCall("write", EIO, 2);
    const faults::Use before = faults::Now();
    EXPECT_EQ(faults::End::Done, faults::EndOf([&] { use(false); })) << "a destructor tells nobody";
    EXPECT_TRUE(faults::Disarm());
    EXPECT_EQ(before, faults::Now());
}

TEST_F(BufferedAsciiFileFaults, AfterALossTheNextFileIsClean) {
    CBufferedAsciiFile file;
    for (const bool bClose : {true, false}) {
        ASSERT_TRUE(file.Open(m_path, kCreate));
        file.Seek(100, CFile::begin);
        file.WriteString(L"lost");
        faults::FailCall("write", EIO);
        EXPECT_EQ(bClose ? faults::End::FileError : faults::End::Done,
                  faults::EndOf([&] { bClose ? file.Close() : file.Abort(); }));
        EXPECT_TRUE(faults::Disarm());
        EXPECT_EQ(CFile::hFileNull, file.m_hFile);
        EXPECT_EQ(0U, CFile(m_path, CFile::modeRead).GetLength()) << "not written a second time";
        ASSERT_TRUE(file.Open(m_path, kCreate));
        CString str;
        EXPECT_EQ(0, file.GetPosition());
        EXPECT_EQ(0, file.GetLength());
        EXPECT_EQ(0, file.ReadString(str));
        file.WriteString(L"kept");
        faults::FailCall("fsync", EIO);
        EXPECT_EQ(faults::End::FileError, faults::EndOf([&] { file.Flush(); }));
        ASSERT_TRUE(file.Open(Path(L"another"), kCreate));
        file.Close();
        EXPECT_EQ(CFile::hFileNull, file.m_hFile);
        EXPECT_EQ(6, CFile(m_path, CFile::modeRead).GetLength());
    }
}

TEST_F(BufferedAsciiFileFaults, WhatTheDiskDidNotTakeIsWrittenTheNextTime) {
    CBufferedAsciiFile file;
    ASSERT_TRUE(file.Open(m_path, kCreate));
    file.WriteString(L"1");
    for (const int nError : {ENOSPC, EIO}) {
        faults::FailCall("write", nError);
        EXPECT_EQ(faults::End::FileError, faults::EndOf([&] { file.Flush(); }));
        faults::Disarm();
        file.WriteString(L"2");
    }
    {
        const Limit limit(4); // within the second line
        EXPECT_EQ(faults::End::FileError, faults::EndOf([&] { file.Flush(); }));
    }
    file.SeekToBegin();
    char bytes[10] = {};
    faults::FailCall("read", EIO); // the block's, so this one byte is asked for
    EXPECT_EQ(1U, file.Read(bytes, 1));
    EXPECT_TRUE(faults::Disarm());
    EXPECT_EQ(8U, file.Read(bytes + 1, 9));
    EXPECT_STREQ("1\r\n2\r\n2\r\n", bytes);
    EXPECT_THROW(file.Duplicate(), CNotSupportedException*);
    file.Close();
}

TEST_F(BufferedAsciiFileFaults, AroundALockTheFileIsAsOthersSeeIt) {
    CBufferedAsciiFile file;
    ASSERT_TRUE(file.Open(Make(L"faults.txt", "1\r\n2\r\n"), CFile::modeReadWrite | CFile::shareDenyNone));
    CFile other(m_path, CFile::modeReadWrite | CFile::shareDenyNone);
    char bytes[4] = {};
    file.Read(bytes, 1);
    other.Write("abc", 3);
    file.LockRange(0, 4);
    EXPECT_EQ(CFileException::lockViolation, CauseOfLocking(m_path, 3, 1));
    EXPECT_EQ(CFileException::none, CauseOfLocking(m_path, 4, 1));
    EXPECT_EQ(3U, file.Read(bytes, 3));
    EXPECT_STREQ("bc2", bytes);
    file.Write("d", 1);
    file.UnlockRange(0, 4);
    EXPECT_EQ(CFileException::none, CauseOfLocking(m_path, 3, 1));
    other.Seek(4, CFile::begin);
    EXPECT_EQ(1U, other.Read(bytes, 1));
    EXPECT_EQ('d', bytes[0]);
}

} // namespace

extern "C" int OEM_TO_WIDE(__wrap_)(LPCSTR pszSource, LPWSTR pszTarget, int nTarget) {
    if (g_converter == Converter::Sound)
        return OEM_TO_WIDE(__real_)(pszSource, pszTarget, nTarget);
    std::wmemset(pszTarget, L'x', static_cast<std::size_t>(nTarget) - 1);
    pszTarget[nTarget - 1] = L'\0';
    return g_converter == Converter::Failing ? 0 : 4;
}
