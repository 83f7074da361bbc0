#include "Tesuvo.h"

#include "companion/detail/PanelWindow.h"

#include <afxext.h>

using namespace fieldkit::detail;

namespace {

void AFXAPI ShowPanel(BOOL bShow) {
    PanelWindow& panel = PanelWindow::OfThisThread();
    if (bShow)
        panel.ShowAgain();
    else
        panel.Close();
}

BOOL AFXAPI GetPanelRect(LPRECT lpRect) {
    const PanelWindow& panel = PanelWindow::OfThisThread();
    if (!panel.IsShown())
        return FALSE;
    *lpRect = panel.Place();
    return TRUE;
}

/// The framework's way to the panel, as long as this library is loaded.
class Registration {
public:
    Registration() : m_previous(AfxSetSipHandler(&s_handler)) {}
    ~Registration() { AfxSetSipHandler(m_previous); }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

private:
    static constexpr AFX_SIP_HANDLER s_handler = {ShowPanel, GetPanelRect};

    const AFX_SIP_HANDLER* m_previous;
};

const Registration g_registration;

} // namespace

void TVShowSIP(int nMode) {
    PanelWindow::OfThisThread().Show(nMode);
}

void TVCloseSIP() {
    PanelWindow::OfThisThread().Close();
}
