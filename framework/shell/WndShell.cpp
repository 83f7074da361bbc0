#include "window/WndShell.h"

#include "DeviceCaption.h"
#include "Rooms.h"
#include "ScreenChange.h"

using namespace fieldkit::detail;

namespace {

BOOL OnMessage(CWnd* pWnd, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CDeviceCaption::OnMessage(pWnd, message, wParam, lParam, pResult))
        return TRUE;
    if (CScreenChange::OnMessage(pWnd, message, wParam, lParam)) {
        *pResult = 0;
        return TRUE;
    }
    if (!CRooms::OnMessage(pWnd, message, wParam, lParam))
        return FALSE;
    *pResult = TRUE;
    return TRUE;
}

} // namespace

constinit const CWndShell fieldkit::detail::g_wndShell = {OnMessage, CDeviceCaption::ShowOkButton};
