#include "afx.h"
#include "atlconv.h"

#include <gtest/gtest.h>

#include <oleauto.h>

namespace {

// The tests run with the Japanese code page.
const char kNarrow[] = "\x82\xA0!";
const wchar_t kWide[] = L"\x3042!";

TEST(Conversion, ClassesHoldTheText) {
    EXPECT_STREQ(kWide, CA2W(kNarrow));
    EXPECT_STREQ(kWide, CA2CT(kNarrow));
    EXPECT_STREQ(kNarrow, CT2A(kWide));
    EXPECT_STREQ("\xE3\x81\x82!", CW2A(kWide, CP_UTF8));
    EXPECT_STREQ(kWide, CA2W("\xE3\x81\x82!", CP_UTF8));
    EXPECT_STREQ(kWide, CW2T(kWide));
    EXPECT_STREQ(kNarrow, CW2AEX<2>(kWide, 3)); // longer than its size, by the thread's page
    EXPECT_EQ(nullptr, CA2W(nullptr).m_psz);
    EXPECT_EQ(nullptr, CA2A(nullptr).m_psz);
}

TEST(Conversion, MacrosKeepAllTextsOfTheBlock) {
    USES_CONVERSION;
    const wchar_t* wide[20];
    for (const wchar_t*& psz : wide)
        psz = A2CT(kNarrow);
    const char* const pszNarrow = T2A(kWide);
    for (const wchar_t* const psz : wide)
        EXPECT_STREQ(kWide, psz);
    EXPECT_STREQ(kNarrow, pszNarrow);
    EXPECT_EQ(kWide, T2COLE(kWide));
    EXPECT_EQ(nullptr, A2W(nullptr));
    EXPECT_EQ(nullptr, W2CA(nullptr));
}

TEST(Conversion, BuffersOfTheCallersSize) {
    char narrow[4] = "???";
    EXPECT_EQ(4, _wcstombsz(narrow, kWide, 4));
    EXPECT_STREQ(kNarrow, narrow);
    EXPECT_EQ(0, _wcstombsz(narrow, kWide, 3));
    wchar_t wide[3] = L"??";
    EXPECT_EQ(3, _mbstowcsz(wide, kNarrow, 3));
    EXPECT_STREQ(kWide, wide);
    EXPECT_EQ(0, _mbstowcsz(wide, kNarrow, 2));
}

TEST(Conversion, SystemStringsAreTheCallers) {
    BSTR bstr = CString(L"a\0b", 3).AllocSysString();
    EXPECT_EQ(3U, SysStringLen(bstr));
    EXPECT_EQ(bstr, CStringA(kNarrow).SetSysString(&bstr));
    EXPECT_STREQ(kWide, bstr);
    SysFreeString(bstr);
}

TEST(Conversion, TheBufferOfAString) {
    CString str = L"old";
    wcscpy(CStrBuf(str, 10), L"new one");
    EXPECT_STREQ(L"new one", str);
    {
        CStrBuf buffer(str, 4, CStrBuf::SET_LENGTH);
        buffer[3] = L'\0';
    }
    EXPECT_TRUE(str == CString(L"new\0", 4));
    {
        CStrBuf buffer(str);
        buffer.SetLength(2);
    }
    EXPECT_STREQ(L"ne", str);
}

} // namespace
