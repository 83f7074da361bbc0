/// @file
/// Steps of a script: what a pen does on the sample's screens.
#pragma once

#include "screens/Resource.h"
#include "testkit/GTest.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"
#include "testkit/Panel.h"
#include "Tesuvo.h"

/// Taps a button of the message box that is on the screen.
inline testkit::Step Answer(int nButton) {
    return [nButton] {
        if (testkit::panel::IsVisible())
            return false; // it goes with the focus, but not at once
        const HWND hButton = ::GetDlgItem(::GetActiveWindow(), nButton);
        EXPECT_NE(hButton, nullptr) << "no such question";
        testkit::pen::Tap(*CWnd::FromHandle(hButton));
        return true;
    };
}

inline testkit::Step Keys(std::initializer_list<WORD> keys) {
    const std::vector<WORD> copy = keys;
    return [copy] {
        for (const WORD key : copy)
            testkit::TypeKeys({key});
    };
}

inline testkit::Step Tap(const CDialog& dialog, UINT nId) {
    return [&dialog, nId] { testkit::pen::Tap(*dialog.GetDlgItem(static_cast<int>(nId))); };
}

/// Of the dialog that is on the screen then.
inline testkit::Step TapIn(int nId) {
    return [nId] { testkit::pen::Tap(*CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), nId))); };
}

inline testkit::Step TapRow(int nRow) {
    return [nRow] {
        auto& list =
            *static_cast<CListCtrl*>(CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), IDC_POINTS)));
        CRect row;
        list.GetItemRect(nRow, row, LVIR_LABEL);
        list.ClientToScreen(row);
        testkit::pen::Tap(row.CenterPoint());
    };
}

/// The panel lies on the lower buttons while a field has the focus.
inline testkit::Step NoPanel() {
    return [] {
        TVCloseSIP();
        return !testkit::panel::IsVisible();
    };
}

inline testkit::Step Close(CDialog& dialog) {
    return [&dialog] { dialog.PostMessage(WM_CLOSE); };
}
