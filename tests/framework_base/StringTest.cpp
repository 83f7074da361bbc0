#include "afx.h"

#include "support/Order.h"
#include "support/Rows.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <utility>

namespace {

const LPCTSTR kNullText = nullptr;
const LPCSTR kNullNarrow = nullptr;

struct Made {
    const char* what;
    CString actual;
    std::wstring expected;
};

void ExpectAll(const std::vector<Made>& table) {
    for (const Made& row : table) {
        SCOPED_TRACE(row.what);
        const std::wstring actual(row.actual.GetString(), static_cast<std::size_t>(row.actual.GetLength()));
        EXPECT_TRUE(actual == row.expected) << "got: " << testing::PrintToString(actual);
    }
}

TEST(String, IsConstructedFromEveryKindOfText) {
    const CString two = L"2";
    ExpectAll({{"empty", {}, L""},
               {"null", kNullText, L""},
               {"null with length", {kNullText, 5}, L""},
               {"narrow with negative length", {"abc", -1}, L""},
               {"null narrow with length", {kNullNarrow, 5}, L""},
               {"narrow with length", {"abc", 2}, L"ab"},
               {"repeated", {L'x', 3}, L"xxx"},
               {"repeated never", {L'x', -1}, L""},
               {"length keeps NULs", {L"a\0b", 3}, std::wstring(L"a\0b", 3)},
               {"negative length", {L"abc", -1}, L""},
               {"sum of nothing", L"" + CString(), L""},
               {"sum of one", L"a" + CString(), L"a"},
               {"sum with narrow text", two + "3", L"23"},
               {"sum with a character", two + '3', L"23"},
               {"sums", '1' + (L'2' + ("3" + (L"4" + CString(L"5") + "6"))) + '7', L"1234567"}});
}

TEST(String, ExtractsWithClampedArguments) {
    const CString s = L"abcdef";
    ExpectAll({{"Mid counted", s.Mid(2, 3), L"cde"},
               {"Mid overflowing", s.Mid(3, INT_MAX), L"def"},
               {"Mid negative start", s.Mid(-2, 3), L"abc"},
               {"Mid negative count", s.Mid(2, -3), L""},
               {"Left negative", s.Left(-1), L""},
               {"Right too long", s.Right(99), L"abcdef"},
               {"Right negative", s.Right(INT_MIN), L""},
               {"SpanIncluding", s.SpanIncluding(L"cab"), L"abc"},
               {"SpanIncluding NULL", s.SpanIncluding(nullptr), L""},
               {"SpanExcluding", s.SpanExcluding(L"fd"), L"abc"},
               {"SpanExcluding NULL", s.SpanExcluding(nullptr), L"abcdef"}});
}

TEST(String, EditsInPlaceWhatIsItsOwn) {
    const Rows<const char*, LPCTSTR, LPCTSTR, std::function<void(CString&)>> rows = {
        {"upper", L"az{AZ[`@\x3042z", L"AZ{AZ[`@\x3042Z", [](CString& s) { s.MakeUpper(); }},
        {"lower", L"az{AZ[`@\x3042Z", L"az{az[`@\x3042z", [](CString& s) { s.MakeLower(); }},
        {"insert far behind", L"a", L"a long text", [](CString& s) { s.Insert(99, L" long text"); }},
        {"insert nothing", L"a", L"a", [](CString& s) { s.Insert(1, L""); }},
        {"insert into nothing", L"", L"a", [](CString& s) { s.Insert(0, L"a"); }},
        {"insert character", L"ac", L"abc", [](CString& s) { s.Insert(1, L'b'); }},
        {"insert with room", L"ac", L"abc", [](CString& s) { s.Preallocate(20), s.Insert(1, L"b"); }},
        {"insert own tail with room", L"ab", L"bab",
         [](CString& s) { s.Preallocate(20), s.Insert(0, s.GetString() + 1); }},
        {"insert itself", L"ab", L"aabb", [](CString& s) { s.Insert(1, s); }},
        {"delete", L"abcd", L"ad", [](CString& s) { s.Delete(1, 2); }},
        {"delete none", L"ab", L"ab", [](CString& s) { s.Delete(0, -1); }},
        {"trim left", L" a ", L"a ", [](CString& s) { s.TrimLeft(); }},
        {"trim left set", L"xyaxy", L"axy", [](CString& s) { s.TrimLeft(L"yx"); }},
        {"trim right", L" a ", L" a", [](CString& s) { s.TrimRight(); }},
        {"trim set", L"xyaxy", L"xya", [](CString& s) { s.TrimRight(L"yx"); }},
        {"append text of the other form", L"a", L"ab", [](CString& s) { s += CStringA("b"); }},
        {"append none", L"a", L"a", [](CString& s) { s.Append(nullptr, 2); }},
        {"free extra", L"a", L"a", [](CString& s) { s.FreeExtra(); }},
        {"truncate", L"abc", L"ab", [](CString& s) { s.Truncate(2); }},
        {"delete past the end", L"abcd", L"ab", [](CString& s) { s.Delete(2, INT_MAX); }},
        {"trim nothing but blanks", L" \t", L"", [](CString& s) { s.Trim(); }},
        {"trim right character", L"axx", L"a", [](CString& s) { s.TrimRight(L'x'); }},
        {"trim character", L"xxaxx", L"axx", [](CString& s) { s.TrimLeft(L'x'); }},
        {"trim character at both ends", L"xxaxx", L"a", [](CString& s) { s.Trim(L'x'); }},
        {"trim set at both ends", L"xyaxy", L"a", [](CString& s) { s.Trim(L"yx"); }},
        {"trim by itself", L"xy", L"", [](CString& s) { s.Trim(s.GetString()); }},
        {"assign own tail", L"abc", L"bc", [](CString& s) { s = s.GetString() + 1; }},
        {"append itself", L"ab", L"abab", [](CString& s) { s += s; }},
        {"append own tail", L"abc", L"abcbc", [](CString& s) { s += s.GetString() + 1; }},
        {"assign itself", L"ab", L"ab", [](CString& s) { s = static_cast<const CString&>(s); }},
        {"assign narrow text", L"ab", L"c", [](CString& s) { s = "c"; }},
        {"assign null", L"ab", L"", [](CString& s) { s.SetString(nullptr, 2); }},
        {"assign none", L"ab", L"", [](CString& s) { s.SetString(L"x", -1); }},
        {"assign character", L"ab", L"c", [](CString& s) { s = L'c'; }},
        {"assign narrow character", L"ab", L"c", [](CString& s) { s = 'c'; }},
        {"free all", L"ab", L"", [](CString& s) { s.Truncate(0), s.FreeExtra(); }},
        {"locked buffer", L"abc", L"xbc", [](CString& s) { s.LockBuffer()[0] = L'x', s.UnlockBuffer(); }},
        {"open buffer", L"abc", L"xbc", [](CString& s) { s.GetBuffer()[0] = L'x', s.ReleaseBuffer(); }},
        {"append to a temporary", L"ab", L"abx", [](CString& s) { s = std::move(s) + L"x"; }},
        {"delete first", L"abc", L"bc", [](CString& s) { s.Delete(0); }},
        {"format itself", L"ab", L"<ab>", [](CString& s) { s.Format(L"<%s>", s); }},
        {"set at with room", L"abc", L"xbc", [](CString& s) { s.Preallocate(100), s.SetAt(0, L'x'); }},
    };
    for (const auto& [what, text, expected, edit] : rows) {
        SCOPED_TRACE(what);
        CString own = text;
        edit(own);
        EXPECT_STREQ(expected, own);
        const CString original = text;
        CString copy = original;
        edit(copy);
        EXPECT_STREQ(expected, copy);
        EXPECT_STREQ(text, original);
        CString(copy).AppendChar(L'?'); // what was made is shared and given back rightly again
    }
}

TEST(String, TrimsTheBlanksOfEveryScript) {
    const std::wstring blanks = L"\t\n\v\f\r \x85\xA0\x1680\x2000\x2001\x2002\x2003\x2004\x2005\x2006\x2007"
                                L"\x2008\x2009\x200A\x2028\x2029\x202F\x205F\x3000";
    for (wchar_t ch = 1; ch <= 0x3100; ++ch)
        EXPECT_EQ(blanks.find(ch) != std::wstring::npos, CString(ch).Trim().IsEmpty()) << +ch;
}

TEST(String, ReplacesAndRemovesAndCounts) {
    for (const auto& [text, from, to, expected, count] :
         Rows<LPCTSTR, LPCTSTR, LPCTSTR, LPCTSTR, int>{{L"aaa", L"aa", L"b", L"ba", 1},
                                                       {L"abc", L"b", nullptr, L"ac", 1},
                                                       {L"abc", L"", L"x", L"abc", 0},
                                                       {L"abc", nullptr, L"x", L"abc", 0}}) {
        CString s = text;
        EXPECT_EQ(count, s.Replace(from, to)) << testing::PrintToString(text);
        EXPECT_STREQ(expected, s);
    }
    CString s = L"banana";
    EXPECT_EQ(0, s.Replace(L'a', L'a') + s.Replace(L'x', L'a') + s.Remove(L'x'));
    EXPECT_EQ(3, s.Replace(L'a', L'o'));
    EXPECT_EQ(2, s.Remove(L'n'));
    EXPECT_STREQ(L"booo", s);
    EXPECT_EQ(1, s.Replace(s, s.GetString() + 3));
    EXPECT_STREQ(L"o", s);
}

TEST(String, FindsFromTheStartGiven) {
    const CString s = L"abcabc";
    EXPECT_EQ(1, s.Find(L'b'));
    EXPECT_EQ(4, s.Find(L'b', 2));
    EXPECT_EQ(-1, s.Find(L'b', 99));
    EXPECT_EQ(-1, s.Find(L'b', -1));
    EXPECT_EQ(0, s.Find(L"abc"));
    EXPECT_EQ(3, s.Find(L"abc", 1));
    EXPECT_EQ(-1, s.Find(nullptr));
    EXPECT_EQ(-1, s.Find(L"abc", -1));
    EXPECT_EQ(6, s.Find(L"", 6));
    EXPECT_EQ(5, s.ReverseFind(L'c'));
    EXPECT_EQ(-1, s.ReverseFind(L'x'));
    EXPECT_EQ(1, s.FindOneOf(L"xcb"));
}

TEST(String, Compares) {
    const CString s = L"abc";
    for (const auto& [text, order] : Rows<LPCTSTR, int>{{L"abc", 0}, {L"abd", -1}, {nullptr, 1}}) {
        ExpectOrder(order, s.Compare(text), 0);
        ExpectOrder(order, s, text);
        ExpectOrder(-order, text, s);
        ExpectOrder(order, s, CString(text));
    }
    for (const auto& [a, b, order] :
         Rows<CString, LPCTSTR, int>{{L"abc", L"aBC", 0}, {L"abc", L"abd", -1}, {L"_", L"A", -1}})
        ExpectOrder(order, a.CompareNoCase(b), 0); // case is folded downwards
    for (const auto& [text, equal] : Rows<CString, bool>{{L"a", true}, {L"b", false}, {L"ab", false}}) {
        EXPECT_EQ(equal, text == L'a');
        EXPECT_EQ(equal, L'a' == text);
        EXPECT_EQ(!equal, text != L'a');
        EXPECT_EQ(!equal, L'a' != text);
    }
}

TEST(String, IndexOutsideThrows) {
    CString s = L"ab";
    EXPECT_EQ(L'\0', s.GetAt(2));
    EXPECT_THROW(s.GetAt(3), CInvalidArgException*);
    EXPECT_THROW(s[-1], CInvalidArgException*);
    EXPECT_THROW(s.SetAt(2, L'x'), CInvalidArgException*);
    EXPECT_THROW(s.SetAt(-1, L'x'), CInvalidArgException*);
}

TEST(String, TokenizesUntilNoneIsLeft) {
    const CString s = L"%one%#two##";
    int at = 0;
    EXPECT_STREQ(L"one", s.Tokenize(L"%#", at));
    EXPECT_EQ(5, at);
    EXPECT_STREQ(L"two", s.Tokenize(L"%#", at));
    EXPECT_STREQ(L"", s.Tokenize(L"%#", at));
    EXPECT_EQ(-1, at);
    EXPECT_STREQ(L"", s.Tokenize(L"%#", at));
}

#ifndef _WIN32
TEST(String, NarrowTextIsUtf8WithDamageReplaced) {
    ExpectAll({{"cut", "\xE6\xB8", L"\xFFFD\xFFFD"},
               {"over-long", "\xC0\x80", L"\xFFFD\xFFFD"},
               {"over-long, three bytes", "\xE0\x80\x80", L"\xFFFD\xFFFD\xFFFD"},
               {"surrogate", "\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD"},
               {"low surrogate", "\xED\xB0\x80", L"\xFFFD\xFFFD\xFFFD"},
               {"first of no sequence", "\xC1\xBF\xF5\x80\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD\xFFFD"},
               {"no second byte", "\xC3(", L"\xFFFD("},
               {"beyond the last", "\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD"}});
    const char* const borders =
        "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_STREQ(borders, CStringA(CString(borders)));
}
#endif

} // namespace
