#include "screens/AskForFile.h"

#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "screens/SettingsSheet.h"
#include "Tesuvo.h"
#include "dialogs/FileSelectDlg.h"

namespace {

/// The soft input panel comes up as it was last when its button is tapped: for a name that
/// must be with letters.
void PreparePanel() {
    constexpr int kLetters = 0;
    TVShowSIP(kLetters);
    TVCloseSIP();
}

} // namespace

CString AskForFile(CWnd& parent, CSettings& settings, int nMode, const CString& strName) {
    CFileSelectDlg dialog(&parent);
    dialog.SetMode(nMode);
    dialog.SetCurrentName(strName);
    dialog.SetSubName(L"csv");
    dialog.SetFileFolder(settings.strFolder);
    PreparePanel();
    if (dialog.DoModal() != IDOK)
        return CString();
    settings.strFolder = dialog.GetFileFolder();
    KeepSettings(settings);
    CString strPath = dialog.GetFilePath();
    if (strPath.IsEmpty())
        TellError(Text(IDS_NO_NAME));
    return strPath;
}
