#include "testkit/Panel.h"

#include "testkit/Application.h"

#include "Tesuvo.h"

namespace testkit {

namespace {

BOOL CALLBACK FindPanel(HWND hWnd, LPARAM lFound) {
    if (ClassOf(hWnd) != L"TesuvoInputPanel")
        return TRUE;
    *reinterpret_cast<HWND*>(lFound) = hWnd;
    return FALSE;
}

} // namespace

HWND panel::OfThread(DWORD nThread) {
    HWND hPanel = nullptr;
    ::EnumThreadWindows(nThread, FindPanel, reinterpret_cast<LPARAM>(&hPanel));
    return hPanel;
}

bool panel::IsVisible() {
    return ::IsWindowVisible(OfThread()) != FALSE;
}

std::wstring panel::Title() {
    return TextOf(OfThread());
}

CRect panel::Place() {
    return RectOf(OfThread());
}

void panel::ExpectShown(const testkit::Place& place) {
    if (!PumpUntil(IsVisible))
        Fail("the input panel does not come", place);
}

void panel::ExpectHidden(const testkit::Place& place) {
    if (!PumpUntil([] { return !IsVisible(); }))
        Fail("the input panel does not go", place);
}

void panel::Close(const testkit::Place& place) {
    TVCloseSIP();
    ExpectHidden(place);
}

} // namespace testkit
