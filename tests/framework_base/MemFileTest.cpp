#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

TEST(MemFile, GrowsAndFillsGaps) {
    CMemFile file(4);
    file.Write("abcxyz", 6);
    file.SetLength(3);
    file.Seek(3, CFile::end);
    BYTE by = 0;
    EXPECT_EQ(0U, file.Read(&by, 1));
    file.Write("d", 1);
    EXPECT_EQ("61 62 63 00 00 00 64", ToHex(ContentOf(file)));
    file.SetLength(2);
    EXPECT_EQ(2U, file.GetPosition());
    file.SetLength(4); // what was cut off must not come back
    EXPECT_EQ("61 62 00 00", ToHex(ContentOf(file)));
}

TEST(MemFile, SeeksWithinReason) {
    CMemFile file;
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException*);
    file.Seek(5, CFile::begin);
    file.Seek(-2, CFile::current);
    EXPECT_EQ(CFileException::badSeek, CauseOf([&] { file.Seek(INT64_MIN, CFile::current); }));
    EXPECT_EQ(CFileException::badSeek, CauseOf([&] { file.Seek(INT64_MAX, CFile::current); }));
}

/// Shows the size of its memory and how often it gives some back.
struct Shown : CMemFile {
    using CMemFile::CMemFile;
    using CMemFile::m_nBufferSize;
    void Free(BYTE* pMemory) override {
        ++m_freed;
        CMemFile::Free(pMemory);
    }
    int m_freed = 0;
};

TEST(MemFile, MemoryGrowsInStepsAndIsGivenBack) {
    Shown file(4);
    for (const auto& [length, size] : Rows<ULONGLONG, std::size_t>{{4, 4}, {5, 8}, {2, 8}}) {
        file.SetLength(length);
        EXPECT_EQ(size, file.m_nBufferSize) << length;
    }
    BYTE attached[1] = {};
    for (const int freed : {1, 2}) {
        file.Close();
        EXPECT_EQ(freed, file.m_freed);
        file.Attach(attached, 1);
        file.Close();
        EXPECT_EQ(freed, file.m_freed);
        file.Attach(nullptr, 0, 4);
        file.Close();
        file.Write("x", 1);
    }
}

TEST(MemFile, AttachedMemoryStaysTheCallers) {
    BYTE buffer[] = {1, 2, 3};
    CMemFile fixed(buffer, 3);
    fixed.SeekToEnd();
    EXPECT_THROW(fixed.Write("x", 1), CMemoryException*);
    fixed.SeekToBegin();
    fixed.Write("xyz", 3);
    fixed.SetLength(1);
    fixed.SetLength(2);
    EXPECT_EQ("78 00 7a", ToHex(Bytes(buffer, buffer + 3)));
    fixed.Attach(nullptr, 3);
    EXPECT_EQ(0U, fixed.GetLength());
    EXPECT_EQ(0U, fixed.GetPosition());
    EXPECT_EQ(0U, fixed.Read(nullptr, 0));

    CMemFile growing(static_cast<BYTE*>(std::malloc(2)), 2, 16);
    for (const char* const text : {"abcdefgh", "again"}) { // the second is in memory of its own
        EXPECT_EQ(0U, growing.GetLength());
        growing.Write(text, static_cast<UINT>(std::strlen(text)));
        growing.Flush();
        BYTE* const memory = growing.Detach();
        EXPECT_EQ(0, std::memcmp(memory, text, std::strlen(text)));
        std::free(memory);
    }
    growing.Write("x", 1);
    growing.Abort();
    EXPECT_EQ(0U, growing.GetLength());
}

TEST(MemFile, HasNothingToOpenOrShare) {
    CMemFile file;
    CFileException error;
    EXPECT_FALSE(file.Open(L"x", CFile::modeCreate, &error));
    EXPECT_EQ(CFileException::genericException, error.m_cause);
    EXPECT_STREQ(L"x", error.m_strFileName);
    EXPECT_FALSE(file.Open(L"x", CFile::modeCreate));
    EXPECT_THROW(static_cast<void>(file.Duplicate()), CNotSupportedException*);
    EXPECT_THROW(file.LockRange(0, 1), CNotSupportedException*);
    EXPECT_THROW(file.UnlockRange(0, 1), CNotSupportedException*);
}

class Limited : public CMemFile {
protected:
    BYTE* Realloc(BYTE*, std::size_t) override { return nullptr; }
};

TEST(MemFile, WantOfMemoryKeepsWhatIsThere) {
    Limited file;
    file.Write("abc", 3);
    EXPECT_THROW(file.SetLength(100'000), CMemoryException*);
    EXPECT_THROW(file.SetLength(~0ULL), CMemoryException*);
    file.Seek(static_cast<LONGLONG>(std::min<ULONGLONG>(SIZE_MAX, INT64_MAX)), CFile::begin);
    EXPECT_THROW(file.Write("x", 1), CMemoryException*); // its end has no number where size_t has 32 bits
    EXPECT_EQ("61 62 63", ToHex(ContentOf(file)));
}

} // namespace
