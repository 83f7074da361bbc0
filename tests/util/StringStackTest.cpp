#include "util/StringStack.h"

#include "framework_base/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Texts = std::vector<CString>;

constexpr int kNone = CArchiveException::none;
constexpr int kEndOfFile = CArchiveException::endOfFile;
constexpr int kBadIndex = CArchiveException::badIndex;

/// What a stack holds, as it archives itself; read without its own loading.
struct Content {
    Texts texts;
    int nMode = -1;
    int nCapacity = -1;
};

Content ContentOf(CStringStack& stack) {
    Content content;
    EXPECT_EQ(Loaded(Stored([&](CArchive& ar) { stack.Serialize(ar); }),
                     [&](CArchive& ar) {
                         int nCount = 0;
                         ar >> nCount;
                         content.texts.resize(static_cast<size_t>(nCount));
                         for (CString& text : content.texts)
                             ar >> text;
                         ar >> content.nMode >> content.nCapacity;
                     }),
              kNone);
    return content;
}

Texts TextsOf(CStringStack& stack) {
    return ContentOf(stack).texts;
}

/// "+A" adds A at the head, "-A" at the tail.
void AddAll(CStringStack& stack, const Texts& steps) {
    for (const CString& step : steps)
        stack.Add(step.Mid(1), step[0] == L'-' ? 1 : 0);
}

TEST(StringStack, KeepsTheMostRecentTextsOfEachKey) {
    struct Row {
        const char* what;
        int mode, capacity;
        Texts steps, texts;
    };
    const Row rows[] = {
        {"the oldest falls off", 0, 3, {L"+A", L"+B", L"+C", L"+D"}, {L"D", L"C", L"B"}},
        {"a repeated one moves to the front", 0, 3, {L"+A", L"+B", L"+C", L"+D", L"+B"}, {L"B", L"D", L"C"}},
        {"a repeated one costs no other", 0, 3, {L"+A", L"+B", L"+C", L"+A"}, {L"A", L"C", L"B"}},
        {"empty", 0, 3, {L"+", L"-", L"+A", L"+"}, {L"A"}},
        {"case counts", 0, 3, {L"+a", L"+A"}, {L"A", L"a"}},
        {"whole texts", 0, 5, {L"+P12", L"+P13", L"+P"}, {L"P", L"P13", L"P12"}},
        {"another mode is whole texts too", 2, 5, {L"+P12", L"+P13"}, {L"P13", L"P12"}},
        {"one of each header", 1, 5, {L"+P12", L"+X", L"+P13"}, {L"P13", L"X"}},
        {"a header alone", 1, 5, {L"+Q", L"+Q7"}, {L"Q7"}},
        {"digits alone have an empty header", 1, 5, {L"+12", L"+A1", L"+7"}, {L"7", L"A1"}},
        {"digits inside belong to the header", 1, 5, {L"+A1B2", L"+A2B2"}, {L"A2B2", L"A1B2"}},
        {"full-width digits are no number", 1, 5, {L"+P1２", L"+P1３"}, {L"P1３", L"P1２"}},
        {"tail", 0, 5, {L"+A", L"-B", L"-C"}, {L"A", L"B", L"C"}},
        {"tail: a key that is there", 0, 5, {L"+A", L"+B", L"-A"}, {L"B", L"A"}},
        {"tail: a header that is there", 1, 5, {L"+P1", L"+Q", L"-P2"}, {L"Q", L"P1"}},
        {"tail on a full list", 0, 3, {L"+A", L"+B", L"+C", L"-D"}, {L"C", L"B", L"D"}},
        {"capacity one", 0, 1, {L"+A", L"+B", L"-C"}, {L"C"}},
        {"capacity zero", 0, 0, {L"+A", L"+B", L"-C", L"+C"}, {L"C"}},
        {"negative capacity", 1, -2147483647 - 1, {L"-A1", L"+A2", L"+B"}, {L"B"}},
    };
    for (const Row& row : rows) {
        CStringStack stack(row.mode, row.capacity);
        AddAll(stack, row.steps);
        EXPECT_EQ(TextsOf(stack), row.texts) << row.what;
    }
}

