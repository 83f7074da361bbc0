// A window with one control of each kind that data is exchanged with.
#pragma once

#include "support/TestApp.h"

namespace fx {

constexpr UINT ID_FIRST = 1, ID_SECOND = 2, ID_CHECK = 3, ID_LIST = 4, ID_COMBO = 5, ID_DROPLIST = 6;
constexpr UINT ID_RADIO = 10; ///< Three radio buttons with a label between them, then one of another group.

struct ExchangeForm : Frame {
    ExchangeForm() {
        for (const LPCTSTR psz : {L"Alpha", L"alphabet", L"Beta"}) {
            m_list.AddString(psz);
            m_combo.AddString(psz);
            m_dropList.AddString(psz);
        }
    }

    std::function<void(CDataExchange*)> m_exchange;
    Child<CEdit> m_first{*this, ES_AUTOHSCROLL, CRect(0, 0, 90, 20), ID_FIRST};
    Child<CEdit> m_second{*this, ES_AUTOHSCROLL, CRect(0, 20, 90, 40), ID_SECOND};
    Child<CButton> m_check{*this, BS_AUTO3STATE, CRect(100, 0, 150, 20), ID_CHECK};
    Child<CListBox> m_list{*this, 0, CRect(0, 40, 90, 100), ID_LIST};
    Child<CComboBox> m_combo{*this, CBS_DROPDOWN, CRect(0, 100, 90, 180), ID_COMBO};
    Child<CComboBox> m_dropList{*this, CBS_DROPDOWNLIST, CRect(0, 130, 90, 200), ID_DROPLIST};
    Child<CButton> m_radio0{*this, BS_AUTORADIOBUTTON | WS_GROUP, CRect(100, 80, 150, 90), ID_RADIO};
    Child<CButton> m_radio1{*this, BS_AUTORADIOBUTTON, CRect(100, 90, 150, 100), ID_RADIO + 1};
    Child<CStatic> m_label{*this, 0, CRect(100, 60, 150, 70), ID_RADIO + 2};
    Child<CButton> m_radio2{*this, BS_AUTORADIOBUTTON, CRect(100, 100, 150, 110), ID_RADIO + 3};
    Child<CButton> m_other{*this, BS_AUTORADIOBUTTON | WS_GROUP, CRect(100, 110, 150, 120), ID_RADIO + 4};

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CWnd::DoDataExchange(pDX);
        m_exchange(pDX);
    }
};

} // namespace fx
