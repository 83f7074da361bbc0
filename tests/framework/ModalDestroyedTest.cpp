// Modal dialogs whose windows go without having been ended.
#include "support/Form.h"

#include <memory>
#include <thread>

using namespace testkit;

namespace {

using fx::Form;

TEST(ModalDestroyed, DialogIsOverAndItsOwnerEnabled) {
    const auto destroyWhenTold = [](Form& f) { f.m_onDo = [&f] { f.DestroyWindow(); }; };
    // Before DoModal, and inside it.
    const Rows<const char*, std::function<void(Form&)>, std::function<void(Form&)>, INT_PTR> cases = {
        {"by the system", {}, [](Form& f) { ::DestroyWindow(f); }, -1},
        {"by the object", {}, [](Form& f) { f.DestroyWindow(); }, -1},
        {"detached", {}, [](Form& f) { ::DestroyWindow(f.UnsubclassWindow()); }, -1},
        {"ended, then destroyed", {}, [](Form& f) { f.EndDialog(5), f.DestroyWindow(); }, 5},
        {"destroyed, then ended", {}, [](Form& f) { f.DestroyWindow(), f.EndDialog(6); }, 6},
        {"in its own handler", destroyWhenTold, [](Form& f) { f.SendDo(); }, -1},
        {"in a posted message", destroyWhenTold, [](Form& f) { f.PostDo(); }, -1},
        {"in OnInitDialog", [](Form& f) { f.m_onInit = [&f] { f.DestroyWindow(); }; }, {}, -1},
        {"opened again by its own handler",
         [](Form& f) {
             f.m_onDo = [&f] {
                 f.DestroyWindow();
                 EXPECT_EQ(-1, f.DoModal()) << "its first loop still runs";
             };
         },
         [](Form& f) { f.SendDo(); }, -1},
    };
    Frame owner;
    for (const auto& [pszWay, prepare, act, nResult] : cases) {
        SCOPED_TRACE(pszWay);
        Form form(&owner);
        if (prepare)
            prepare(form);
        const auto go = [&] { act(form); };
        EXPECT_EQ(nResult, act ? Play(form, {go}) : Play(form, {}));
        EXPECT_EQ(nullptr, form.m_hWnd);
        EXPECT_TRUE(owner.IsWindowEnabled());
        EXPECT_EQ(owner.m_hWnd, ::GetActiveWindow());
        form.m_onInit = nullptr;
        WhileOpen(form, [] {}); // and then it works as if nothing had happened
    }
}

TEST(ModalDestroyed, OwnerTakesAllDialogsAboveItAlong) {
    auto pOwner = std::make_unique<Frame>();
    Form outer(pOwner.get()), inner(&outer);
    INT_PTR nInner = 0;
    outer.m_onDo = [&] { nInner = inner.DoModal(); };
    inner.m_onInit = [&] { inner.PostDo(); };
    inner.m_onDo = [&] { pOwner.reset(); };
    EXPECT_EQ(-1, Play(outer, {[&] { outer.SendDo(); }}));
    EXPECT_EQ(-1, nInner);
    EXPECT_EQ(nullptr, outer.m_hWnd);
    EXPECT_EQ(nullptr, inner.m_hWnd);
}

TEST(ModalDestroyed, OuterDialogThatGoesLeavesTheInnerOneToItsUser) {
    Frame frame;
    Form outer;
    Form inner(&frame); // not owned by the outer one
    INT_PTR nInner = 0;
    outer.m_onDo = [&] { nInner = inner.DoModal(); };
    inner.m_onInit = [&] { inner.PostDo(); };
    inner.m_onDo = [&] {
        outer.DestroyWindow();
        EXPECT_NE(nullptr, inner.m_hWnd);
        inner.EndDialog(3);
    };
    EXPECT_EQ(-1, Play(outer, {[&] { outer.SendDo(); }}));
    EXPECT_EQ(3, nInner);
}

TEST(ModalDestroyed, QuitOnTheWayStillReachesTheProgram) {
    Form form;
    const auto quit = [&] {
        AfxPostQuitMessage(9);
        form.DestroyWindow();
    };
    EXPECT_EQ(-1, Play(form, {quit}));
    MSG msg = {};
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(9U, msg.wParam);
}

TEST(ModalDestroyed, ObjectThatItsOwnerDeletesDoesNotHang) {
    Frame owner;
    auto pForm = std::make_unique<Form>(&owner);
    EXPECT_EQ(-1, Play([&] { return pForm->DoModal(); }, {[&] { pForm.reset(); }}));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

/// A message that another thread sends is handled inside the wait for the next one, which does not
/// come to an end by it.
TEST(ModalDestroyed, MessageOfAnotherThreadEndsTheLoopAtOnce) {
    std::thread sender;
    Form form;
    form.m_onDo = [&] {
        Form inner(&form);
        inner.m_onInit = [&] { form.DestroyWindow(); };
        inner.DoModal();
    };
    form.m_onInit = [&] {
        sender = std::thread([hWnd = form.m_hWnd] { ::SendMessage(hWnd, WM_COMMAND, Form::DO, 0); });
    };
    EXPECT_EQ(-1, form.DoModal());
    sender.join();
}

} // namespace
