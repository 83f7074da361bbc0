#include "screens/Messages.h"

#include "dialogs/ResMsgBox.h"
#include "points/FilePath.h"
#include "resources/ResourceIds.h"
#include "screens/Resource.h"
#include "screens/Text.h"

namespace {

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

} // namespace

bool AskToLose(const CString& strText) {
    return CResMsgBox().MsgBox(strText, Text(IDS_ASK_CAPTION), MB_YESNO | MB_ICONWARNING | MB_DEFBUTTON2) ==
           IDYES;
}

void TellFileProblem(CFileException* e, UINT nTextId, const CString& strPath) {
    const CString strCause = CauseText(*e);
    e->Delete();
    CResMsgBox().ErrorMsgBox(Text(nTextId, FileNameOf(strPath).GetString(), strCause.GetString()));
}

CString CauseText(const CFileException& e) {
    return Text(CauseTextId(e));
}
