// Scripts that go wrong: each ends with a clear text, and nothing stays open.
#include "Caught.h"
#include "testkit/Form.h"
#include "testkit/Leftovers.h"
#include "testkit/Pen.h"
#include "testkit/Program.h"

using namespace testkit;
using fx::Caught;
using fx::Form;

namespace {

constexpr DWORD SECONDS = 1;

void Nothing() {}
bool Never() {
    return false;
}
void AskYesNo() {
    ::MessageBox(::GetActiveWindow(), L"?", L"?", MB_YESNO); // which has no X and no Escape
}

TEST(Script, WhatGoesWrongIsToldAndLeavesNothingOpen) {
    Form form;
    const auto end = [&] { form.EndDialog(IDOK); };
    const auto nested = [&] { Form(&form).DoModal(); };
    const auto throws = [] { throw 1; };
    const Rows<const char*, std::vector<Step>, std::string> rows = {
        {"never true", {Nothing, Never}, "time is over at step 2 of 2 (ScriptTest.cpp:"},
        {"never true in a nested dialog", {nested, Never}, "time is over at step 2 of 2"},
        {"never true over a question", {AskYesNo, Never}, "time is over at step 2 of 2"},
        {"over too early", {end, Nothing}, "the dialog was over before step 2 of 2"},
        {"not over", {Nothing}, "the script is done, but the dialog does not end"},
        {"destroyed by its own handler", {[&] { form.DestroyWindow(); }, Never}, "over before step 2 of 2"},
        {"exception in a nested dialog", {nested, throws}, "int"},
    };
    Frame owner;
    for (const auto& [what, steps, expected] : rows) {
        SCOPED_TRACE(what);
        const int nWindows = Leftovers::Now().nWindows;
        Caught caught;
        Script script;
        for (const Step& step : steps)
            script.Then(step);
        try {
            script.Run([&] { return form.DoModal(); }, SECONDS);
        } catch (int) {
            caught.m_texts.emplace_back("int");
        }
        ASSERT_EQ(1U, caught.m_texts.size());
        EXPECT_NE(caught.m_texts[0].find(expected), std::string::npos) << caught.m_texts[0];
        Pump();
        EXPECT_EQ(Leftovers::Now().nWindows, nWindows);
        EXPECT_TRUE(::IsWindowEnabled(owner));
    }
}

TEST(Script, ReporterThatThrowsEndsTheTestAfterTheDialogsAreClosed) {
    struct Failed {};
    const Reporter before = SetReporter([](const std::string&, const Place&) { throw Failed(); });
    Form form;
    EXPECT_THROW(Script().Then(Never).Run([&] { return form.DoModal(); }, SECONDS), Failed);
    EXPECT_EQ(nullptr, form.m_hWnd);
    SetReporter(before);
}

TEST(Script, FrameworkExceptionOfAStepIsTold) {
    Form form;
    EXPECT_THROW(Play(form, {AfxThrowMemoryException}), std::runtime_error);
    EXPECT_EQ(nullptr, form.m_hWnd);
}

/// The other program of the next test.
TEST(Script, DISABLED_InFront) {
    Frame frame;
    frame.SetWindowText(L"in front");
    frame.SetForegroundWindow();
    PumpUntil([] { return false; }, 20000);
}

TEST(Script, NothingIsTypedIntoAnotherProgramThatIsInFront) {
    Form form;
    const auto comeInFront = [&] {
        static std::unique_ptr<Program> s_pOther;
        s_pOther = std::make_unique<Program>(
            fx::OwnPath(), L"in front",
            L"--gtest_also_run_disabled_tests --gtest_filter=Script.DISABLED_InFront");
        EXPECT_TRUE(Until([&] { return ::GetForegroundWindow() == s_pOther->Main(); }));
        form.m_onInit = [] { s_pOther.reset(); };
    };
    std::wstring text;
    PlayAndEnd(form, {comeInFront, [] { TypeText(L"a-B"); }, [&] { text = TextOf(form.Item(Form::EDIT)); }});
    EXPECT_EQ(L"a-B", text);
    form.m_onInit();
}

} // namespace
