#include "Scenarios.h"

#include "DialogCloser.h"
#include "support/AllControls.h"

#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ButtonMenuDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "dialogs/InputDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/ResultDlg.h"
#include "dialogs/SelMemberDlg.h"
#include "util/AsciiFile.h"
#include "util/StringStack.h"

#include <afxcmn.h>

using namespace testkit;

namespace fx {

namespace {

constexpr int ICON = 39; ///< One of the companion's.

/// Opens a dialog and uses it; if the use does not end it with nEnd, it is cancelled.
/// @return whether all this worked
bool Open(CDialog& dialog, const DialogCloser::Use& use = {}, INT_PTR nEnd = IDCANCEL) {
    const DialogCloser closer(use);
    const INT_PTR nResult = dialog.DoModal();
    EXPECT_TRUE(nResult == nEnd || nResult == IDCANCEL || nResult == -1) << nResult;
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    return nResult == nEnd && closer.WasUsed();
}

void PressOk(CWnd& dialog) {
    dialog.PostMessage(WM_COMMAND, IDOK);
}

// --- Ready-made dialogs -----------------------------------------------------------------------

bool SelectFile(CWnd& owner) {
    CFileSelectDlg dlg(&owner);
    dlg.SetMode(CFileSelectDlg::ModeSave);
    dlg.SetCurrentName(L"P1");
    dlg.SetSubName(L"csv");
    dlg.SetFileFolder(L"\\faults");
    return Open(dlg);
}

bool BrowseFolder(CWnd& owner) {
    CBrowseFolderDlg dlg(L"\\faults", &owner);
    const auto abort = [&](CWnd&) { dlg.EndDialog(IDABORT); }; // as an application that ends
    return Open(dlg) && Open(dlg, PressOk, IDOK) && Open(dlg, abort, IDABORT);
}

bool SelectMembers(CWnd& owner) {
    struct Members : CSelMemberDlg {
        using CSelMemberDlg::CSelMemberDlg;
        ~Members() override {
            FlashSelMemberList(m_listAvailable);
            FlashSelMemberList(m_listCurrent);
        }
    };
    Members dlg(L"座標", &owner);
    for (CPtrList* const pList : {&dlg.m_listAvailable, &dlg.m_listCurrent})
        for (const wchar_t* const pszText : {L"P1", L"P2"}) {
            auto pItem = std::make_unique<CSelMemberItem>();
            pItem->m_strText = pszText;
            pList->AddTail(pItem.get());
            (void)pItem.release();
        }
    return Open(dlg) && Open(dlg, PressOk, IDOK);
}

bool OpenMenu(CWnd& owner) {
    CUIntArray ids;
    for (const UINT nID : {1513U, 1514U, 1515U})
        ids.Add(nID);
    CButtonMenuDlg dlg(1503, &ids, &owner);
    const auto choose = [&](CWnd&) { dlg.PostMessage(WM_COMMAND, 5101); };
    return Open(dlg) && Open(dlg, choose, IDOK);
}

bool Ask(CWnd& owner) {
    CInputDlg dlg(L"点名", L"入力", &owner);
    dlg.SetString(L"P1");
    return Open(dlg);
}

bool ShowResult(CWnd& owner) {
    CResultDlg dlg(L"計算", L"結果", &owner);
    for (const wchar_t* const pszLine : {L"X = 1.000", L"Y = 2.000"})
        dlg.AddString(pszLine);
    return Open(dlg);
}

bool ShowMessage(CWnd&) {
    const DialogCloser closer;
    CResMsgBox box;
    box.WarningMsgBox(1513);
    return closer.WasUsed();
}

// --- Dialogs of the application -----------------------------------------------------------------

bool OpenControls(CWnd& owner, bool bPopup) {
    fx::AllControls dlg(&owner, bPopup);
    return Open(dlg, [&dlg](CWnd&) {
        for (int nID = fx::AllControls::FIRST; nID <= fx::AllControls::LAST; ++nID)
            if (CWnd* const pControl = dlg.GetDlgItem(nID))
                dlg.GotoDlgCtrl(pControl);
    });
}

constexpr int IDD_PAGE = 201, IDC_TEXT = 100;

struct Page : CnPropertyPage {
    Page() : CnPropertyPage(IDD_PAGE) {}

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CnPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEXT, m_strText);
    }

private:
    CString m_strText = L"P1";
};

