#include "framework_base/Link.h"
#include "support/host/DamagedBytes.h"

#include "afxcoll.h"
#include "afxtempl.h"

namespace {

TEST(DamagedArchive, CirclesAreFreedOnce) {
    CLink a(1), c(3, &a), b(2, &c);
    a.m_pNext = &b;
    LoadDamaged(Stored([&](CArchive& ar) { ar << &a; }),
                [](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(CLink)); });
}

TEST(DamagedArchive, CollectionsAndValuesComeToAnEnd) {
    struct Content {
        void Serialize(CArchive& ar) {
            for (CObject* pObject : std::initializer_list<CObject*>{&list, &strings, &numbers, &map})
                pObject->Serialize(ar);
            ar.IsStoring() ? ar << text << flag : ar >> text >> flag;
        }
        CStringList list;
        CStringArray strings;
        CArray<double, double> numbers;
        CMap<int, int, CString, LPCTSTR> map;
        CString text{L'x', 300};
        bool flag = true;
    } content;
    content.list.AddTail(L"text");
    content.strings.Add(L"\x6E2C\x70B9");
    content.numbers.Add(1.5);
    content.map.SetAt(7, L"seven");
    LoadDamaged(Stored([&](CArchive& ar) { content.Serialize(ar); }),
                [](CArchive& ar) { Content().Serialize(ar); });
}

// The number of elements is what the file says; the bytes for them are few or many.
TEST(DamagedArchive, MemoryGoesWithTheSizeOfTheFile) {
    // size: of zeros behind it
    constexpr std::size_t kMega = 1 << 20;
    const auto list = [](CArchive& ar) { CStringList().Serialize(ar); };
    const auto array = [](CArchive& ar) { CStringArray().Serialize(ar); };
    const auto numbers = [](CArchive& ar) { CArray<double, double>().Serialize(ar); };
    const auto text = [](CArchive& ar) {
        CString string;
        ar >> string;
    };
    for (const auto& [what, head, size, perByte, load] :
         Rows<const char*, const char*, std::size_t, std::size_t, std::function<void(CArchive&)>>{
             {"empty texts, a byte each", "ff ff ff ff ff ff", kMega, 60, list},
             {"the same in an array", "ff ff ff ff ff ff", kMega, 90, array},
             {"numbers", "ff ff ff ff ff 7f", kMega, 3, numbers},
             {"a wide text", "ff fe ff ff ff ff ff ff ff 7f", kMega, 8, text},
             {"a narrow text", "ff ff ff ff ff ff 7f", kMega, 8, text},
             {"no bytes for a text", "ff ff ff ff ff ff 7f", 0, 0, text},
         }) {
        Bytes bytes = FromHex(head);
        bytes.resize(bytes.size() + size);
        constexpr std::size_t kAnyway = 100'000;
        // The file itself lies in memory here, too.
        EXPECT_LT(LoadWithoutLoss(bytes, load), perByte * size + kAnyway) << what;
    }
}

} // namespace
