// What strings share, and the members that came with the narrow form.
#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <type_traits>

namespace {

static_assert(sizeof(CString) == sizeof(void*));
static_assert(std::is_same_v<CString, CStringT<wchar_t>> && std::is_nothrow_move_constructible_v<CString>);

TEST(StringShare, AnOpenBufferIsNotShared) {
    CString s = L"abc";
    LPTSTR p = s.GetBuffer(20);
    const CString copy = s;
    CString assigned;
    assigned = s;
    p[0] = L'x';
    EXPECT_STREQ(L"abc", copy);
    s.ReleaseBuffer();
    EXPECT_EQ(s.GetString(), CString(s).GetString());
    CString empty;
    empty.GetBuffer()[0] = L'\0';
    empty.ReleaseBuffer(99);
    EXPECT_EQ(empty.GetAllocLength(), empty.GetLength());
}

TEST(StringNarrow, HasTheSameMembers) {
    CStringA s = "ab";
    s += 'c';
    s += L"d";
    EXPECT_STREQ("abcd", CStringA(CStringW(s)));
    s.Format("%s|%S|%ls|%5.1f|%c%C", "n", L"w", L"w", 1.25, 'x', L'y');
    s.AppendFormat("%s%d", CStringA("!"), 7);
    EXPECT_STREQ("n|w|w|  1.2|xy!7", s);
    for (const auto& [a, b, order] : Rows<LPCSTR, LPCSTR, int>{{"aBc", "AbC", 0},
                                                               {"a", "B", -1},
                                                               {"B", "a", 1},
                                                               {"a\xC3\xA4", "a\xC3\xB6", -1},
                                                               {"a", "\xC3\xA4", -1}})
        EXPECT_EQ(order, CStringA(a).CompareNoCase(b)) << a << b;
    EXPECT_LT(CStringA("a").Collate("b"), 0);
    EXPECT_LT(CStringA("a").CollateNoCase("B"), 0);
    EXPECT_STREQ(CStringA(L"AZ{[\x3042Z"), CStringA(L"az{[\x3042z").MakeUpper());
    EXPECT_STREQ(CStringA(L"az{[\x3042z"), CStringA(L"AZ{[\x3042Z").MakeLower());
    EXPECT_STREQ("\x01 \x85", CStringA(" \x01 \x85\t").Trim());
    EXPECT_STREQ("~", CStringA("\r~\n").Trim());
    EXPECT_TRUE("y" != s);
    EXPECT_TRUE(CStringA("b") > "a");
    EXPECT_EQ("abc", "a" + CStringA("b") + L'c');
}

TEST(StringMembers, TextOfAStringIsPassedToFormats) {
    const CString text = L"text";
    const CStringA narrow = "narrow";
    CString s;
    s.Format(L"%s %S %d", text, narrow, 5);
    s.AppendFormat(L"/%s", s);
    EXPECT_STREQ(L"text narrow 5/text narrow 5", s);
    testing::internal::CaptureStderr();
    AfxTrace("%s,", narrow);
    AfxTrace(L"%s,", text);
    EXPECT_EQ("narrow,text,", testing::internal::GetCapturedStderr());
}

TEST(StringMembers, DoWhatTheDocumentationSays) {
    CString s;
    s.SetString(L"abcdef", 4);
    s.Truncate(9);
    s.Append(CString(L"x"));
    EXPECT_STREQ(L"abcdx", s);
    s.ReleaseBufferSetLength(3);
    EXPECT_STREQ(L"abc", s);
    EXPECT_THROW(s.Append(L"x", INT_MAX), CMemoryException*);
    for (const auto& [length, text] : {std::pair{-1, L""}, {0, L""}, {1, L"a"}}) {
        CString cut = s;
        cut.ReleaseBufferSetLength(length);
        EXPECT_STREQ(text, cut);
    }
    EXPECT_LT(s.Collate(L"abd"), 0);
    EXPECT_NE(0, s.Collate(L"ABC"));
    EXPECT_EQ(0, s.CollateNoCase(L"ABC"));
    EXPECT_LT(s.CollateNoCase(L"ABD"), 0);
    CString::CopyCharsOverlapped(s.GetBuffer() + 1, s, 2);
    s.ReleaseBuffer();
    EXPECT_STREQ(L"aab", s);
    s = reinterpret_cast<const unsigned char*>("bytes");
    EXPECT_STREQ(L"bytes", s);
    s.Preallocate(1000);
    s.FreeExtra();
    EXPECT_LT(s.GetAllocLength(), 20);
    s.SetString(L"x", 0);
    EXPECT_EQ(CString().GetString(), s.GetString()) << "all empty texts are one";
}

TEST(StringMembers, NewCharactersAreNul) {
    CString s;
    s.Preallocate(20);
    const int all = s.GetAllocLength();
    std::fill_n(s.GetBufferSetLength(all), all, L'x');
    s.ReleaseBufferSetLength(2);
    const LPCTSTR text = s.GetBufferSetLength(all);
    EXPECT_EQ(all - 2, std::count(text, text + all, L'\0'));
    s.GetBufferSetLength(0);
    EXPECT_TRUE(s.IsEmpty());
}

TEST(StringShare, SmallRoomIsKeptAndMuchIsNot) {
    for (const int nRoom : {100, 1000}) {
        const CString text = L"abc";
        CString assigned;
        assigned.Preallocate(nRoom);
        assigned = text;
        EXPECT_EQ(nRoom == 1000, assigned.GetString() == text.GetString()) << nRoom;
        EXPECT_STREQ(L"abc", assigned);
    }
    const CString much(L'x', 200);
    CString little = L"a";
    little = much;
    EXPECT_EQ(much.GetString(), little.GetString()) << "there was no room for it";
    CString none; // the text of all empty strings: nothing is copied into it
    CString room;
    room.Preallocate(10);
    none = room;
    EXPECT_EQ(none.GetString(), room.GetString());
}

} // namespace
