#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

TEST(MemFile, GrowsAndFillsGaps) {
    CMemFile file(4);
    file.Write("abc", 3);
    EXPECT_EQ(6U, file.Seek(3, CFile::end));
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
    EXPECT_TRUE(Throws<CFileException>([&] { file.Seek(-1, CFile::begin); }));
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException*);
    file.Seek(5, CFile::begin);
    EXPECT_EQ(3U, file.Seek(-2, CFile::current));
    EXPECT_TRUE(Throws<CFileException>([&] { file.Seek(INT64_MIN, CFile::current); }));
    EXPECT_TRUE(Throws<CFileException>([&] { file.Seek(INT64_MAX, CFile::current); }));
    EXPECT_EQ(3U, file.GetPosition());
}

TEST(MemFile, AttachedMemoryStaysTheCallers) {
    BYTE buffer[] = {1, 2, 3};
    CMemFile fixed(buffer, 3);
    EXPECT_EQ(3U, fixed.GetLength());
    fixed.SeekToEnd();
    EXPECT_THROW(fixed.Write("x", 1), CMemoryException*);
    fixed.SeekToBegin();
    fixed.Write("x", 1);
    EXPECT_EQ('x', buffer[0]);
    EXPECT_EQ(0U, fixed.Read(nullptr, 0));
    fixed.Attach(nullptr, 3);
    EXPECT_EQ(0U, fixed.GetLength());

    CMemFile growing(static_cast<BYTE*>(std::malloc(2)), 2, 16);
    EXPECT_EQ(0U, growing.GetLength());
    growing.Write("abcdefgh", 8);
    BYTE* memory = growing.Detach();
    EXPECT_EQ(0U, growing.GetLength());
    EXPECT_EQ(0, std::memcmp(memory, "abcdefgh", 8));
    std::free(memory);
    growing.Write("again", 5);
    growing.Flush();
    EXPECT_EQ(5U, growing.GetLength());
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
