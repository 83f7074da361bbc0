#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <deque>
#include <memory>

namespace {

/// Owns the next link when it was loaded.
class CLink : public CObject {
    DECLARE_SERIAL(CLink)
public:
    explicit CLink(BYTE id = 0, CLink* pNext = nullptr) : m_id(id), m_pNext(pNext) { ++s_alive; }
    ~CLink() override {
        if (m_bOwnsNext)
            delete m_pNext;
        --s_alive;
    }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_id << m_pNext;
            return;
        }
        m_bOwnsNext = true;
        ar >> m_id >> m_pNext;
    }

    static inline int s_alive = 0;
    BYTE m_id;
    CLink* m_pNext;
    bool m_bOwnsNext = false;
};
IMPLEMENT_SERIAL(CLink, CObject, 1)

constexpr int kNone = CArchiveException::none, kEndOfFile = CArchiveException::endOfFile;
constexpr int kBadIndex = CArchiveException::badIndex, kBadClass = CArchiveException::badClass;
constexpr int kBadSchema = CArchiveException::badSchema;

class CVersioned : public CObject {
    DECLARE_SERIAL(CVersioned)
public:
    ~CVersioned() override { delete m_pInner; }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_pInner;
            return;
        }
        ar >> m_pInner;
        m_first = ar.GetObjectSchema();
        m_second = ar.GetObjectSchema();
    }
    CVersioned* m_pInner = nullptr;
    UINT m_first = 0, m_second = 0;
};
IMPLEMENT_SERIAL(CVersioned, CObject, VERSIONABLE_SCHEMA | 2)

class CNamed : public CObject {
    DECLARE_DYNAMIC(CNamed)
};
IMPLEMENT_DYNAMIC(CNamed, CObject)

// Schema, length and name, as they follow the tag of a new class.
const std::string kLinkClass = "ffff 0100 0500 434c696e6b ";

int LoadChains(const std::string& hex, int count = 1) {
    return Loaded(FromHex(hex), [&](CArchive& ar) {
        for (int i = 0; i < count; ++i)
            delete ar.ReadObject(RUNTIME_CLASS(CLink));
    });
}

TEST(ArchiveObject, NumbersThatDoNotFitTheirTagAreLong) {
    // tail: the last link, which has the number count + 1, and the class behind it
    for (const auto& [count, tail] : Rows<std::size_t, const char*>{
             {0x7FFD, "fe 7f ff 7f ff 7f 00 80"}, {0x7FFE, "ff 7f ff 7f 00 00 ff 7f 00 80 00 80"}}) {
        std::vector<std::unique_ptr<CLink>> links(count);
        for (auto& link : links)
            link = std::make_unique<CLink>();
        const Bytes bytes = Stored([&](CArchive& ar) {
            ar.WriteClass(RUNTIME_CLASS(CLink));
            ar.MapObject(nullptr); // has its number, 0
            for (const auto& link : links)
                ar.MapObject(link.get());
            ar.WriteClass(RUNTIME_CLASS(CVersioned));
            ar << links.back().get();
            ar.SerializeClass(RUNTIME_CLASS(CVersioned));
        });
        const std::string hex = ToHex(bytes);
        EXPECT_EQ(tail, hex.substr(hex.size() - std::string(tail).size()));
        EXPECT_EQ(kNone, Loaded(bytes, [&](CArchive& ar) {
                      ar.ReadClass();
                      for (const auto& link : links)
                          ar.MapObject(link.get());
                      ar.ReadClass(RUNTIME_CLASS(CVersioned));
                      EXPECT_EQ(links.back().get(), ar.ReadObject(RUNTIME_CLASS(CLink)));
                      ar.SerializeClass(RUNTIME_CLASS(CVersioned));
                  }));
    }
}

