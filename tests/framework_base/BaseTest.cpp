// What dialog programs use of the base beside strings: a row a member where it could be wrong.
#include "support/ArchiveBytes.h"

#include "afxcoll.h"
#include "afxtempl.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

class CNamed : public CObject {
    DECLARE_SERIAL(CNamed)
public:
    explicit CNamed(LPCTSTR name = L"") : m_name(name) {}
    void Serialize(CArchive& ar) override { ar.IsStoring() ? ar << m_name : ar >> m_name; }
    CString m_name;
};
IMPLEMENT_SERIAL(CNamed, CObject, 1)

/// The collection loaded from what it stores.
template <class Collection>
void Reload(Collection& from, Collection& to) {
    const Bytes bytes = Stored([&](CArchive& ar) { from.Serialize(ar); });
    EXPECT_EQ(CArchiveException::none, Loaded(bytes, [&](CArchive& ar) { to.Serialize(ar); }));
}

TEST(Collections, OfObjectsArchiveTheObjects) {
    CTypedPtrArray<CObArray, CNamed*> array, loaded;
    CNamed one(L"one");
    array.Add(&one);
    array.Add(&one);
    Reload(array, loaded);
    ASSERT_EQ(2, loaded.GetSize());
    EXPECT_EQ(loaded[0], loaded[1]); // one object, twice referred to
    EXPECT_STREQ(L"one", loaded[0]->m_name);
    delete loaded[0];

    CMapStringToOb map, again;
    map[L"key"] = &one;
    Reload(map, again);
    CObject* pFound = nullptr;
    ASSERT_TRUE(again.Lookup(L"key", pFound));
    EXPECT_STREQ(L"one", STATIC_DOWNCAST(CNamed, pFound)->m_name);
    delete pFound;
}

TEST(Collections, TypedOnesHoldTheirType) {
    int value = 5;
    CTypedPtrList<CPtrList, int*> list;
    list.AddTail(&value);
    POSITION pos = list.GetHeadPosition();
    *list.GetNext(pos) += 1;
    EXPECT_EQ(6, *list.RemoveHead());
    CTypedPtrMap<CMapStringToPtr, CString, int*> map;
    map[L"a"] = &value;
    int* pFound = nullptr;
    EXPECT_TRUE(map.Lookup(L"a", pFound) && pFound == &value);
    CString key;
    pos = map.GetStartPosition();
    map.GetNextAssoc(pos, key, pFound);
    EXPECT_TRUE(key == L"a" && pos == nullptr);
}

TEST(Collections, MapsKeepTheOrderAndFindManyKeys) {
    CMap<int, int, int, int> map;
    for (int i = 0; i < 1000; ++i)
        map[i * 17] = i;
    for (int i = 0; i < 1000; i += 2)
        EXPECT_TRUE(map.RemoveKey(i * 17));
    int expected = 1;
    for (auto* pPair = map.PGetFirstAssoc(); pPair != nullptr;
         pPair = map.PGetNextAssoc(pPair), expected += 2)
        EXPECT_TRUE(pPair->value == expected && map.PLookup(expected * 17) == pPair);
    EXPECT_EQ(1001, expected);
    map.InitHashTable(1);
    EXPECT_NE(nullptr, map.PLookup(17));
}

TEST(Time, PartsAndText) {
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_TRUE(time.GetYear() == 2024 && time.GetMonth() == 2 && time.GetDay() == 29 &&
                time.GetHour() == 13 && time.GetMinute() == 5 && time.GetSecond() == 9 &&
                time.GetDayOfWeek() == 5);
    EXPECT_STREQ(L"2024-02-29 13:05:09", time.Format(L"%Y-%m-%d %H:%M:%S"));
    EXPECT_STREQ(L"", time.Format(L""));
    EXPECT_STREQ(L"1970", CTime(0).FormatGmt(L"%Y"));
    EXPECT_EQ(time, CTime((44 << 9 | 2 << 5 | 29) & 0xFFFF, 13 << 11 | 5 << 5 | 4) + CTimeSpan(1));
    EXPECT_EQ(2999, CTime(2999, 12, 31, 0, 0, 0).GetYear());
    for (const auto make : {+[] { CTime(1969, 1, 1, 0, 0, 0); }, +[] { CTime(3001, 1, 1, 0, 0, 0); },
                            +[] { CTime(2000, 13, 1, 0, 0, 0); }, +[] { CTime(2000, 1, 1, 24, 0, 0); }})
        EXPECT_TRUE(Throws<CInvalidArgException>(make));
    const CTimeSpan span = CTime(2024, 3, 2, 15, 7, 12) - time;
    EXPECT_STREQ(L"2 days 02:02:03 %", span.Format(L"%D days %H:%M:%S %%"));
    EXPECT_TRUE(span.GetTotalHours() == 50 && span.GetTotalMinutes() == 50 * 60 + 2);
    EXPECT_THROW(span.Format(L"%Y"), CInvalidArgException*);
    CTime loaded;
    Loaded(Stored([&](CArchive& ar) { ar << time << span; }), [&](CArchive& ar) { ar >> loaded; });
    EXPECT_EQ(time, loaded);
}

class StdioFile : public testing::Test {
protected:
    void SetUp() override { std::filesystem::remove("stdio.txt"); }
    void TearDown() override { SetUp(); }
    Bytes OnDisk() {
        CFile file(L"stdio.txt", CFile::modeRead | CFile::shareDenyNone);
        return ContentOf(file);
    }
};

