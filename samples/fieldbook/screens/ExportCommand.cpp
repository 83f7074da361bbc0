#include "screens/ExportCommand.h"

#include "screens/AskForFile.h"
#include "screens/ColumnChoice.h"
#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/ResMsgBox.h"

namespace {

void Write(const CJob& job, const CString& strPath) {
    const CString strName = FileNameOf(strPath);
    const CLineFormat format = ExportFormat(job.settings.columns, job.format);
    std::string bytes;
    CString strBad;
    if (!FormatPoints(job.book.GetPoints(), format, bytes, strBad)) {
        CResMsgBox().ErrorMsgBox(Text(IDS_POINT_NOT_WRITABLE, strBad.GetString()));
        return;
    }
    try {
        RewriteFile(strPath, bytes);
        CResMsgBox().InformationMsgBox(Text(IDS_EXPORTED, job.book.GetCount(), strName.GetString()));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_WRITTEN, strPath);
    }
}

} // namespace

void RunExport(CJob& job, CWnd& parent) {
    if (!ChooseColumns(parent, job.settings.columns))
        return;
    KeepSettings(job.settings);
    const CString strPath = AskForFile(parent, job.settings, CFileSelectDlg::ModeSave, L"export");
    if (strPath.IsEmpty())
        return;
    // With columns left out the points themselves would be lost.
    if (IsSamePath(strPath, job.strPath))
        CResMsgBox().ErrorMsgBox(Text(IDS_EXPORT_OWN_FILE, FileNameOf(strPath).GetString()));
    else
        Write(job, strPath);
}
