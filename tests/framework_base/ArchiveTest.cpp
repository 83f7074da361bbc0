#include "support/ArchiveBytes.h"

#include "atltypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <stdexcept>

namespace {

constexpr int kNone = CArchiveException::none, kEndOfFile = CArchiveException::endOfFile;
constexpr int kBadIndex = CArchiveException::badIndex;

template <class Value>
void ExpectValue(const char* hex, Value value) {
    EXPECT_EQ(hex, ToHex(Stored([&](CArchive& ar) { ar << value; })));
    Value loaded{};
    EXPECT_EQ(kNone, Loaded(FromHex(hex), [&](CArchive& ar) { ar >> loaded; }));
    EXPECT_EQ(value, loaded) << hex;
}

TEST(Archive, ValuesAreLittleEndianOfFixedWidth) {
    ExpectValue("fe", BYTE{0xFE});
    ExpectValue("41", 'A');
    ExpectValue("01", true);
    ExpectValue("00", false);
    ExpectValue("42 30", L'\x3042');
    ExpectValue("fe ff", short{-2});
    ExpectValue("34 12", WORD{0x1234});
    ExpectValue("fe ff ff ff", -2);
    ExpectValue("78 56 34 12", 0x12345678U);
    ExpectValue("fe ff ff ff", LONG{-2});
    ExpectValue("78 56 34 12", DWORD{0x12345678});
    ExpectValue("fe ff ff ff ff ff ff ff", LONGLONG{-2});
    ExpectValue("ef cd ab 89 67 45 23 01", ULONGLONG{0x0123456789ABCDEF});
    ExpectValue("00 00 c0 bf", -1.5F);
    ExpectValue("00 00 00 00 00 00 f8 bf", -1.5);
    ExpectValue("01 00 00 00 fe ff ff ff", CPoint(1, -2));
    ExpectValue("01 00 00 00 fe ff ff ff", CSize(1, -2));
    ExpectValue("01 00 00 00 02 00 00 00 03 00 00 00 fc ff ff ff", CRect(1, 2, 3, -4));
}

TEST(Archive, CountsTakeTwoOrSixBytes) {
    for (const auto& [count, hex] : {std::pair{DWORD_PTR{0}, "00 00"},
                                     {DWORD_PTR{0xFFFE}, "fe ff"},
                                     {DWORD_PTR{0xFFFF}, "ff ff ff ff 00 00"},
                                     {DWORD_PTR{0xFFFFFFFF}, "ff ff ff ff ff ff"}}) {
        EXPECT_EQ(hex, ToHex(Stored([&, n = count](CArchive& ar) { ar.WriteCount(n); })));
        DWORD_PTR loaded = 1;
        Loaded(FromHex(hex), [&](CArchive& ar) { loaded = ar.ReadCount(); });
        EXPECT_EQ(count, loaded);
    }
    if (const auto tooMany = static_cast<DWORD_PTR>(0x1'0000'0000ULL); tooMany != 0) {
        EXPECT_THROW(Stored([&](CArchive& ar) { ar.WriteCount(tooMany); }), CInvalidArgException*);
    }
}

TEST(Archive, StringsHaveTheUnicodeMarkAndALengthOfThreeSizes) {
    for (const auto& [wanted, head] :
         Rows<CString, std::string>{{L"A\x3042", "ff fe ff 02 41 00 42 30"},
                                    {CString(L'x', 254), "ff fe ff fe 78 00"},
                                    {CString(L'x', 255), "ff fe ff ff ff 00 78 00"},
                                    {CString(L'x', 0xFFFD), "ff fe ff ff fd ff 78 00"},
                                    {CString(L'x', 0xFFFE), "ff fe ff ff ff ff fe ff 00 00 78 00"}}) {
        const Bytes bytes = Stored([&text = wanted](CArchive& ar) { ar << text; });
        EXPECT_EQ(head, ToHex(bytes).substr(0, head.size()));
        CString loaded;
        EXPECT_EQ(kNone, Loaded(bytes, [&](CArchive& ar) { ar >> loaded; }));
        EXPECT_TRUE(wanted == loaded) << head;
    }
}

// The length counts UTF-16 units, also where a character of the program is wider.
TEST(Archive, CharactersBeyondTheBasicPlaneAreSurrogates) {
    const CString text = L"\U0001F600\U00010000\U0010FFFF";
    const char* hex = "ff fe ff 06 3d d8 00 de 00 d8 00 dc ff db ff df";
    EXPECT_EQ(hex, ToHex(Stored([&](CArchive& ar) { ar << text; })));
    CString loaded;
    Loaded(FromHex(hex), [&](CArchive& ar) { ar >> loaded; });
    EXPECT_STREQ(text, loaded);
    EXPECT_EQ(sizeof(TCHAR) == 2 ? "3d d8" : "fd ff", ToHex(Stored([&](CArchive& ar) { ar << text[0]; })));
    const char* lone = "ff fe ff 04 7a 00 00 de 3d d8 3d d8";
    Loaded(FromHex(lone), [&](CArchive& ar) { ar >> loaded; });
    EXPECT_EQ(lone, ToHex(Stored([&](CArchive& ar) { ar << loaded; })));
}

TEST(Archive, StringsOfOddFormLoadOrFail) {
    for (const auto& [hex, cause, wanted] :
         Rows<const char*, int, LPCTSTR>{{"ff ff ff 01 00 00 00 61", kNone, L"a"},
                                         {"ff fe ff ff fe ff 01 61 00", kBadIndex, L"old"}, // the mark twice
                                         {"ff fe ff ff ff ff ff ff ff 7f 61 00", kEndOfFile, L"old"},
                                         {"ff fe ff ff ff ff 00 00 00 80 61 00", kBadIndex, L"old"},
                                         {"ff ff ff ff ff ff ff 61", kBadIndex, L"old"}}) {
        CString text = L"old";
        EXPECT_EQ(cause, Loaded(FromHex(hex), [&](CArchive& ar) { ar >> text; })) << hex;
        EXPECT_STREQ(wanted, text) << hex;
    }
}

TEST(Archive, ReadGivesWhatIsThere) {
    Bytes buffer(1000);
    Loaded(Bytes(300, 7), [&](CArchive& ar) {
        EXPECT_EQ(299U, ar.Read(buffer.data(), 299));
        EXPECT_EQ(1U, ar.Read(buffer.data(), 1000));
    });
}

TEST(Archive, TheWrongDirectionThrows) {
    CMemFile file;
    CArchive storing(&file, CArchive::store | CArchive::bNoFlushOnDelete);
    CArchive loading(&file, CArchive::load);
    const auto causeOf = [](auto use) { return CauseOf<CArchiveException>(use); };
    int i = 0;
    EXPECT_EQ(CArchiveException::writeOnly, causeOf([&] { storing >> i; }));
    EXPECT_EQ(CArchiveException::readOnly, causeOf([&] { loading << i; }));
    storing.Close();
    EXPECT_EQ(CArchiveException::genericException, causeOf([&] { storing << i; }));
    loading.Close();
    EXPECT_EQ(CArchiveException::genericException, causeOf([&] { loading >> i; }));
    EXPECT_THROW(CArchive(nullptr, CArchive::load), CInvalidArgException*);
}

TEST(Archive, ClosingALoadedArchiveLeavesTheFileBehindTheLastByteUsed) {
    Bytes bytes = FromHex("01 02 03 04");
    for (const UINT used : {1, 3}) {
        CMemFile file(bytes.data(), 4);
        BYTE read[4] = {};
        CArchive(&file, CArchive::load).Read(read, used);
        EXPECT_EQ(used, file.GetPosition());
        CArchive ar(&file, CArchive::load);
        ar >> read[0];
        EXPECT_EQ(used + 1, read[0]);
        ar.Flush();
        EXPECT_TRUE(ar.IsBufferEmpty());
    }
}

TEST(Archive, TheCallersBufferIsUsed) {
    CMemFile file;
    BYTE buffer[129] = {};
    CArchive ar(&file, CArchive::store, 128, buffer);
    ar.Write(Bytes(129, 9).data(), 129);
    EXPECT_EQ(9, buffer[127]);
    EXPECT_EQ(0, buffer[128]) << "not the caller's any more";
    ar.Close();
    ar.Close();
    EXPECT_EQ(Bytes(129, 9), ContentOf(file));
    CArchive(&file, CArchive::store, 1, buffer) << BYTE{8};
    EXPECT_EQ(9, buffer[0]) << "one too small is left alone";
}

struct FullDisk : CMemFile {
    void Write(const void*, UINT) override {
        if (m_throwsNumbers)
            throw 1;
        AfxThrowFileException(CFileException::diskFull);
    }
    bool m_throwsNumbers = false;
};

TEST(Archive, AWriteErrorReachesTheCallerOnce) {
    FullDisk file;
    CMemFile sound;
    const auto storeAnd = [&file, &sound](auto then) {
        CArchive kept(&sound, CArchive::store);
        CArchive ar(&file, CArchive::store);
        kept << 1;
        ar << 1;
        then(ar);
    };
    constexpr int kFull = CFileException::diskFull;
    EXPECT_EQ(kFull, CauseOf([&] { storeAnd([](CArchive& ar) { ar.Close(); }); }));
    EXPECT_EQ(kFull, CauseOf([&] { storeAnd([](CArchive&) {}); }))
        << "the destructor must not lose data silently";
    EXPECT_THROW(storeAnd([](CArchive&) { throw std::runtime_error("first"); }), std::runtime_error);
    EXPECT_EQ(kBadIndex, CauseOf<CArchiveException>(
                             [&] { storeAnd([](CArchive&) { AfxThrowArchiveException(kBadIndex); }); }));
    EXPECT_NO_THROW(storeAnd([](CArchive& ar) { ar.Abort(); }));
    EXPECT_NO_THROW(CArchive(&file, CArchive::store | CArchive::bNoFlushOnDelete) << 1);
    EXPECT_EQ(5 * sizeof(int), sound.GetLength()) << "each was closed on its way";
    file.m_throwsNumbers = true;
    EXPECT_THROW(storeAnd([](CArchive&) { throw std::runtime_error("first"); }), std::runtime_error);
}

} // namespace
