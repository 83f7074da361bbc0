#include <afxwin.h>

#include "Resource.h"
#include "controls/nDialog.h"
#include "controls/nEdit.h"
#include "geometry/Vector.h"

class CFirstDlg : public CnDialog {
public:
    CFirstDlg() : CnDialog(IDD_FIRST, nullptr) { SetOption(OptionOkButton); }

protected:
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        m_edtEast.Attach(IDC_EAST, this, SipOptionMode1);
        m_edtNorth.Attach(IDC_NORTH, this, SipOptionMode1);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* pDX) override {
        CnDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_EAST, m_dEast);
        DDX_Text(pDX, IDC_NORTH, m_dNorth);
    }
    void OnCompute() {
        if (!UpdateData())
            return;
        CString strText;
        strText.Format(L"距離 %.3f", CVector(m_dEast, m_dNorth).UNorm());
        SetDlgItemText(IDC_DISTANCE, strText);
    }
    DECLARE_MESSAGE_MAP()

private:
    CnEdit m_edtEast, m_edtNorth;
    double m_dEast = 0, m_dNorth = 0;
};

// clang-format off
BEGIN_MESSAGE_MAP(CFirstDlg, CnDialog)
    ON_BN_CLICKED(IDC_COMPUTE, &CFirstDlg::OnCompute)
END_MESSAGE_MAP()
// clang-format on

class CFirstApp : public CWinApp {
    BOOL InitInstance() override {
        CFirstDlg().DoModal();
        return FALSE;
    }
} theApp;
