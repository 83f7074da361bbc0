/// @file
/// CResMsgBox: message boxes with texts from the string table.
#pragma once

#include <afxwin.h>

#include "api/Export.h"

/// Shows the system's message box above the active window of the calling thread, or without
/// an owner if there is none.
///
/// Text and caption are given as texts or as string resource ids, which are looked for in the
/// application and in the library; an id without a text shows an empty one. Of a text that is too
/// long for the screen the middle is left out. All methods return the button tapped: IDOK, IDYES,
/// IDNO...; closing a box with MB_YESNO is IDNO.
class FIELDKIT_API CResMsgBox {
public:
    CResMsgBox();
    /// An object has no state of its own; copies are equal.
    ///@{
    CResMsgBox(const CResMsgBox&);
    CResMsgBox& operator=(const CResMsgBox&);
    ///@}
    virtual ~CResMsgBox();

    /// @param nType MB_... values
    int MsgBox(unsigned int nTextId, unsigned int nCaptionId, unsigned int nType);
    /// The same with texts in place of ids.
    ///@{
    int MsgBox(const wchar_t* pszText, unsigned int nCaptionId, unsigned int nType);
    int MsgBox(unsigned int nTextId, const wchar_t* pszCaption, unsigned int nType);
    int MsgBox(const wchar_t* pszText, const wchar_t* pszCaption, unsigned int nType);
    ///@}

    /// An error, to be confirmed with OK.
    int ErrorMsgBox(unsigned int nTextId);
    /// The same with the text itself.
    int ErrorMsgBox(const wchar_t* pszText);

    /// A question with Yes and No.
    /// @return IDYES or IDNO
    int WarningMsgBox(unsigned int nTextId);
    /// The same with the text itself.
    int WarningMsgBox(const wchar_t* pszText);

    /// A piece of information, to be confirmed with OK.
    int InformationMsgBox(unsigned int nTextId);
    /// The same with the text itself.
    int InformationMsgBox(const wchar_t* pszText);
};
