// From the questions to the journal, with the keys that a panel sends.
#include "PenSteps.h"
#include "screens/Computations.h"
#include "testkit/Application.h"

using namespace testkit;

namespace {

/// A name or a number, and Enter.
Step Type(const char* pszText) {
    return [pszText] {
        for (const char* pch = pszText; *pch != '\0'; ++pch)
            TypeKeys({static_cast<WORD>(*pch)});
        TypeKeys({VK_RETURN});
    };
}

/// An entry of the menu on the screen, from 0.
Step Entry(int nEntry) {
    return [nEntry] {
        HWND hButton = nullptr;
        for (int i = 0; i <= nEntry; ++i)
            hButton = ::FindWindowEx(::GetActiveWindow(), hButton, L"Button", nullptr);
        pen::Tap(*CWnd::FromHandle(hButton));
    };
}

TEST(Computations, AskForWhatTheyNeedAndWriteItDown) {
    CJob job(L"no-history.dat");
    // A square of 10 m, its corner A in the south-west, and a point 3 m east of it.
    for (const auto& [pszName, dN, dE] :
         {std::tuple(L"A", 0.0, 0.0), std::tuple(L"B", 10.0, 0.0), std::tuple(L"C", 10.0, 10.0),
          std::tuple(L"D", 0.0, 10.0), std::tuple(L"P", 5.0, 13.0)})
        job.book.Add({pszName, CCoordinate(dE, dN, 0, 1)});
    Frame parent(CSize(1, 1), WS_POPUP);
    CComputations computations(parent, job);
    const struct {
        const char* pszCase;
        std::optional<CReport> (CComputations::*compute)();
        std::initializer_list<Step> steps;
        std::vector<CString> lines; ///< The first of the report; none if it was given up.
    } cases[] = {
        {"area, closed by an empty name",
         &CComputations::Area,
         {Type("A"), Type("B"), Type(""), Answer(IDOK), Type("C"), Type("")},
         {L"面積（m2）  50.000", L"周の長さ  34.142", L"入力", L"  頂点1  A", L"  N  0.000", L"  E  0.000"}},
        {"area, closed by its first point; sides cross",
         &CComputations::Area,
         {Type("A"), Type("C"), Type("B"), Type("D"), Type("A")},
         {L"周の長さ  48.284", L"注意: 辺が交わっています", L"入力"}},
        {"foot",
         &CComputations::Foot,
         {Type("A"), Type("B"), Type("P")},
         {L"垂線の足", L"  N  5.000", L"  E  0.000", L"始点からの距離  5.000", L"右への離れ  13.000", L"入力",
          L"  直線の始点  A", L"  N  0.000", L"  E  0.000"}},
        {"parallel and circle",
         &CComputations::Combined,
         {Entry(2), Entry(3), Type("A"), Type("B"), Type("4"), Type("A"), Type("5")},
         {L"交点1", L"  N  3.000", L"  E  4.000", L"交点2", L"  N  -3.000", L"  E  4.000", L"入力",
          L"  平行線の始点  A"}},
        {"two sights, one of them backwards",
         &CComputations::Combined,
         {Entry(1), Entry(1), Type("P"), Type("90"), Type("B"), Type("180")},
         {L"交点", L"  N  5.000", L"  E  0.000", L"注意: 交点はPの後ろです", L"入力", L"  方向1の出発点  P"}},
        {"the second figure is given up", &CComputations::Combined, {Entry(0), Keys({VK_ESCAPE})}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszCase);
        std::optional<CReport> report;
        Play(
            [&] {
                report = (computations.*c.compute)();
                return 1;
            },
            c.steps);
        ASSERT_EQ(!c.lines.empty(), report.has_value());
        if (!report)
            continue;
        std::vector<CString> lines = LinesOf(*report, job.settings);
        ASSERT_GE(lines.size(), c.lines.size());
        lines.resize(c.lines.size());
        EXPECT_EQ(c.lines, lines);
    }
}

} // namespace
