// What dialog programs use of the base beside strings: a row a member where it could be wrong.
#include "support/ArchiveBytes.h"

#include "afxcoll.h"
#include "afxtempl.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

TEST(Collections, MapsKeepTheOrderAndFindManyKeys) {
    CMap<int, int, int, int> map;
    for (int i = 0; i < 1000; ++i)
        map[i * 17] = i;
    for (int i = 0; i < 1000; i += 2)
        map.RemoveKey(i * 17);
    int expected = 1;
    for (auto* pPair = map.PGetFirstAssoc(); pPair != nullptr; pPair = map.PGetNextAssoc(pPair)) {
        EXPECT_EQ(expected, pPair->value);
        expected += 2;
    }
    EXPECT_EQ(1151U, map.GetHashTableSize()) << "17, more than doubled and odd";
    map.InitHashTable(0);
    EXPECT_EQ(1U, map.GetHashTableSize());
    EXPECT_NE(nullptr, map.PLookup(17));
    map.RemoveAll();
    EXPECT_EQ(0U, map.GetHashTableSize());
    map[3] = 4;
    EXPECT_EQ(4, map.PGetFirstAssoc()->value);
    CMap<ULONGLONG, ULONGLONG, int, int> large; // of one hash number
    large[1] = 1;
    large[1ULL << 32 | 1] = 2;
    EXPECT_EQ(1, large[1]);
    CMapPtrToPtr pointers;
    pointers[&map] = &large;
    EXPECT_EQ(&large, pointers.PLookup(&map)->value);
    CMap<CStringA, LPCSTR, int, int> narrow;
    narrow["a"] = 1;
    EXPECT_EQ(nullptr, narrow.PLookup("b"));
    EXPECT_EQ(1, narrow.PLookup("a")->value);
}

TEST(ArchiveLines, AreReadUpToTheirEnd) {
    const Bytes bytes = Stored([](CArchive& ar) {
        ar.WriteString(L"a\x3042\nc"), ar.WriteString(nullptr), ar << CStringA("\x61z");
    });
    EXPECT_EQ("61 00 42 30 0a 00 63 00 02 61 7a", ToHex(bytes));
    Loaded(bytes, [](CArchive& ar) {
        CString line;
        TCHAR text[10];
        ar.SetLoadParams(), ar.SetStoreParams(); // nothing
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_EQ(L"a\x3042", line);
        EXPECT_THROW(ar.ReadString(text, 0), CInvalidArgException*);
        EXPECT_STREQ(L"c", ar.ReadString(text, 2));
        EXPECT_FALSE(ar.IsBufferEmpty());
        CStringA narrow;
        ar >> narrow;
        EXPECT_STREQ("az", narrow);
        EXPECT_TRUE(ar.IsBufferEmpty());
        EXPECT_FALSE(ar.ReadString(line));
    });
}

int g_deleted = 0;
struct CCounted : CException {
    ~CCounted() override { ++g_deleted; }
};

// clang-format off
TEST(ExceptionMacros, DeleteWhatIsNotThrownOn) {
    g_deleted = 0;
    TRY {
        TRY {
            THROW(new CCounted);
        }
        CATCH(CFileException, e) {
            ADD_FAILURE();
        }
        AND_CATCH(CCounted, e) {
            THROW_LAST();
        }
        AND_CATCH_ALL(e) {
            ADD_FAILURE();
        }
        END_CATCH_ALL
    }
    CATCH_ALL(e) {
        EXPECT_EQ(0, g_deleted);
    }
    END_CATCH_ALL
    EXPECT_EQ(1, g_deleted);
}
// clang-format on

class CNamed : public CObject {
    DECLARE_DYNAMIC(CNamed)
};
IMPLEMENT_DYNAMIC(CNamed, CObject)

TEST(Diagnostics, DumpsGoToAFileOrTheTrace) {
    CMemFile file;
    CDumpContext dc(&file);
    dc << L"w" << "n" << 5 << 6U << -1L << 2.5F << LPCWSTR{nullptr} << LPCSTR{nullptr}
       << static_cast<CObject*>(nullptr);
    const BYTE bytes[] = {1, 0xAB, 3};
    dc.HexDump(L">", bytes, 3, 2);
    dc.HexDump(L"", bytes, 2, 0);
    const CNamed object;
    dc << object;
    dc.Flush();
    const Bytes written = ContentOf(file);
    const std::string text(written.begin(), written.end());
    EXPECT_EQ("wn56-12.5NULLNULLNULL> 01 AB\n> 03\n 01\n AB\na CNamed at $", text.substr(0, 55));
    testing::internal::CaptureStderr();
    AfxDump(&object);
    afxDump.Flush();
    EXPECT_EQ(text.substr(42), testing::internal::GetCapturedStderr());
    dc.SetDepth(dc.GetDepth() + 1);
    EXPECT_EQ(1, dc.GetDepth());
    EXPECT_TRUE(AfxIsValidAddress(bytes, 3));
    EXPECT_TRUE(AfxIsValidString(L""));
    EXPECT_TRUE(AfxIsValidString(""));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 3));
    EXPECT_FALSE(AfxIsValidString(LPCWSTR{}));
    EXPECT_FALSE(AfxIsValidString(LPCSTR{}));
}

TEST(Diagnostics, PiecesOfTexts) {
    const Rows<int, LPCTSTR, BOOL> pieces = {
        {1, L"", TRUE}, {2, L"c", TRUE}, {3, L"", FALSE}, {-1, L"", FALSE}};
    for (const auto& [index, wanted, found] : pieces) {
        CString piece = L"old";
        EXPECT_EQ(found, AfxExtractSubString(piece, L"a||c", index, L'|')) << index;
        EXPECT_STREQ(wanted, piece);
    }
    using namespace std; // both are in reach
    for (const int n : {1, 4}) {
        EXPECT_EQ(n == 1 ? 1 : 2.5, min(n, 2.5));
        EXPECT_TRUE(max(n, 2UL) == (n == 1 ? 2 : 4));
    }
}

} // namespace
