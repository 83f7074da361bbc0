/// @file
/// CSelMemberItem: one member in the lists of CSelMemberDlg.
#pragma once

#include <afx.h>

#include "api/Export.h"

/// A member that can be chosen and put in order: a column, a field.
class FIELDKIT_API CSelMemberItem {
public:
    /// The data of a blank: it can be added as often as wanted and stays available.
    static constexpr unsigned long BLANK = 2;

    CSelMemberItem();
    /// Copies text and data.
    ///@{
    CSelMemberItem(const CSelMemberItem& item);
    CSelMemberItem& operator=(const CSelMemberItem& item);
    ///@}
    ~CSelMemberItem();

    unsigned long m_dwData = 0; ///< The caller's value, or BLANK.
    CString m_strText;          ///< Shown in the list.
};
