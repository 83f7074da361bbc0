// The angle field: what it shows, what it takes, and when.
#include "support/TestApp.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Pen.h"
#include "testkit/Steps.h"

#include "controls/nDialog.h"
#include "survey/AngleEdit.h"

#include <cmath>
#include <limits>

using namespace testkit;

namespace {

constexpr int IDC_ANGLE = 100, IDC_OTHER = 101;
constexpr double PI = 3.141592653589793;
constexpr double INF = std::numeric_limits<double>::infinity();
constexpr int WHOLE = CAngleEdit::WHOLE_SECONDS, TENTHS = 0;

double Radians(double dDegrees, double dMinutes = 0, double dSeconds = 0) {
    return (dDegrees + dMinutes / 60 + dSeconds / 3600) * PI / 180;
}

/// An angle field and another one to go to.
struct AngleStage : Stage {
    explicit AngleStage(int nMode = WHOLE) {
        CreateItem(WC_EDIT, IDC_ANGLE, WS_BORDER | ES_AUTOHSCROLL, CRect(5, 5, 155, 25));
        CreateItem(WC_EDIT, IDC_OTHER, WS_BORDER | ES_AUTOHSCROLL, CRect(5, 50, 155, 70));
        EXPECT_EQ(1, m_angle.Attach(IDC_ANGLE, this, nMode, 0));
    }
    ~AngleStage() override { DestroyWindow(); } // before the field

    void Enter() { Tap(m_angle); }
    void Leave() { Tap(*GetDlgItem(IDC_OTHER)); }
    CString Text() const { return TextOf(m_angle); }
    static HWND WithCaret() {
        GUITHREADINFO info = {};
        info.cbSize = sizeof info;
        ::GetGUIThreadInfo(0, &info);
        return info.hwndCaret;
    }

