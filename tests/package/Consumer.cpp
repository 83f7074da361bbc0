// Uses a piece of each of the three libraries, and prints what came of it in UTF-8.
#include <afxwin.h>
#include "Tesuvo.h"
#include "dialogs/InputDlg.h"
#include "resources/ResourceIds.h"

#include <cstdio>
#include <string>

static CWinApp theApp;

static std::string Utf8(const CString& str) {
    char text[200] = "";
    ::WideCharToMultiByte(CP_UTF8, 0, str, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

/// Tells what it shows, and then presses its own OK button.
class CSelfClosingDlg : public CInputDlg {
public:
    CSelfClosingDlg() : CInputDlg(1490, IDS_FK_CREATE_NEW, nullptr) {}

protected:
    BOOL OnInitDialog() override {
        const BOOL bResult = CInputDlg::OnInitDialog();
        CString strCaption;
        GetWindowText(strCaption);
        CString strMessage;
        GetDlgItemText(IDC_FK_INPUT_MESSAGE, strMessage);
        std::printf("dialog \"%s\": %s\n", Utf8(strCaption).c_str(), Utf8(strMessage).c_str());
        SetDlgItemText(IDC_FK_INPUT_VALUE, L"12.5");
        PostMessage(WM_COMMAND, IDOK);
        return bResult;
    }
};

static BOOL CALLBACK CountName(HMODULE, LPCWSTR, LPWSTR, LONG_PTR pCount) {
    ++*reinterpret_cast<int*>(pCount);
    return TRUE;
}

int main() {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW);

    CSelfClosingDlg dialog;
    const bool ok = dialog.DoModal() == IDOK;
    double value = 0;
    const CString strEntered = dialog.GetString();
    std::printf("%s, entered %s", ok ? "OK" : "cancel", Utf8(strEntered).c_str());
    std::printf(" = %.2f\n", TVString2Double(&strEntered, &value) ? value : -1);

    int icons = 0;
    ::EnumResourceNamesW(::GetModuleHandle(nullptr), RT_GROUP_ICON, CountName,
                         reinterpret_cast<LONG_PTR>(&icons));
    std::printf("shared icon %s, icons of the program %d\n",
                TVGetCommonIcon(2) != nullptr ? "found" : "missing", icons);
}