TEST(ArchiveObject, DamagedRecordsThrowAndLeaveNothingBehind) {
    for (const auto& [what, record, cause] : Rows<const char*, std::string, int>{
             {"unknown class", "ffff 0100 0500 434c696e78 01 0000", kBadClass},
             {"NUL in the class name", "ffff 0100 0600 434c696e6b00 01 0000", kBadClass},
             {"class of another kind", "ffff 0200 0a00 4356657273696f6e6564", kBadClass},
             {"other schema", "ffff 0200 0500 434c696e6b 01 0000", kBadSchema},
             {"class number of an object", kLinkClass + "01 0280", kBadIndex},
             {"object number of a class", kLinkClass + "01 0100", kBadIndex},
             {"class number behind the last", kLinkClass + "01 018002 0480", kBadIndex},
             {"object number behind the last", kLinkClass + "01 018002 0400", kBadIndex},
             {"class name of 65535 bytes", "ffff 0100 ffff 434c", kEndOfFile},
         }) {
        SCOPED_TRACE(what);
        EXPECT_EQ(cause, LoadChains(record));
        EXPECT_EQ(0, CLink::s_alive);
    }
}

TEST(ArchiveObject, ALostObjectCannotBeReferredTo) {
    // The outer caller swallows the failure and reads on: number 2 was destroyed.
    const Bytes bytes = FromHex(kLinkClass + "01 0780 0200");
    EXPECT_EQ(kBadIndex, Loaded(bytes, [](CArchive& ar) {
                  try {
                      ar.ReadObject(nullptr);
                      ADD_FAILURE();
                  } catch (CArchiveException* e) {
                      e->Delete();
                  }
                  ar.ReadObject(nullptr);
              }));
}

TEST(ArchiveObject, NestingEndsAtAThousandBothWays) {
    for (const auto& [depth, cause] : Rows<int, int>{{1000, kNone}, {1001, kBadIndex}}) {
        std::deque<CLink> chain;
        std::string hex = kLinkClass;
        for (int i = 0; i < depth; ++i) {
            chain.emplace_back(BYTE{1}, chain.empty() ? nullptr : &chain.back());
            hex += i == 0 ? "01" : "018001";
        }
        CLink beside(2);
        EXPECT_EQ(cause, CauseOf<CArchiveException>(
                             [&] { Stored([&](CArchive& ar) { ar << &chain.back() << &beside; }); }));
        EXPECT_EQ(cause, LoadChains(hex + "0000 0180020000", 2));
    }
    EXPECT_EQ(0, CLink::s_alive);
}

TEST(ArchiveObject, EachObjectAsksForItsSchemaNumberOnce) {
    const std::string name = "0a00 4356657273696f6e6564 ";
    EXPECT_EQ(kNone, Loaded(FromHex("ffff 0100 " + name + "0180 0000"), [](CArchive& ar) {
                  EXPECT_EQ(static_cast<UINT>(-1), ar.GetObjectSchema());
                  CVersioned* pOuter = nullptr;
                  ar >> pOuter;
                  const std::unique_ptr<CVersioned> owner(pOuter);
                  for (const CVersioned* p : {pOuter, pOuter->m_pInner}) {
                      EXPECT_EQ(1U, p->m_first);
                      EXPECT_EQ(static_cast<UINT>(-1), p->m_second);
                  }
                  ar.SetObjectSchema(7);
                  EXPECT_EQ(7U, ar.GetObjectSchema());
              }));
}

TEST(ArchiveObject, ClassesWithoutSerialAreNotSupported) {
    CNamed named;
    EXPECT_THROW(Stored([&](CArchive& ar) { ar << &named; }), CNotSupportedException*);
    const AFX_CLASSINIT known(RUNTIME_CLASS(CNamed)); // by its name, and cannot be made all the same
    EXPECT_EQ(kBadClass, Loaded(FromHex("ffff ffff 0600 434e616d6564"), [](CArchive& ar) {
                  CObject* pNamed = nullptr;
                  ar >> pNamed;
              }));
}

TEST(ArchiveObject, AReferenceMustFitItsPlace) {
    EXPECT_EQ(kBadClass, Loaded(FromHex(kLinkClass + "01 0000 0200"), [](CArchive& ar) {
                  const std::unique_ptr<CObject> owner(ar.ReadObject(nullptr));
                  ar.ReadObject(RUNTIME_CLASS(CVersioned));
              }));
    EXPECT_EQ(kBadIndex, Loaded(FromHex("0000"), [](CArchive& ar) { ar.ReadClass(); }));
    Loaded(FromHex(kLinkClass), [](CArchive& ar) {
        DWORD tag = 0;
        ar.ReadClass(nullptr, nullptr, &tag);
        EXPECT_EQ(0x80000000U, tag);
    });
}

} // namespace
