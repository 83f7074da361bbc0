// Apart from the rest of the class, which needs no window system.
#include "util/StringStack.h"

#include <afxwin.h>

void CStringStack::SetupList(CComboBox* pCombo) {
    CString strText;
    pCombo->GetWindowText(strText);
    pCombo->ResetContent();
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;)
        pCombo->AddString(m_list.GetNext(pos));
    pCombo->SetWindowText(strText);
}
