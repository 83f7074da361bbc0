// Compares a dialog's controls with the places that its template shall give them.
#pragma once

#include "support/FrameworkEnvironment.h"

struct ControlPlace {
    int nID;
    const wchar_t* pszClass;
    CRect units; ///< Left, top, width and height in dialog units, in this order.
};

inline void ExpectControls(CDialog& dlg, CSize units, std::initializer_list<ControlPlace> places) {
    // The system rounds the place and the size, each on its own.
    const auto pixels = [&](int x, int y, int cx, int cy) {
        CRect rect(x, y, cx, cy);
        dlg.MapDialogRect(rect);
        return CRect(CPoint(rect.left, rect.top), CSize(rect.right, rect.bottom));
    };
    if (!dlg.m_bFullScreen) {
        CRect client;
        dlg.GetClientRect(client);
        EXPECT_EQ(client, pixels(0, 0, units.cx, units.cy));
    }
    for (const ControlPlace& place : places) {
        CWnd* pItem = dlg.GetDlgItem(place.nID);
        ASSERT_NE(pItem, nullptr) << place.nID;
        CRect rect;
        pItem->GetWindowRect(rect);
        dlg.ScreenToClient(rect);
        const CRect& u = place.units;
        EXPECT_EQ(rect, pixels(u.left, u.top, u.right, u.bottom)) << place.nID;
        wchar_t szClass[32];
        ::GetClassName(pItem->m_hWnd, szClass, 32);
        EXPECT_EQ(CString(szClass).CompareNoCase(place.pszClass), 0) << place.nID;
    }
}
