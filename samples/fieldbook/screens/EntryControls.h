/// @file
/// The entry fields and small controls of this application: what each adds to its base class.
#pragma once

#include "compute/PackedAngle.h"
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

/// What is wrong with an angle, in words; empty for a good one.
CString AngleProblem(AngleFault fault);

/// An angle from 0 to 360 degrees: entered with everything selected, too. It takes no letters and
/// no sign. What was typed stays as it was typed, however often it is looked at, and so does what
/// is refused.
class CDirectionEdit : public CAngleEdit {
public:
    /// @return what is wrong with what was typed; the angle is the last good one then
    AngleFault GetFault() const { return m_fault; }

protected:
    void PreSubclassWindow() override;
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    CString m_strTyped; ///< Empty until something was typed.
    AngleFault m_fault = AngleFault::None;
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
    /// What is proposed is selected: typing replaces it.
    afx_msg BOOL OnFocus();
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