struct Sheet : CnPropertySheet {
    explicit Sheet(CWnd& owner) : CnPropertySheet(L"設定", &owner, 0) {
        for (Page& page : m_pages)
            AddPage(&page);
    }
    ~Sheet() override { DestroyWindow(); } // before the pages go

    Page m_pages[3];
};

bool OpenSheet(CWnd& owner) {
    Sheet sheet(owner);
    bool bTurned = true;
    const DialogCloser closer([&](CWnd&) {
        for (int i = 0; i < 3; ++i)
            bTurned = sheet.SetActivePage(i) && bTurned;
    });
    const INT_PTR nResult = sheet.DoModal();
    EXPECT_TRUE(nResult == IDCANCEL || nResult == -1) << nResult;
    return nResult == IDCANCEL && closer.WasUsed() && bTurned;
}

// --- Soft input panel ---------------------------------------------------------------------------

bool UsePanel(CWnd& owner) {
    bool bGood = true;
    for (int nMode = 0; nMode <= 2; ++nMode) {
        TVShowSIP(nMode);
        Pump();
        CRect rect;
        const HWND hPanel = ::FindWindow(L"TesuvoInputPanel", nullptr);
        bGood = bGood && ::IsWindowVisible(hPanel);
        ::RedrawWindow(hPanel, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        ::GetClientRect(hPanel, rect);
        const LPARAM lMiddle = MAKELPARAM(rect.Width() / 2, rect.Height() / 4);
        ::SendMessage(hPanel, WM_LBUTTONDOWN, MK_LBUTTON, lMiddle);
        ::SendMessage(hPanel, WM_LBUTTONUP, 0, lMiddle);
        TVCloseSIP();
        ::SendMessage(hPanel, WM_TIMER, 1, 0); // it goes when a timer says so
        Pump();
    }
    owner.SetFocus();
    return bGood;
}

// --- Things without a window ----------------------------------------------------------------------

bool UseImageLists(CWnd&) {
    CImageList list, copy;
    bool bGood = list.Create(16, 16, ILC_COLOR | ILC_MASK, 4, 4) && list.Add(TVGetCommonIcon(ICON)) == 0;
    bGood = copy.Create(&list) && bGood;
    CBitmap bitmap;
    bGood = bitmap.CreateBitmap(16, 16, 1, 1, nullptr) && bGood;
    bGood = list.Add(&bitmap, RGB(0, 0, 0)) >= 0 && bGood;
    return list.Replace(0, &bitmap, &bitmap) && bGood;
}

bool Draw(CWnd& owner) {
    const CRect rect(0, 0, 40, 20);
    CClientDC dc(&owner);
    CWindowDC frame(&owner);
    CDC memory;
    CBitmap bitmap;
    CFont font;
    bool bGood = memory.CreateCompatibleDC(&dc) && bitmap.CreateCompatibleBitmap(&dc, 40, 20) &&
                 font.CreatePointFont(90, L"System");
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    CBrush brush(RGB(1, 2, 3)), hatched(HS_CROSS, RGB(1, 2, 3));
    CRgn region;
    bGood = region.CreateRectRgnIndirect(rect) && bGood;
    memory.SaveDC();
    bGood = memory.SelectObject(&bitmap) != nullptr && bGood;
    bGood = memory.SelectObject(&font) != nullptr && memory.SelectObject(&pen) != nullptr && bGood;
    bGood = memory.SelectObject(&brush) != nullptr && bGood;
    memory.FillSolidRect(rect, RGB(4, 5, 6));
    memory.DrawText(L"P1", 2, CRect(rect), DT_CENTER);
    bGood = memory.GetTextExtent(L"P1", 2).cx > 0 && bGood;
    memory.Draw3dRect(rect, RGB(1, 2, 3), RGB(4, 5, 6));
    dc.DrawDragRect(rect, CSize(1, 1), nullptr, CSize(1, 1));
    dc.BitBlt(0, 0, 40, 20, &memory, 0, 0, SRCCOPY);
    memory.RestoreDC(-1);
    return bGood;
}

bool WriteAndReadFile(CWnd&) {
    constexpr wchar_t PATH[] = L"\\faults\\archive.dat";
    {
        CFile file(PATH, CFile::modeCreate | CFile::modeWrite);
        CArchive archive(&file, CArchive::store);
        archive << CString(L"座標") << 4711 << 1.5;
        CStringStack stack;
        stack.Add(L"P1", 0);
        archive << &stack;
        archive.Close();
        file.Flush();
        file.Close();
    }
    CFile file(PATH, CFile::modeRead);
    CArchive archive(&file, CArchive::load);
    CString str;
    int n = 0;
    double d = 0;
    archive >> str >> n >> d;
    const std::unique_ptr<CObject> pStack(archive.ReadObject(RUNTIME_CLASS(CStringStack)));
    EXPECT_TRUE(str == L"座標" && n == 4711 && d == 1.5) << "read without an error";
    return pStack != nullptr;
}

bool WriteAndReadText(CWnd&) {
    constexpr wchar_t PATH[] = L"\\faults\\text.txt";
    {
        CAsciiFile file;
        if (!file.Open(PATH, CFile::modeCreate | CFile::modeWrite))
            return false;
        for (int i = 0; i < 20; ++i)
            file.WriteString(L"座標P1");
        file.Close();
    }
    CAsciiFile file;
    if (!file.Open(PATH, CFile::modeRead))
        return false;
    CString strLine;
    int nLines = 0;
    while (file.ReadString(strLine))
        nLines += strLine == L"座標P1" ? 1 : 0;
    return nLines == 20;
}

bool KeepSettings(CWnd&) {
    CWinApp& app = *AfxGetApp();
    BYTE bytes[3] = {1, 2, 3};
    const bool bWritten = app.WriteProfileInt(L"Faults", L"Number", 7) &&
                          app.WriteProfileString(L"Faults", L"Text", L"P1") &&
                          app.WriteProfileBinary(L"Faults", L"Bytes", bytes, sizeof bytes);
    const bool bRead =
        app.GetProfileInt(L"Faults", L"Number", 0) == 7 && app.GetProfileString(L"Faults", L"Text") == L"P1";
    BYTE* pRead = nullptr;
    UINT nRead = 0;
    const bool bBytes = app.GetProfileBinary(L"Faults", L"Bytes", &pRead, &nRead);
    EXPECT_TRUE(!bBytes || (nRead == 3 && pRead[2] == 3));
    delete[] pRead;
    return app.WriteProfileString(L"Faults", nullptr, nullptr) && bWritten && bRead && bBytes;
}

bool FillCombo(CWnd& owner) {
    CComboBox combo;
    CStringStack stack;
    for (const wchar_t* const pszText : {L"P1", L"P2", L"P3"})
        stack.Add(pszText, 0);
    if (!combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 80, 100), &owner, 1))
        return false;
    stack.SetupList(&combo);
    return combo.GetCount() == 3;
}

