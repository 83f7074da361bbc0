#include "screens/Messages.h"

#include "dialogs/ResMsgBox.h"
#include "points/FilePath.h"
#include "resources/ResourceIds.h"
#include "screens/MessageDlg.h"
#include "screens/Resource.h"
#include "screens/Text.h"

namespace {

/// @param nType of the system's box, whose letters and buttons are smaller: it needs no memory of ours
INT_PTR Show(const CString& strText, UINT nCaptionId, int nDefault, UINT nType) {
    ::MessageBeep(nType & MB_ICONMASK);
    CMessageDlg dialog(strText, nCaptionId, nDefault, CWnd::GetActiveWindow());
    const INT_PTR nAnswer = dialog.DoModal();
    return nAnswer != -1 ? nAnswer : CResMsgBox().MsgBox(strText, nCaptionId, nType);
}

} // namespace

void TellError(const CString& strText) {
    Show(strText, IDS_FK_ERROR, IDOK, MB_OK | MB_ICONERROR);
}

void TellInformation(const CString& strText) {
    Show(strText, IDS_FK_INFORMATION, IDOK, MB_OK | MB_ICONINFORMATION);
}

bool Ask(const CString& strText) {
    return Show(strText, IDS_FK_WARNING, IDYES, MB_YESNO | MB_ICONWARNING) == IDYES;
}

bool AskToLose(const CString& strText) {
    return Show(strText, IDS_ASK_CAPTION, IDNO, MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) == IDYES;
}

void TellFileProblem(CFileException* e, UINT nTextId, const CString& strPath) {
    const CString strCause = Text(CauseTextId(*e));
    e->Delete();
    TellError(Text(nTextId, FileNameOf(strPath).GetString(), strCause.GetString()));
}

UINT CauseTextId(const CFileException& e) {
    switch (e.m_lOsError) {
    case ERROR_WRITE_PROTECT:
        return IDS_CAUSE_PROTECTED;
    case ERROR_NOT_READY:
    case ERROR_DEVICE_REMOVED:
    case ERROR_DEV_NOT_EXIST:
        return IDS_CAUSE_GONE;
    case ERROR_FILE_TOO_LARGE:
        return IDS_CAUSE_LARGE;
    default:
        break;
    }
    switch (e.m_cause) {
    case CFileException::diskFull:
    case CFileException::directoryFull:
        return IDS_CAUSE_FULL;
    case CFileException::accessDenied:
        return IDS_CAUSE_DENIED;
    case CFileException::fileNotFound:
        return IDS_CAUSE_NO_FILE;
    case CFileException::badPath:
    case CFileException::hardIO:
        return IDS_CAUSE_GONE;
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return IDS_CAUSE_IN_USE;
    default:
        return IDS_CAUSE_OTHER;
    }
}
