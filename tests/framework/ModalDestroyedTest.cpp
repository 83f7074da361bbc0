// Modal dialogs whose windows go without having been ended.
#include "support/Form.h"

#include <memory>
#include <thread>

using namespace testkit;

namespace {

using fx::Form;

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
