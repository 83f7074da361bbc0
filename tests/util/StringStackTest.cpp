#include "util/StringStack.h"

#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace {

using Texts = std::vector<CString>;

/// What a stack holds, read from its archive without its own loading.
Texts TextsOf(CStringStack& stack) {
    Texts texts;
    Loaded(Stored([&](CArchive& ar) { stack.Serialize(ar); }), [&](CArchive& ar) {
        int nCount = 0;
        ar >> nCount;
        texts.resize(static_cast<size_t>(nCount));
        for (CString& text : texts)
            ar >> text;
    });
    return texts;
}

TEST(StringStack, KeepsTheMostRecentTextsOfEachKey) {
    // texts: +A adds A at the head, -A at the tail
    const Rows<const char*, int, int, Texts, Texts> rows = {
        {"empty", 0, 3, {L"+", L"-", L"+A", L"+"}, {L"A"}},
        {"one of each header", 1, 5, {L"+12", L"+P12", L"+X", L"+P13", L"+7"}, {L"7", L"P13", L"X"}},
        {"tail: a key that is there", 1, 5, {L"+P1", L"+Q", L"-P2", L"-R"}, {L"Q", L"P1", L"R"}},
        {"tail on a full list", 0, 3, {L"+A", L"+B", L"+C", L"-D"}, {L"C", L"B", L"D"}},
        {"negative capacity", 1, -2147483647 - 1, {L"-A1", L"+A2", L"+B"}, {L"B"}},
    };
    for (const auto& [what, mode, capacity, steps, texts] : rows) {
        CStringStack stack(mode, capacity);
        for (const CString& step : steps)
            stack.Add(step.Mid(1), step[0] == L'-' ? 1 : 0);
        EXPECT_EQ(texts, TextsOf(stack)) << what;
    }
}

TEST(StringStack, SplitsANameBeforeTheNumberAtItsEnd) {
    struct Open : CStringStack {
        using CStringStack::SeparateHeaderToParam;
    } stack;
    for (const auto& [text, header, param] : {std::array{L"A1B0:9", L"A1B0:", L"9"},
                                              {L"A/09", L"A/", L"09"},
                                              {L"09", L"", L"09"},
                                              {L"P１", L"P１", L""}}) {
        CString strHeader;
        CString strParam = text; // a text may be split into itself
        stack.SeparateHeaderToParam(strParam, strHeader, strParam);
        EXPECT_STREQ(header, strHeader);
        EXPECT_STREQ(param, strParam);
    }
}

// Stacks as objects, by hand from the layout.
const std::string CLASS = "0c 00 43 53 74 72 69 6e 67 53 74 61 63 6b ";
const std::string TEXT_A =
    "01 00 00 00 ff fe ff 01 41 00 01 00 00 00 2c 01 00 00 "; // count, text, mode, capacity
const std::string TEXT_B = "01 00 00 00 ff fe ff 01 42 00 00 00 00 00 14 00 00 00 ";

TEST(StringStack, IsStoredAndLoadedAsAnObject) {
    CStringStack a(1, 300), b;
    a.Add(L"A", 0);
    b.Add(L"B", 0);
    const auto store = [&](CArchive& ar) { ar << &a << &b << &a; };
    const Bytes bytes = FromHex("ff ff 00 00 " + CLASS + TEXT_A + "01 80 " + TEXT_B + "02 00");
    EXPECT_EQ(ToHex(bytes), ToHex(Stored(store)));
    CStringStack* p[3] = {};
    EXPECT_EQ(CArchiveException::none, Loaded(bytes, [&](CArchive& ar) { ar >> p[0] >> p[1] >> p[2]; }));
    const std::unique_ptr<CStringStack> owners[] = {std::unique_ptr<CStringStack>(p[0]),
                                                    std::unique_ptr<CStringStack>(p[1])};
    EXPECT_EQ(p[0], p[2]);
    p[0]->Add(L"A7", 0); // the mode counts
    EXPECT_EQ(Texts{L"A7"}, TextsOf(*p[0]));
    EXPECT_EQ(Texts{L"B"}, TextsOf(*p[1]));
    // Another schema is no reason to refuse a file: the layout has no versions.
    EXPECT_EQ(CArchiveException::none, Loaded(FromHex("ff ff 07 00 " + CLASS + TEXT_B),
                                              [&](CArchive& ar) { delete ar.ReadObject(nullptr); }));
}

TEST(StringStack, LoadingReplacesAndStopsAtDamage) {
    const Rows<std::string, int, Texts> rows = {
        {"00 00 00 00 00 00 00 00 14 00 00 00", CArchiveException::none, {}},
        {"ff ff ff ff", CArchiveException::badIndex, {}},
        {"ff ff ff 7f ff fe ff 01 41 00", CArchiveException::endOfFile, {L"A"}}};
    for (const auto& [hex, cause, texts] : rows) {
        CStringStack stack;
        stack.Add(L"old", 0);
        EXPECT_EQ(cause, Loaded(FromHex(hex), [&](CArchive& ar) { stack.Serialize(ar); })) << hex;
        EXPECT_EQ(texts, TextsOf(stack)) << hex;
    }
}

} // namespace
