// What the texts utilities make of want of memory, bad disks and damaged files.
#include "support/host/DamagedBytes.h"
#include "util/AsciiFile.h"
#include "util/StringStack.h"
#include "util/detail/CodePage.h"

#include <cerrno>
#include <cwchar>
#include <filesystem>
#include <memory>

extern "C" int __real_MultiByteToWideChar(UINT, DWORD, LPCSTR, int, LPWSTR, int);

namespace {

enum class Converter { Sound, Unterminated, Failing };
Converter g_converter = Converter::Sound;

constexpr LPCTSTR kLong = L"a text that is longer than any small string";

Bytes Archived(CStringStack& stack) {
    return Stored([&](CArchive& ar) { stack.Serialize(ar); });
}

TEST(StringStackFaults, AddingChangesAllOrNothing) {
    struct Row {
        const char* what;
        int mode, capacity, tail;
        LPCTSTR text;
    };
    for (const Row& row :
         {Row{"a new one", 0, 9, 0, kLong}, Row{"a new last one", 0, 9, 1, kLong},
          Row{"a repeated one", 0, 9, 0, L"a repeated text that is longer than any other 1"},
          Row{"one for the same header", 1, 9, 0, L"a repeated text that is longer than any other 2"},
          Row{"into a full list", 0, 2, 0, kLong}, Row{"at the end of a full list", 0, 2, 1, kLong}}) {
        SCOPED_TRACE(row.what);
        const auto make = [&] {
            auto pStack = std::make_unique<CStringStack>(row.mode, row.capacity);
            pStack->Add(L"first", 0);
            pStack->Add(L"a repeated text that is longer than any other 1", 1);
            return pStack;
        };
        EXPECT_GT(faults::FailEachChange(
                      make, [&](CStringStack& stack) { stack.Add(row.text, row.tail); }, Archived),
                  0);
    }
}

TEST(StringStackFaults, LoadingKeepsWhatWasReadAndLeaksNothing) {
    CStringStack stack(1, 300);
    stack.Add(kLong, 0);
    stack.Add(L"B7", 0);
    const Bytes bytes = Archived(stack);
    EXPECT_GT(faults::FailEach(faults::FailMemory,
                               [&] { Loaded(bytes, [](CArchive& ar) { CStringStack().Serialize(ar); }); }),
              3);
    LoadDamaged(bytes, [](CArchive& ar) { CStringStack().Serialize(ar); });
    LoadDamaged(Stored([&](CArchive& ar) { ar << &stack << &stack; }), [](CArchive& ar) {
        const std::unique_ptr<CObject> owner(ar.ReadObject(RUNTIME_CLASS(CStringStack)));
        const CObject* pAgain = ar.ReadObject(RUNTIME_CLASS(CStringStack));
        if (pAgain != owner.get())
            delete pAgain;
    });
}

TEST(StringStackFaults, MemoryGoesWithTheSizeOfTheFile) {
    constexpr std::size_t kTexts = 1 << 20;
    Bytes bytes = FromHex("ff ff ff 7f");
    bytes.resize(bytes.size() + kTexts); // empty texts
    EXPECT_LT(LoadWithoutLoss(bytes, [](CArchive& ar) { CStringStack().Serialize(ar); }), 60 * kTexts);
}

/// An open file with these bytes.
class AsciiFileFaults : public testing::Test {
protected:
    AsciiFileFaults() {
        EXPECT_TRUE(m_file.Open(CString(m_path.c_str()), CFile::modeCreate | CFile::modeReadWrite));
        m_file.Write("old1\r\nold2\r\n", 12);
        m_file.SeekToBegin();
    }
    ~AsciiFileFaults() override {
        g_converter = Converter::Sound;
        m_file.Abort();
        std::filesystem::remove(m_path);
    }

