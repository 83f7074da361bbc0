#include "window/WndShell.h"

#include "DeviceCaption.h"
#include "SipRooms.h"

using namespace fieldkit::detail;

namespace {

BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CDeviceCaption::OnMessage(pWnd, message, wParam, lParam, pResult))
        return TRUE;
    if (!CSipRooms::OnMessage(pWnd, message, wParam, lParam))
        return FALSE;
    *pResult = TRUE;
    return TRUE;
}

} // namespace

constinit const CWndShell fieldkit::detail::g_wndShell = {OnMessage, CDeviceCaption::ShowOkButton};
