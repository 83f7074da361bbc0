// Tests a dialog with the package's kit, without a test framework.
#include <afxwin.h>
#include "dialogs/InputDlg.h"
#include "testkit/Application.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"

#include <cstdio>

static testkit::Application theApp;

static void Enter(const wchar_t* pszText) {
    CInputDlg dlg(L"?", L"", nullptr);
    testkit::Play(dlg,
                  {[&] { testkit::TypeText(pszText); }, [&] { testkit::pen::Tap(::GetDlgItem(dlg, IDOK)); }});
    if (dlg.GetString() != pszText)
        testkit::Fail("the text is not " + testkit::Utf8(pszText));
}

int main() {
    Enter(L"-12.5 aB");
    std::printf("failures %d\n", testkit::Failures());
    return testkit::Failures();
}
