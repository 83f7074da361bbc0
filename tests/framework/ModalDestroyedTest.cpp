// Modal dialogs whose windows go without having been ended.
#include "support/TestApp.h"
#include "testkit/Form.h"

#include <memory>
#include <thread>

using namespace testkit;

namespace {

using fx::Form;

TEST(ModalDestroyed, OuterDialogTakesAlongWhatItOwnsAndLeavesTheRestToTheUser) {
    Frame frame;
    for (const bool bOwned : {true, false}) {
        Form outer(&frame), inner(bOwned ? static_cast<CWnd*>(&outer) : &frame);
        INT_PTR nInner = 0;
        outer.m_onDo = [&] { nInner = inner.DoModal(); };
        inner.m_onInit = [&] { inner.PostDo(); };
        inner.m_onDo = [&] {
            outer.DestroyWindow();
            EXPECT_EQ(bOwned, inner.m_hWnd == nullptr);
            if (!bOwned)
                inner.EndDialog(3);
        };
        EXPECT_EQ(-1, Play(outer, {[&] { outer.SendDo(); }}));
        EXPECT_EQ(bOwned ? -1 : 3, nInner);
        EXPECT_EQ(nullptr, inner.m_hWnd);
    }
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