TEST(StringStack, TwentyWholeTextsUnlessToldOtherwise) {
    CStringStack stack;
    for (wchar_t ch = L'a'; ch <= L'z'; ++ch)
        stack.Add(CString(ch), 0);
    EXPECT_EQ(TextsOf(stack).size(), 20U);
    EXPECT_EQ(TextsOf(stack).front(), L"z");
    stack.Reset();
    EXPECT_TRUE(TextsOf(stack).empty());
}

TEST(StringStack, SplitsANameBeforeTheNumberAtItsEnd) {
    class Open : public CStringStack {
    public:
        using CStringStack::SeparateHeaderToParam;
    } stack;
    struct Row {
        const wchar_t *text, *header, *param;
    };
    const Row rows[] = {
        {L"PT123", L"PT", L"123"}, {L"A1B2", L"A1B", L"2"}, {L"ABC", L"ABC", L""},   {L"123", L"", L"123"},
        {L"", L"", L""},           {L"1 ", L"1 ", L""},     {L"点09", L"点", L"09"}, {L"P１", L"P１", L""},
    };
    for (const Row& row : rows) {
        CString strHeader = L"old";
        CString strParam = L"old";
        stack.SeparateHeaderToParam(row.text, strHeader, strParam);
        EXPECT_EQ(strHeader, row.header);
        EXPECT_EQ(strParam, row.param);
    }
    CString strBoth = L"PT123"; // a text may be split into itself
    CString strOther;
    stack.SeparateHeaderToParam(strBoth, strOther, strBoth);
    EXPECT_EQ(strOther, L"PT");
    EXPECT_EQ(strBoth, L"123");
}

// --- Archive -------------------------------------------------------------------------------------

// Two texts, header mode, capacity 300; written by hand from the layout.
const std::string TWO_TEXTS = "02 00 00 00 "                   // count
                              "ff fe ff 02 42 00 37 00 "       // B7, the most recent one
                              "ff fe ff 03 b9 70 0d 54 31 00 " // 点名1
                              "01 00 00 00 2c 01 00 00";       // mode, capacity

TEST(StringStack, ArchiveHoldsCountTextsModeAndCapacity) {
    CStringStack stack(1, 300);
    AddAll(stack, {L"+点名1", L"+B7"});
    EXPECT_EQ(ToHex(Stored([&](CArchive& ar) { stack.Serialize(ar); })), ToHex(FromHex(TWO_TEXTS)));
    CStringStack empty(7, -1);
    EXPECT_EQ(ToHex(Stored([&](CArchive& ar) { empty.Serialize(ar); })),
              "00 00 00 00 07 00 00 00 ff ff ff ff");
}

TEST(StringStack, LoadingReplacesEverything) {
    CStringStack stack(0, 5);
    AddAll(stack, {L"+X", L"+Y"});
    EXPECT_EQ(Loaded(FromHex(TWO_TEXTS), [&](CArchive& ar) { stack.Serialize(ar); }), kNone);
    const Content content = ContentOf(stack);
    EXPECT_EQ(content.texts, (Texts{L"B7", L"点名1"}));
    EXPECT_EQ(content.nMode, 1);
    EXPECT_EQ(content.nCapacity, 300);
    stack.Add(L"B8", 0); // and the new mode counts
    EXPECT_EQ(TextsOf(stack), (Texts{L"B8", L"点名1"}));
}

TEST(StringStack, AListLongerThanItsCapacityLosesOneTextAtATime) {
    CStringStack stack;
    const Bytes bytes = FromHex("03 00 00 00 ff fe ff 01 41 00 ff fe ff 01 42 00 ff fe ff 01 43 00"
                                "00 00 00 00 00 00 00 00");
    EXPECT_EQ(Loaded(bytes, [&](CArchive& ar) { stack.Serialize(ar); }), kNone);
    EXPECT_EQ(TextsOf(stack), (Texts{L"A", L"B", L"C"}));
    stack.Add(L"D", 0);
    EXPECT_EQ(TextsOf(stack), (Texts{L"D", L"A", L"B"}));
}

