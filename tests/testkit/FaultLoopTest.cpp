// What the loop over failing calls says of a program that does not stand them.
#include "Caught.h"
#include "testkit/FaultLoop.h"
#include "testkit/Form.h"
#include "testkit/SystemFaults.h"

using namespace testkit;
using fx::Caught;

namespace {

/// An object of the system, which can be refused.
HANDLE Make() {
    return ::CreateSemaphoreW(nullptr, 0, 1, nullptr);
}

struct FaultLoop : testing::Test {
    static void SetUpTestSuite() {
        fault::Install(::GetModuleHandle(nullptr),
                       {FAULT_POINT(CreateSemaphoreW, nullptr, ERROR_NOT_ENOUGH_MEMORY)});
    }
};

TEST_F(FaultLoop, TellsWhatIsLeftAndWhatNeverWorksAgain) {
    static bool s_bBroken;
    const Rows<const char*, std::function<bool(CWnd&)>, std::string> rows = {
        {"leaky",
         [](CWnd&) {
             const HANDLE hFirst = Make(), hSecond = Make();
             if (hFirst != nullptr && hSecond != nullptr)
                 return ::CloseHandle(hFirst) && ::CloseHandle(hSecond);
             return false;
         },
         "leaky after call 1, CreateSemaphoreW\n    "},
        {"broken",
         [](CWnd&) {
             const HANDLE h = Make();
             s_bBroken = s_bBroken || h == nullptr;
             ::CloseHandle(h);
             return !s_bBroken;
         },
         "broken does not work after call 1, CreateSemaphoreW\n    "},
        {"disabled",
         [](CWnd& owner) {
             const HANDLE h = Make();
             owner.EnableWindow(h != nullptr);
             return h != nullptr && ::CloseHandle(h);
         },
         "disabled leaves its owner disabled after call 1, CreateSemaphoreW"},
    };
    for (const auto& [pszName, run, expected] : rows) {
        Caught caught;
        fault::FailEachCall({pszName, run});
        ASSERT_FALSE(caught.m_texts.empty()) << pszName;
        EXPECT_EQ(0U, caught.m_texts[0].find(expected)) << caught.m_texts[0];
    }
}

TEST_F(FaultLoop, TriesADialogOfThisProgramWithAllThatTheSystemRefuses) {
    bool bMade = false;
    const auto run = [&](CWnd& owner) {
        fx::Form form(&owner);
        form.m_onInit = [&] {
            const auto pChild = std::make_unique<HWND>(
                ::CreateWindow(L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, form, nullptr, nullptr, nullptr));
            bMade = *pChild != nullptr;
        };
        return fault::Visit([&] { return form.DoModal(); }, IDOK) == IDOK && bMade;
    };
    fault::Install(::GetModuleHandle(nullptr), fault::SystemPoints());
    EXPECT_EQ(3, fault::FailEachCall({"form", run})) << "a window, its memory, and the press of OK";
    fault::Install(::GetModuleHandle(nullptr), {});
    EXPECT_EQ(0, fault::FailEachCall({"form", run})) << "no points any more";
    SetUpTestSuite();
    Caught caught;
    fault::Install(::GetModuleHandle(L"none"), fault::SystemPoints());
    EXPECT_EQ("fault points for a module that is not loaded", caught.m_texts.at(0));
}

TEST_F(FaultLoop, VisitOfADialogAnswersNoAndTellsThatThereWasNone) {
    fx::Form form;
    form.m_onOk = [&] {
        ::MessageBox(form, L"?", L"", MB_YESNO);
        form.EndDialog(7);
    };
    EXPECT_EQ(7, fault::Visit([&] { return form.DoModal(); }, IDOK));
    EXPECT_EQ(0, fault::Visit([] { return IDOK; }, IDOK));
}

} // namespace