    const std::filesystem::path m_path = std::filesystem::temp_directory_path() / "fieldkit-ascii-faults";
    CAsciiFile m_file;
};

TEST_F(AsciiFileFaults, TheConverterIsNotTrusted) {
    CString str = L"untouched";
    g_converter = Converter::Unterminated;
    EXPECT_EQ(1, m_file.ReadString(str));
    EXPECT_EQ(CString(L"xxx"), str);
    g_converter = Converter::Failing;
    EXPECT_EQ(1, m_file.ReadString(str));
    EXPECT_EQ(CString(), str);
}

TEST_F(AsciiFileFaults, AFailureLeavesTheTextAlone) {
    EXPECT_GT(faults::FailEach(faults::FailMemory,
                               [&] {
                                   m_file.SeekToBegin();
                                   CString str = kLong;
                                   EXPECT_EQ(1, m_file.ReadString(str));
                               }),
              0);
    CString str = L"untouched";
    m_file.SeekToBegin();
    faults::FailCall("read", EIO, 3);
    EXPECT_EQ(faults::End::FileError, faults::EndOf([&] { m_file.ReadString(str); }));
    EXPECT_TRUE(faults::Disarm());
    EXPECT_STREQ(L"untouched", str);
    EXPECT_EQ(2U, m_file.GetPosition());
    m_file.SeekToEnd();
    for (const char* call : {"first", "second"}) {
        faults::FailCall("write", ENOSPC, call[0] == 'f' ? 1 : 2);
        EXPECT_EQ(faults::End::FileError, faults::EndOf([&] { m_file.WriteString(L"new"); })) << call;
        EXPECT_TRUE(faults::Disarm());
    }
    EXPECT_EQ(12U + 3U, m_file.GetLength());
}

/// A million bytes that are made up while they are read.
class CEndlessFile : public CAsciiFile {
public:
    explicit CEndlessFile(const char* pattern) : m_pattern(pattern) {}
    UINT Read(void* lpBuf, UINT) override {
        constexpr std::size_t kSize = 1'000'000;
        if (m_at == kSize)
            return 0;
        *static_cast<char*>(lpBuf) = m_pattern[m_at++ % m_pattern.size()];
        return 1;
    }
    std::size_t m_at = 0;

private:
    std::string m_pattern;
};

TEST(AsciiFileLimits, EveryCallHasItsLimitWhateverTheFileHolds) {
    struct Row {
        const char *what, *pattern;
        std::size_t calls, bytesAtATime;
        int lines;
    };
    for (const Row& row :
         {Row{"a line without end", "x", 1'000'000 / 512 + 1, 512, 0},
          Row{"empty lines", "\r", 1'000'001, 1, 1'000'000}, Row{"blanks", " \n", 1, 1'000'000, 0},
          Row{"fields", "1,2,", 1'000'000 / 512 + 1, 512, 0}}) {
        CEndlessFile file(row.pattern);
        CString str;
        std::size_t calls = 0;
        int lines = 0;
        std::size_t before = 0;
        std::size_t most = 0;
        faults::TakePeak();
        for (bool more = true; more; before = file.m_at) {
            lines += file.ReadString(str);
            ++calls;
            most = std::max(most, file.m_at - before);
            more = file.m_at != before;
        }
        EXPECT_LT(faults::TakePeak(), 10'000U) << row.what;
        EXPECT_LE(calls, row.calls + 1) << row.what;
        EXPECT_EQ(row.bytesAtATime, most) << row.what;
        EXPECT_EQ(row.lines, lines) << row.what;
    }
}

} // namespace

extern "C" int __wrap_MultiByteToWideChar(UINT nCodePage, DWORD dwFlags, LPCSTR pszSource, int nSource,
                                          LPWSTR pszTarget, int nTarget) {
    if (g_converter == Converter::Sound)
        return __real_MultiByteToWideChar(nCodePage, dwFlags, pszSource, nSource, pszTarget, nTarget);
    std::wmemset(pszTarget, L'x', static_cast<std::size_t>(nTarget) - 1);
    pszTarget[nTarget - 1] = L'\0';
    return g_converter == Converter::Failing ? 0 : 4;
}
