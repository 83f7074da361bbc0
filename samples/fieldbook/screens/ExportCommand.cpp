#include "screens/ExportCommand.h"

#include "screens/AskForFile.h"
#include "screens/ColumnChoice.h"
#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/Messages.h"
#include "screens/ProgressWindow.h"
#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"
#include "dialogs/FileSelectDlg.h"

namespace {

void Write(const CJob& job, const CString& strPath) {
    const CString strName = FileNameOf(strPath);
    const CLineFormat format = ExportFormat(job.settings.columns, job.format);
    std::string bytes;
    CString strBad;
    try {
        CProgressWindow window(IDS_EXPORTING);
        const bool bHolds =
            FormatPoints(job.book.GetPoints(), format, bytes, strBad, PartOf(window.Get(), 0, 2));
        if (bHolds)
            RewriteFile(strPath, bytes, PartOf(window.Get(), 1, 2));
        window.Close();
        if (bHolds)
            TellInformation(Text(IDS_EXPORTED, job.book.GetCount(), strName.GetString()));
        else
            TellError(Text(IDS_POINT_NOT_WRITABLE, strBad.GetString()));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_WRITTEN, strPath);
    } catch (CUserException* e) { // stopped: no file
        e->Delete();
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
        TellError(Text(IDS_EXPORT_OWN_FILE, FileNameOf(strPath).GetString()));
    else
        Write(job, strPath);
}
