/// @file
/// Dialog data exchange and validation: what DoDataExchange is written with.
/// Included by afxwin.h.
///
/// A DDX_ function moves one value between a member and a control, in the direction that
/// CDataExchange says; a DDV_ function, written behind it, checks the member. Who refuses
/// what the user has entered says why in a message box, puts the focus into the field and
/// throws CUserException*, which CWnd::UpdateData turns into FALSE; the member is then as
/// it was. All throw CNotSupportedException* if the dialog has no such control.
#pragma once

#include "afxwnd_.h"

/// One run of data exchange.
class AFX_CORE CDataExchange {
public:
    /// @param bSaveAndValidate TRUE: from the controls to the members
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;         ///< TRUE: from the controls to the members.
    CWnd* m_pDlgWnd;                 ///< The dialog.
    UINT m_idLastControl = 0;        ///< The control prepared last; Fail goes back to it.
    BOOL m_bEditLastControl = FALSE; ///< It holds text, which Fail selects.

    /// @return the control @throw CNotSupportedException* if there is none
    HWND PrepareCtrl(int nIDC);
    /// The same for a control that text is entered into.
    HWND PrepareEditCtrl(int nIDC);
    /// Ends the exchange: focus to the last control, its text selected.
    /// @throw CUserException* always
    [[noreturn]] void Fail();
};

/// Attaches a member to its control, the first time that it is called.
AFX_CORE void AFXAPI DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);

/// Text and numbers of an edit control. Numbers are decimal, with a point in any locale;
/// blanks around them are ignored. Writing to the control leaves an equal text alone.
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
/// @copydoc DDX_Text(CDataExchange*,int,CString&)
///@{
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, short& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, int& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, long& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, float& value);
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, double& value);
/// @param nMaxLen room at value in characters, with the terminator; a longer text is cut
AFX_CORE void AFXAPI DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR value, int nMaxLen);
///@}

/// A check box: 0 off, 1 on, 2 undecided; any other value shows as 0.
AFX_CORE void AFXAPI DDX_Check(CDataExchange* pDX, int nIDC, int& value);
/// The radio buttons of a group.
/// @param nIDC  the first one, which has WS_GROUP
/// @param value the button that is on, counted from 0 among the radio buttons; -1 for none
AFX_CORE void AFXAPI DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
/// The selected item of a list or combo box; -1 for none.
AFX_CORE void AFXAPI DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
/// See DDX_LBIndex.
AFX_CORE void AFXAPI DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
/// The text of the selected item; empty for none. To the control: selects the first item
/// that begins with the text; if there is none, the selection stays.
AFX_CORE void AFXAPI DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
/// The text in the edit part. To the control: selects the item of this text; without one
/// the text goes into the edit part, and a box that has none selects the first item that
/// begins with it.
AFX_CORE void AFXAPI DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);

/// The same with the item whose text is equal, ignoring case.
///@{
AFX_CORE void AFXAPI DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE void AFXAPI DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
///@}
/// The position of a scroll bar control, and of a slider.
///@{
AFX_CORE void AFXAPI DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
AFX_CORE void AFXAPI DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
///@}
/// The address of an address field, the first byte at the top. One whose fields are not all filled is
/// refused, an empty one is 0.
AFX_CORE void AFXAPI DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value);
/// The time of a date and time field, and the day of a calendar, whose time of day is midnight. An empty
/// field leaves the member alone.
///@{
AFX_CORE void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
AFX_CORE void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);
///@}
/// The text that a date and time field shows. To the control: nothing.
AFX_CORE void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);

/// Longest text, in characters. To the control: also limits what can be typed.
AFX_CORE void AFXAPI DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars);
/// Ranges, both ends allowed. Only what comes from the control is checked.
AFX_CORE void AFXAPI DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
/// See DDV_MinMaxInt.
///@{
AFX_CORE void AFXAPI DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
AFX_CORE void AFXAPI DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
AFX_CORE void AFXAPI DDV_MinMaxUnsigned(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_CORE void AFXAPI DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal);
AFX_CORE void AFXAPI DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal,
                                         ULONGLONG maxVal);
AFX_CORE void AFXAPI DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
AFX_CORE void AFXAPI DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
AFX_CORE void AFXAPI DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
AFX_CORE void AFXAPI DDV_MinMaxFloat(CDataExchange* pDX, const float& value, float minVal, float maxVal);
AFX_CORE void AFXAPI DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal);
///@}
/// The range of a slider. To the control: also the range that it is moved in.
AFX_CORE void AFXAPI DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
/// The range of a date. To the control: also the range that can be chosen.
/// @param pMinRange, pMaxRange null leaves that end open
///@{
AFX_CORE void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                        const CTime* pMaxRange);
AFX_CORE void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                     const CTime* pMaxRange);
///@}
