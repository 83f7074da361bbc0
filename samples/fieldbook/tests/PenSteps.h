/// @file
/// Steps of a script: what a pen does on the sample's screens.
#pragma once

#include "screens/Resource.h"
#include "testkit/GTest.h"
#include "testkit/Pen.h"
#include "testkit/Steps.h"

using testkit::Answer;
using testkit::Close;
using testkit::NoPanel;
using testkit::Tap;
using testkit::TapIn;

inline testkit::Step Keys(std::initializer_list<WORD> keys) {
    const std::vector<WORD> copy = keys;
    return [copy] {
        for (const WORD key : copy)
            testkit::TypeKeys({key});
    };
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