bool StartModule(CWnd&) {
    struct Module : AFX_EXTENSION_MODULE {
        ~Module() { AfxTermExtensionModule(*this); }
    } module = {};
    const HMODULE hModule = ::GetModuleHandle(nullptr);
    if (!AfxInitExtensionModule(module, hModule))
        return false;
    new CDynLinkLibrary(module);
    CString str;
    return str.LoadString(1513) && AfxFindResourceHandle(MAKEINTRESOURCE(1150), RT_DIALOG) != hModule;
}

} // namespace

const std::vector<Scenario>& Scenarios() {
    static const std::vector<Scenario> all = {
        {"FileDialog", SelectFile},
        {"FolderDialog", BrowseFolder},
        {"Members", SelectMembers},
        {"Menu", OpenMenu},
        {"Input", Ask},
        {"Result", ShowResult},
        {"Message", ShowMessage},
        {"FullScreen", [](CWnd& owner) { return OpenControls(owner, false); }},
        {"Popup", [](CWnd& owner) { return OpenControls(owner, true); }},
        {"Sheet", OpenSheet, 700}, // Wine's record of a sheet whose window was refused
        {"Panel", UsePanel},
        {"ImageLists", UseImageLists},
        {"Drawing", Draw},
        {"Files", WriteAndReadFile},
        {"Text", WriteAndReadText},
        {"Settings", KeepSettings},
        {"Combo", FillCombo},
        {"Module", StartModule},
    };
    return all;
}

} // namespace fx
