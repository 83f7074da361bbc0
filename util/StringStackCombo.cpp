// Apart from the rest of the class, which needs no window system.
#include "util/StringStack.h"

#include <afxwin.h>

void CStringStack::SetupList(CComboBox* pCombo) {
    CString strText;
    pCombo->GetWindowText(strText);
    // A list that draws and makes room for each line takes many times as long. Redraw switched on
    // again would show a hidden one.
    const bool bShown = (pCombo->GetStyle() & WS_VISIBLE) != 0;
    if (bShown)
        pCombo->SetRedraw(FALSE);
    pCombo->ResetContent();
    UINT nBytes = 0;
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;)
        nBytes += static_cast<UINT>(m_list.GetNext(pos).GetLength() + 1) * static_cast<UINT>(sizeof(wchar_t));
    pCombo->InitStorage(static_cast<int>(m_list.GetCount()), nBytes);
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;)
        pCombo->AddString(m_list.GetNext(pos));
    if (bShown) {
        pCombo->SetRedraw(TRUE);
        pCombo->Invalidate();
    }
    pCombo->SetWindowText(strText);
}