TEST(StringStack, EveryCutIsNoticedAndWhatWasReadStays) {
    const Bytes bytes = FromHex(TWO_TEXTS);
    EXPECT_EQ(CutsNotNoticed(bytes, [](CArchive& ar) { CStringStack().Serialize(ar); }),
              std::vector<size_t>());
    struct Row {
        ptrdiff_t length;
        Content content;
    };
    const Row rows[] = {
        {3, {{}, 0, 9}},
        {11, {{}, 0, 9}},
        {12, {{L"B7"}, 0, 9}},
        {22, {{L"B7", L"点名1"}, 0, 9}},
        {26, {{L"B7", L"点名1"}, 1, 9}},
    };
    for (const Row& row : rows) {
        CStringStack stack(0, 9);
        stack.Add(L"old", 0);
        EXPECT_EQ(
            Loaded({bytes.begin(), bytes.begin() + row.length}, [&](CArchive& ar) { stack.Serialize(ar); }),
            kEndOfFile);
        const Content content = ContentOf(stack);
        EXPECT_EQ(content.texts, row.content.texts) << row.length;
        EXPECT_EQ(content.nMode, row.content.nMode) << row.length;
        EXPECT_EQ(content.nCapacity, row.content.nCapacity) << row.length;
    }
}

TEST(StringStack, HostileArchivesAreRefused) {
    const std::string one = "ff fe ff 01 41 00 ";
    struct Row {
        const char* what;
        std::string hex;
        int cause;
        Texts kept;
    };
    const Row rows[] = {
        {"count -1", "ff ff ff ff" + one, kBadIndex, {}},
        {"count 2^31", "00 00 00 80" + one, kBadIndex, {}},
        {"count 2^31-1", "ff ff ff 7f" + one, kEndOfFile, {L"A"}},
        {"length 2^31-1", "02 00 00 00" + one + "ff fe ff ff ff ff ff ff ff 7f 41 00", kEndOfFile, {L"A"}},
        {"8-bit length 2^31-1", "02 00 00 00" + one + "ff ff ff ff ff ff 7f 41", kEndOfFile, {L"A"}},
    };
    for (const Row& row : rows) {
        CStringStack stack;
        stack.Add(L"old", 0);
        EXPECT_EQ(Loaded(FromHex(row.hex), [&](CArchive& ar) { stack.Serialize(ar); }), row.cause)
            << row.what;
        EXPECT_EQ(TextsOf(stack), row.kept) << row.what;
    }
}

// Two objects and the first one again: its class, each content, a reference by number.
const std::string TEXT_A = "01 00 00 00 ff fe ff 01 41 00 00 00 00 00 14 00 00 00 ";
const std::string TEXT_B = "01 00 00 00 ff fe ff 01 42 00 01 00 00 00 05 00 00 00 ";
const std::string CLASS = "0c 00 43 53 74 72 69 6e 67 53 74 61 63 6b ";
const std::string OBJECTS = "ff ff 00 00 " + CLASS + TEXT_A + "01 80 " + TEXT_B + "02 00";

TEST(StringStack, IsStoredAsAnObjectWithItsClass) {
    CStringStack a;
    CStringStack b(1, 5);
    a.Add(L"A", 0);
    b.Add(L"B", 0);
    const auto store = [&](CArchive& ar) {
        for (const CObject* pObject : {&a, &b, &a})
            ar << pObject;
    };
    EXPECT_EQ(ToHex(Stored(store)), ToHex(FromHex(OBJECTS)));
    EXPECT_EQ(RUNTIME_CLASS(CStringStack)->m_wSchema, 0x80000000U);
}

TEST(StringStack, IsLoadedAsAnObject) {
    std::unique_ptr<CStringStack> pA;
    std::unique_ptr<CStringStack> pB;
    CStringStack* pAgain = nullptr;
    EXPECT_EQ(Loaded(FromHex(OBJECTS),
                     [&](CArchive& ar) {
                         CStringStack* p = nullptr;
                         ar >> p;
                         pA.reset(p);
                         ar >> p;
                         pB.reset(p);
                         ar >> pAgain;
                     }),
              kNone);
    ASSERT_NE(pB, nullptr);
    EXPECT_EQ(TextsOf(*pA), Texts{L"A"});
    EXPECT_EQ(TextsOf(*pB), Texts{L"B"});
    EXPECT_EQ(pAgain, pA.get());
    // Another schema is no reason to refuse a file: the layout has no versions.
    EXPECT_EQ(Loaded(FromHex("ff ff 07 00 " + CLASS + TEXT_B),
                     [&](CArchive& ar) { pA.reset(static_cast<CStringStack*>(ar.ReadObject(nullptr))); }),
              kNone);
    EXPECT_EQ(TextsOf(*pA), Texts{L"B"});
}

} // namespace
