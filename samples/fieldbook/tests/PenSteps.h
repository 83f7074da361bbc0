/// @file
/// Steps of a script: what a pen does on the sample's screens.
#pragma once

#include "screens/Resource.h"
#include "support/ModalScript.h"
#include "support/PanelPen.h"
#include "Tesuvo.h"

/// Taps a button of the message box that is on the screen.
inline fx::Step Answer(int nButton) {
    return [nButton] {
        if (panel::IsVisible())
            return false; // it goes with the focus, but not at once
        const HWND hButton = ::GetDlgItem(::GetActiveWindow(), nButton);
        EXPECT_NE(hButton, nullptr) << "no such question";
        pen::Tap(*CWnd::FromHandle(hButton));
        return true;
    };
}

inline fx::Step Keys(std::initializer_list<WORD> keys) {
    const std::vector<WORD> copy = keys;
    return [copy] {
        for (const WORD key : copy)
            pen::TypeKeys({key});
    };
}

inline fx::Step Tap(const CDialog& dialog, UINT nId) {
    return [&dialog, nId] { pen::Tap(*dialog.GetDlgItem(static_cast<int>(nId))); };
}

/// Of the dialog that is on the screen then.
inline fx::Step TapIn(int nId) {
    return [nId] { pen::Tap(*CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), nId))); };
}

inline fx::Step TapRow(int nRow) {
    return [nRow] {
        auto& list =
            *static_cast<CListCtrl*>(CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), IDC_POINTS)));
        CRect row;
        list.GetItemRect(nRow, row, LVIR_LABEL);
        list.ClientToScreen(row);
        pen::Tap(row.CenterPoint());
    };
}

/// The panel lies on the lower buttons while a field has the focus.
inline fx::Step NoPanel() {
    return [] {
        TVCloseSIP();
        return !panel::IsVisible();
    };
}

inline fx::Step Close(CDialog& dialog) {
    return [&dialog] { dialog.PostMessage(WM_CLOSE); };
}
