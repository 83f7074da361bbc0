/// @file
/// CSelectListCtrl: a list view that highlights items of the application's choice.
#pragma once

#include "controls/nListCtrl.h"

/// A list view whose derived class marks items; they are shown in black on cyan. The marks
/// have nothing to do with the selection.
class FIELDKIT_API CSelectListCtrl : public CnListCtrl {
public:
    /// Bits of an item's attributes.
    enum ItemAttribute : DWORD {
        AttributeHighlight = 0x1, ///< Black on cyan.
    };

    CSelectListCtrl() = default;

    /// Asked for each item that is drawn; here no item has any attribute.
    /// @return ItemAttribute bits
    virtual DWORD GetItemAttribute(int nItem);

protected:
    /// Asks GetItemAttribute for each item that is about to be drawn, and colours it.
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult);

    DECLARE_MESSAGE_MAP()
};