TEST_F(StdioFile, LinesHaveTheirEndsInTheFile) {
    CStdioFile file(L"stdio.txt", CFile::modeCreate | CFile::modeReadWrite | CFile::shareDenyNone);
    file.WriteString(L"one\n\ntwo");
    EXPECT_EQ(10U, file.GetPosition());
    file.Flush();
    EXPECT_EQ("6f 6e 65 0d 0a 0d 0a 74 77 6f", ToHex(OnDisk()));
    file.SeekToBegin();
    CString line = L"old";
    TCHAR text[3];
    EXPECT_STREQ(L"on", file.ReadString(text, 3));
    EXPECT_EQ(2U, file.GetPosition());
    EXPECT_TRUE(file.ReadString(line) && line == L"e");
    EXPECT_TRUE(file.ReadString(line) && line.IsEmpty());
    file.Write("!", 1); // where reading stopped
    file.SeekToBegin();
    char bytes[20] = {};
    EXPECT_EQ(8U, file.Read(bytes, 20));
    EXPECT_STREQ("one\n\n!wo", bytes);
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(nullptr, file.ReadString(text, 3));
}

TEST_F(StdioFile, BinaryKeepsCharactersAsTheyAre) {
    {
        CStdioFile file(L"stdio.txt", CFile::modeCreate | CFile::modeWrite | CFile::typeBinary);
        file.WriteString(L"\xFEFFz\r\n");
    }
    EXPECT_EQ("ff fe 7a 00 0d 00 0a 00", ToHex(OnDisk()));
    CStdioFile file(L"stdio.txt", CFile::modeRead | CFile::typeBinary);
    file.Seek(2, CFile::begin);
    CString line;
    EXPECT_TRUE(file.ReadString(line) && line == L"z\r");
}

TEST_F(StdioFile, LongTextsPassTheBuffer) {
    const CString text(L'\x3042', 5000);
    {
        CStdioFile file(L"stdio.txt", CFile::modeCreate | CFile::modeWrite);
        for (int i = 0; i < 3; ++i)
            file.WriteString(CString(L'x', 4095) + L"\n");
    }
    CStdioFile file(L"stdio.txt", CFile::modeRead);
    CString line;
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(file.ReadString(line) && line.GetLength() == 4095);
    EXPECT_FALSE(file.ReadString(line));
}

TEST(ArchiveLines, AreReadUpToTheirEnd) {
    const Bytes bytes = Stored([](CArchive& ar) { ar.WriteString(L"ab\nc"), ar << CStringA("\x61z"); });
    EXPECT_EQ("61 00 62 00 0a 00 63 00 02 61 7a", ToHex(bytes));
    Loaded(bytes, [](CArchive& ar) {
        CString line;
        TCHAR text[10];
        EXPECT_TRUE(ar.ReadString(line) && line == L"ab");
        EXPECT_STREQ(L"c", ar.ReadString(text, 2));
        EXPECT_FALSE(ar.IsBufferEmpty());
        CStringA narrow;
        ar >> narrow;
        EXPECT_STREQ("az", narrow);
        EXPECT_TRUE(ar.IsBufferEmpty() && !ar.ReadString(line) && ar.ReadString(text, 10) == nullptr);
    });
}

int g_deleted = 0;
class CCounted : public CException {
public:
    ~CCounted() override { ++g_deleted; }
};

TEST(ExceptionMacros, DeleteWhatIsNotThrownOn) {
    g_deleted = 0;
    TRY{TRY{THROW(new CCounted);
}
CATCH(CFileException, e) {
    ADD_FAILURE();
}
AND_CATCH(CCounted, e) {
    EXPECT_EQ(0, g_deleted);
    THROW_LAST();
}
END_CATCH
} // namespace
CATCH_ALL(e) {
    EXPECT_EQ(0, g_deleted);
}
END_CATCH_ALL
EXPECT_EQ(1, g_deleted);
}

TEST(Diagnostics, DumpsAndPieces) {
    CMemFile file;
    CDumpContext dc(&file);
    dc << L"w" << "n" << 5 << -1L << 2.5 << static_cast<LPCTSTR>(nullptr) << static_cast<CObject*>(nullptr);
    const BYTE bytes[] = {1, 0xAB, 3};
    dc.HexDump(L">", bytes, 3, 2);
    const Bytes written = ContentOf(file);
    EXPECT_EQ("wn5-12.5NULLNULL> 01 AB\n> 03\n", std::string(written.begin(), written.end()));

    const struct {
        int index;
        LPCTSTR piece;
        BOOL found;
    } pieces[] = {{0, L"a", TRUE}, {1, L"", TRUE}, {2, L"c", TRUE}, {3, L"", FALSE}, {-1, L"", FALSE}};
    for (const auto& row : pieces) {
        CString piece;
        EXPECT_EQ(row.found, AfxExtractSubString(piece, L"a||c", row.index, L'|')) << row.index;
        EXPECT_STREQ(row.piece, piece);
    }
    using namespace std; // both are in reach
    EXPECT_TRUE(min(1, 2) == 1 && max(1, 2.5) == 2.5 && max(1U, 2UL) == 2);
}

} // namespace