    CAngleEdit m_angle;
};

TEST(AngleEdit, ShowsDegreesMinutesAndSeconds) {
    const Rows<double, LPCTSTR, LPCTSTR> rows = {
        {0.0, L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"},
        {-0.0, L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"},
        {PI / 2, L"90\uFF9F 0' 00\"", L"90\uFF9F 0' 0\".0"},
        {Radians(12, 3, 4), L"12\uFF9F 3' 04\"", L"12\uFF9F 3' 4\".0"},
        // Carries: the sum of tenths is rounded, never a part of it.
        {Radians(12, 34, 59.96), L"12\uFF9F 35' 00\"", L"12\uFF9F 35' 0\".0"},
        {Radians(12, 59, 59.96), L"13\uFF9F 0' 00\"", L"13\uFF9F 0' 0\".0"},
        {Radians(359, 59, 59.96), L"360\uFF9F 0' 00\"", L"360\uFF9F 0' 0\".0"},
        {Radians(12, 34, 59.6), L"12\uFF9F 34' 60\"", L"12\uFF9F 34' 59\".6"},
        {Radians(12, 34, 59.94), L"12\uFF9F 34' 60\"", L"12\uFF9F 34' 59\".9"},
        {Radians(0, 0, 0.04), L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"},
        {Radians(0, 0, 0.06), L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".1"},
        // The sign stands at the degrees, if there are any.
        {Radians(-0.5), L"0\uFF9F 30' 00\"", L"0\uFF9F 30' 0\".0"},
        {Radians(-12, -34, -56.7), L"-12\uFF9F 34' 57\"", L"-12\uFF9F 34' 56\".7"},
        {Radians(-0, -59, -59.96), L"-1\uFF9F 0' 00\"", L"-1\uFF9F 0' 0\".0"},
        {Radians(725, 10, 20), L"725\uFF9F 10' 20\"", L"725\uFF9F 10' 20\".0"},
        // One radian, 206264.806 seconds.
        {1.0, L"57\uFF9F 17' 45\"", L"57\uFF9F 17' 44\".8"},
        // The obliquity of the ecliptic of the epoch 2000, 84381.448 seconds.
        {0.40909280422232897, L"23\uFF9F 26' 21\"", L"23\uFF9F 26' 21\".4"},
        // Beyond the range: its end, 2147483647 tenths of a second.
        {Radians(59652, 19, 24), L"59652\uFF9F 19' 24\"", L"59652\uFF9F 19' 24\".0"},
        {Radians(60000), L"59652\uFF9F 19' 25\"", L"59652\uFF9F 19' 24\".7"},
        {-1e300, L"-59652\uFF9F 19' 25\"", L"-59652\uFF9F 19' 24\".7"},
        {INF, L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"},
        {-INF, L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"},
        {std::nan(""), L"0\uFF9F 0' 00\"", L"0\uFF9F 0' 0\".0"}};
    AngleStage whole(WHOLE), tenths(TENTHS);
    for (const auto& [dAngle, pszWhole, pszTenths] : rows) {
        whole.m_angle.SetAngle(dAngle);
        EXPECT_EQ(whole.Text(), pszWhole) << dAngle;
        tenths.m_angle.SetAngle(dAngle);
        EXPECT_EQ(tenths.Text(), pszTenths) << dAngle;
    }
}

TEST(AngleEdit, EntersAsANumberAndLeavesAsDegrees) {
    const Rows<int, double, LPCTSTR, LPCTSTR, double> rows = {
        {WHOLE, PI / 2, L"90.0000", L"90\uFF9F 0' 00\"", PI / 2},
        {WHOLE, Radians(123, 4, 5), L"123.0405", L"123\uFF9F 4' 05\"", Radians(123, 4, 5)},
        {TENTHS, Radians(123, 4, 5.3), L"123.04053", L"123\uFF9F 4' 5\".3", Radians(123, 4, 5.3)},
        {7, Radians(123, 4, 5.3), L"123.04053", L"123\uFF9F 4' 5\".3", Radians(123, 4, 5.3)},
        // Whole seconds: the tenths are lost, 59.6 is edited as 60 and shown as the next minute.
        {WHOLE, Radians(12, 34, 59.6), L"12.3460", L"12\uFF9F 35' 00\"", Radians(12, 35)},
        // -12.5 is edited as -11.70 and comes back as 11 degrees 70 minutes.
        {WHOLE, Radians(-12.5), L"-11.7000", L"-12\uFF9F 10' 00\"", -Radians(12, 10)},
        {WHOLE, Radians(-0.5), L"0.3000", L"0\uFF9F 30' 00\"", Radians(0.5)}};
    for (const auto& [nMode, dAngle, pszEntered, pszLeft, dLeft] : rows) {
        AngleStage stage(nMode);
        stage.m_angle.SetAngle(dAngle);
        stage.Enter();
        EXPECT_EQ(stage.Text(), pszEntered);
        EXPECT_EQ(stage.m_angle, stage.WithCaret());
        EXPECT_EQ(stage.m_angle.GetAngle(), dAngle) << "nothing has been typed yet";
        stage.Leave();
        EXPECT_EQ(stage.Text(), pszLeft);
        EXPECT_DOUBLE_EQ(stage.m_angle.GetAngle(), dLeft);
    }
}

TEST(AngleEdit, AnyTextEndsAsAnAngle) {
    const Rows<LPCTSTR, double> rows = {
        {L"", 0.0},
        {L"north", 0.0},
        {L"12\uFF9F 34' 56\"", 0.0}, // what it shows itself is no number
        {L"nan", 0.0},
        {L"12.3.4", 0.0},
        {L" 45.3 ", Radians(45, 30)},
        {L"１２．３４", Radians(12, 34)},
        {L"-12.3", -Radians(12, 30)},
        {L"-0.3", -Radians(0, 30)},
        {L"12.34567", Radians(12, 34, 56.7)},
        {L"12.3456789", Radians(12, 34, 56.8)},
        {L"12.99995", Radians(12, 99, 99.5)}, // 60 and more add up
        {L"12.999996", Radians(13)},
        {L"0.000004", 0.0},
        {L"21474.83647", Radians(21474, 83, 64.7)},
        {L"21475", Radians(21474, 83, 64.7)}, // beyond the range: its end
        {L"99999999999999999999", Radians(21474, 83, 64.7)},
        {L"-2147483648", -Radians(21474, 83, 64.7)},
        {L"1e305", 0.0}, // infinite once packed
    };
    AngleStage stage;
    for (const auto& [pszText, dAngle] : rows) {
        stage.m_angle.SetAngle(1.0);
        stage.Enter();
        stage.m_angle.SetSel(0, -1);
        stage.m_angle.ReplaceSel(pszText);
        stage.Leave();
        EXPECT_DOUBLE_EQ(stage.m_angle.GetAngle(), dAngle) << Utf8(pszText);
    }
}

TEST(AngleEdit, WithoutConversionFocusChangesDoNothing) {
    AngleStage stage;
    stage.m_angle.SetAngle(1.0);
    stage.m_angle.SetConvActive(0);
    stage.Enter();
    EXPECT_EQ(L"57\uFF9F 17' 45\"", stage.Text());
    stage.m_angle.SetSel(0, -1);
    stage.Type({'5'});
    stage.Leave();
    EXPECT_EQ(L"5", stage.Text());
    EXPECT_EQ(1.0, stage.m_angle.GetAngle());
    stage.m_angle.SetAngle(PI / 2);
    EXPECT_EQ(L"90\uFF9F 0' 00\"", stage.Text()) << "setting it always shows it";
    stage.m_angle.SetConvActive(2);
    stage.m_angle.SetSel(0, 0);
    stage.m_angle.SetFocus();
    EXPECT_EQ(L"90.0000", stage.Text());
    EXPECT_EQ(MAKELONG(7, 7), static_cast<LONG>(stage.m_angle.GetSel())) << "nothing is selected";
}

TEST(AngleEdit, AttachShowsNothingAndFailureKeepsTheMode) {
    AngleStage stage(TENTHS);
    EXPECT_EQ(L"", stage.Text());
    EXPECT_EQ(0, stage.m_angle.Attach(999, &stage, WHOLE, 0));
    EXPECT_EQ(0, stage.m_angle.Attach(IDC_ANGLE, &stage, WHOLE, 0)) << "it has a field already";
    stage.m_angle.SetAngle(Radians(1, 2, 3.4));
    EXPECT_EQ(L"1\uFF9F 2' 3\".4", stage.Text());
    EXPECT_EQ(0.0, CAngleEdit().GetAngle());
}

/// A full-screen dialog with two angles, attached when the base class has shown it.
struct AngleDialog : CnDialog {
    AngleDialog() : CnDialog(0, nullptr) {
        m_template.Edit(IDC_ANGLE).Edit(IDC_OTHER);
        InitModalIndirect(m_template.Get(), nullptr);
    }
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        m_first.Attach(IDC_ANGLE, this, WHOLE, 0);
        m_first.SetAngle(PI / 2);
        m_second.Attach(IDC_OTHER, this, WHOLE, 0);
        m_second.SetAngle(PI / 4);
        return TRUE;
    }

    CAngleEdit m_first, m_second;

private:
    DialogTemplate m_template{100, 80, WS_POPUP | WS_CAPTION};
};

TEST(AngleEdit, FirstFieldOfAScreenKeepsAnAngleThatNobodyTouches) {
    AngleDialog dlg;
    Play(dlg, {[&] { dlg.SendMessage(WM_COMMAND, IDOK); }});
    EXPECT_DOUBLE_EQ(PI / 2, dlg.m_first.GetAngle());
}

TEST(AngleEdit, TypingReplacesWhatTheTabKeySelectedButNotWhatWasTapped) {
    AngleDialog dlg;
    const auto tap = [&] {
        EXPECT_DOUBLE_EQ(Radians(2, 30), dlg.m_first.GetAngle());
        EXPECT_DOUBLE_EQ(Radians(4, 15), dlg.m_second.GetAngle());
        pen::Tap(dlg.m_second);
    };
    const auto look = [&] {
        EXPECT_EQ(L"4.15006", TextOf(dlg.m_second)) << "a tap beside the text leaves the caret there";
    };
    PlayAndEnd(dlg, {Press({'2', VK_OEM_PERIOD, '3', VK_TAB}), Press({'4', VK_OEM_PERIOD, '1', '5', VK_TAB}),
                     tap, Press({'6'}), look});
}

} // namespace
