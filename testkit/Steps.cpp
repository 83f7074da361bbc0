#include "testkit/Steps.h"

#include "testkit/Panel.h"
#include "testkit/Pen.h"

#include "Tesuvo.h"

namespace testkit {

namespace {

bool TapWhenPossible(HWND hWnd) {
    const bool bPossible = CanBeTapped(hWnd);
    if (bPossible)
        pen::Tap(MiddleOf(hWnd));
    return bPossible;
}

} // namespace

Step Tap(const CWnd& dialog, int nID, const Place& place) {
    return {[&dialog, nID] { return TapWhenPossible(::GetDlgItem(dialog, nID)); }, place};
}

Step TapIn(int nID, const Place& place) {
    return {[nID] { return TapWhenPossible(::GetDlgItem(::GetActiveWindow(), nID)); }, place};
}

Step Type(const std::wstring& text, const Place& place) {
    return {[text] { TypeText(text); }, place};
}

Step Press(std::initializer_list<WORD> keys, const Place& place) {
    const std::vector<WORD> copy = keys;
    const auto press = [copy] {
        for (const WORD wKey : copy)
            TypeKeys({wKey});
    };
    return {press, place};
}

Step NoPanel(const Place& place) {
    const auto close = [] {
        TVCloseSIP();
        return !panel::IsVisible();
    };
    return {close, place};
}

Step Close(CWnd& dialog, const Place& place) {
    return {[&dialog] { dialog.PostMessage(WM_CLOSE); }, place};
}

} // namespace testkit
