#include "screens/FileCommands.h"

#include "screens/AskForFile.h"
#include "points/FilePath.h"
#include "screens/JobFile.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "screens/SettingsSheet.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"

void CFileCommands::RunMenu() {
    enum { EntryOpen, EntryPrevious, EntryNew, EntrySave, EntrySaveAs, EntryFolder, EntryCount };
    static_assert(IDS_FILE_MENU_LAST - IDS_FILE_MENU_FIRST + 1 == EntryCount);
    CUIntArray entries;
    for (UINT nEntry = 0; nEntry < EntryCount; ++nEntry)
        entries.Add(IDS_FILE_MENU_FIRST + nEntry);
    CButtonMenuDlg menu(IDS_FILE_MENU, &entries, &m_parent);
    menu.DoModal();
    switch (menu.GetMenuIndex()) {
    case EntryOpen:
        return Open();
    case EntryPrevious:
        return OpenPrevious();
    case EntryNew:
        return New();
    case EntrySave:
        Save();
        return;
    case EntrySaveAs:
        SaveAs();
        return;
    case EntryFolder:
        return ChooseFolder();
    default:
        return; // the menu was closed
    }
}

bool CFileCommands::MayGiveUpPoints() {
    if (!m_job.book.IsModified())
        return true;
    if (Ask(Text(IDS_ASK_SAVE)))
        return Save();
    return AskToLose(Text(IDS_ASK_GIVE_UP));
}

void CFileCommands::OfferToSave() {
    if (m_job.book.IsModified() && Ask(Text(IDS_ASK_SAVE)))
        Save();
}

void CFileCommands::Open() {
    if (!MayGiveUpPoints())
        return;
    const CString strPath = AskForFile(m_parent, m_job.settings, CFileSelectDlg::ModeOpen, L"");
    if (!strPath.IsEmpty())
        OpenPointsFile(m_job, strPath, m_parent);
}

void CFileCommands::OpenPrevious() {
    if (m_job.settings.strPrevious.IsEmpty())
        TellInformation(Text(IDS_NO_PREVIOUS));
    else if (MayGiveUpPoints())
        OpenPointsFile(m_job, m_job.settings.strPrevious, m_parent);
}

void CFileCommands::New() {
    if (!MayGiveUpPoints())
        return;
    const CString strPath = AskForFile(m_parent, m_job.settings, CFileSelectDlg::ModeNew, L"points");
    if (!strPath.IsEmpty())
        MakePointsFile(m_job, strPath);
}

bool CFileCommands::Save() {
    return m_job.strPath.IsEmpty() ? SaveAs() : SavePointsFile(m_job, m_job.strPath);
}

bool CFileCommands::SaveAs() {
    const CString strName = m_job.strPath.IsEmpty() ? CString(L"points") : TitleOf(m_job.strPath);
    const CString strPath = AskForFile(m_parent, m_job.settings, CFileSelectDlg::ModeSave, strName);
    return !strPath.IsEmpty() && SavePointsFile(m_job, strPath);
}

void CFileCommands::ChooseFolder() {
    CBrowseFolderDlg dialog(m_job.settings.strFolder, &m_parent);
    if (dialog.DoModal() != IDOK)
        return;
    m_job.settings.strFolder = dialog.GetSelectedFolder();
    KeepSettings(m_job.settings);
}
