// A window with one control of each kind that data is exchanged with.
#pragma once

#include "support/TestApp.h"

#include <functional>

namespace fx {

constexpr int ID_FIRST = 1, ID_SECOND = 2, ID_CHECK = 3, ID_LIST = 4, ID_COMBO = 5, ID_DROPLIST = 6;
constexpr int ID_RADIO = 10; ///< Three radio buttons with a label between them.
constexpr int ID_OTHER_GROUP = 20;

struct ExchangeForm : Frame {
    ExchangeForm() {
        const DWORD dwVisible = WS_CHILD | WS_VISIBLE;
        m_first.Create(dwVisible | ES_AUTOHSCROLL, CRect(0, 0, 90, 20), this, ID_FIRST);
        m_second.Create(dwVisible | ES_AUTOHSCROLL, CRect(0, 20, 90, 40), this, ID_SECOND);
        m_check.Create(L"", dwVisible | BS_AUTO3STATE, CRect(100, 0, 150, 20), this, ID_CHECK);
        m_list.Create(dwVisible, CRect(0, 40, 90, 100), this, ID_LIST);
        m_combo.Create(dwVisible | CBS_DROPDOWN, CRect(0, 100, 90, 180), this, ID_COMBO);
        m_dropList.Create(dwVisible | CBS_DROPDOWNLIST, CRect(0, 130, 90, 200), this, ID_DROPLIST);
        AddRadio(0, ID_RADIO, BS_AUTORADIOBUTTON | WS_GROUP);
        AddRadio(1, ID_RADIO + 1, BS_AUTORADIOBUTTON);
        m_label.Create(L"", dwVisible, CRect(100, 60, 150, 70), this);
        AddRadio(2, ID_RADIO + 2, BS_AUTORADIOBUTTON);
        AddRadio(3, ID_OTHER_GROUP, BS_AUTORADIOBUTTON | WS_GROUP);
        for (const LPCTSTR psz : {L"Alpha", L"alphabet", L"Beta"}) {
            m_list.AddString(psz);
            m_combo.AddString(psz);
            m_dropList.AddString(psz);
        }
    }

    std::function<void(CDataExchange*)> m_exchange;
    CEdit m_first, m_second;
    CButton m_check;
    CListBox m_list;
    CComboBox m_combo, m_dropList;
    CButton m_radio[4];
    CStatic m_label;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CWnd::DoDataExchange(pDX);
        m_exchange(pDX);
    }

private:
    void AddRadio(int i, int nID, DWORD dwStyle) {
        m_radio[i].Create(L"", WS_CHILD | WS_VISIBLE | dwStyle, CRect(100, 80 + 10 * i, 150, 90 + 10 * i),
                          this, static_cast<UINT>(nID));
    }
};

} // namespace fx
