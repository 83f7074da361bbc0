/// @file
/// The entry fields and small controls of this application: what each adds to its base class.
#pragma once

#include "controls/IconButton.h"
#include "controls/InfoStatic.h"
#include "controls/nComboBox.h"
#include "controls/nEdit.h"
#include "controls/nSpinButtonCtrl.h"
#include "survey/AngleEdit.h"

/// A field whose text is selected when it gets the focus, so that typing replaces it.
class CSelectEdit : public CnEdit {
protected:
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()
};

/// A number.
class CNumberEdit : public CSelectEdit {
protected:
    void PreSubclassWindow() override;
};

/// The code of a point, in capitals.
class CCodeEdit : public CSelectEdit {
protected:
    void PreSubclassWindow() override;
};

/// An angle: entered with everything selected, too, and it takes no letters.
class CDirectionEdit : public CAngleEdit {
protected:
    void PreSubclassWindow() override;
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()
};

/// A choice: the soft input panel makes room for the list that drops down.
class CChoiceCombo : public CnComboBox {
protected:
    void PreSubclassWindow() override;
    afx_msg void OnDropDown();
    DECLARE_MESSAGE_MAP()
};

/// The name of a point: letters become capitals, and what no name may have is refused.
class CNameCombo : public CChoiceCombo {
protected:
    afx_msg void OnEditChange();
    DECLARE_MESSAGE_MAP()
};

/// The toggle for a point without a height: its arrow tells whether there is one.
class CNoHeightButton : public CIconButton {
public:
    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;

protected:
    afx_msg BOOL OnClicked();
    DECLARE_MESSAGE_MAP()
};

/// A line for a result, which shows each new text at once.
class CResultLine : public CInfoStatic {
protected:
    void PreSubclassWindow() override;
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// The number of decimals, with arrows that a pen hits; it beeps where it cannot count on.
class CDecimalsSpin : public CnSpinButtonCtrl {
protected:
    void PreSubclassWindow() override;
    afx_msg BOOL OnDeltaPos(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()
};
