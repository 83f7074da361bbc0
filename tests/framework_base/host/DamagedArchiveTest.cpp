#include "support/host/DamagedBytes.h"

#include "afxcoll.h"
#include "afxtempl.h"

#include <memory>

namespace {

// Two references, each to nothing, to a new joint or back to an earlier one.
class CJoint : public CObject {
    DECLARE_SERIAL(CJoint)
public:
    CJoint() { ++s_made; }
    ~CJoint() override {
        for (const Reference& reference : m_references)
            if (reference.owned)
                delete reference.pJoint;
    }
    void Serialize(CArchive& ar) override {
        for (Reference& reference : m_references) {
            if (ar.IsStoring()) {
                ar << reference.pJoint;
                continue;
            }
            const int nBefore = s_made;
            ar >> reference.pJoint;
            reference.owned = s_made > nBefore; // else it is somebody else's
        }
        if (ar.IsStoring())
            ar << m_name;
        else
            ar >> m_name;
    }

    struct Reference {
        CJoint* pJoint = nullptr;
        bool owned = false;
    };
    static int s_made;
    Reference m_references[2];
    CString m_name = L"name";
};
int CJoint::s_made = 0;
IMPLEMENT_SERIAL(CJoint, CObject, 1)

TEST(DamagedArchive, GraphsWithCirclesAreFreedOnce) {
    CJoint a, b, c;
    a.m_references[0].pJoint = &b;
    a.m_references[1].pJoint = &c;
    b.m_references[0].pJoint = &a;
    b.m_references[1].pJoint = &b;
    c.m_references[0].pJoint = &b;
    c.m_references[1].pJoint = &a;
    LoadDamaged(Stored([&](CArchive& ar) { ar << &a; }),
                [](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(CJoint)); });
}

TEST(DamagedArchive, CollectionsAndValuesComeToAnEnd) {
    CStringList list;
    CStringArray strings;
    CArray<double, double> numbers;
    CMap<int, int, CString, LPCTSTR> map;
    list.AddTail(L"text");
    strings.Add(L"\x6E2C\x70B9");
    numbers.Add(1.5);
    map.SetAt(7, L"seven");
    LoadDamaged(
        Stored([&](CArchive& ar) {
            for (CObject* pObject : std::initializer_list<CObject*>{&list, &strings, &numbers, &map})
                pObject->Serialize(ar);
            ar << CString(L'x', 300) << true;
        }),
        [](CArchive& ar) {
            CStringList list1;
            CStringArray strings1;
            CArray<double, double> numbers1;
            CMap<int, int, CString, LPCTSTR> map1;
            for (CObject* pObject : std::initializer_list<CObject*>{&list1, &strings1, &numbers1, &map1})
                pObject->Serialize(ar);
            CString text;
            bool flag = false;
            ar >> text >> flag;
        });
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
