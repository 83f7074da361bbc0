#include "Faults.h"

#include "support/AllDialogs.h"
#include "util/AsciiFile.h"
#include "util/StringStack.h"

using namespace testkit;

namespace fx {

namespace {

/// Opens a dialog, goes through all that it has and ends it by Cancel, and by OK.
/// @return whether all this worked
bool Open(const AnyDialog& dialog, CWnd& owner) {
    const auto endsWith = [&](int nButton, INT_PTR nWanted) {
        const INT_PTR nResult = fault::Visit([&] { return dialog.open(&owner); }, nButton);
        EXPECT_TRUE(nResult == nWanted || nResult == dialog.nCancel || nResult == -1 || nResult == 0)
            << nResult;
        return nResult == nWanted;
    };
    return endsWith(IDCANCEL, dialog.nCancel) && (!dialog.bOkWorks || endsWith(IDOK, IDOK));
}

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

bool UseImageLists(CWnd&) {
    CImageList list, copy;
    bool bGood =
        list.Create(16, 16, ILC_COLOR | ILC_MASK, 4, 4) && list.Add(TVGetCommonIcon(TVICON_FOLDER)) == 0;
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
    constexpr wchar_t PATH[] = L"\\作業\\archive.dat";
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
    EXPECT_EQ(L"座標", str); // read without an error
    EXPECT_EQ(4711, n);
    EXPECT_EQ(1.5, d);
    return pStack != nullptr;
}

bool WriteAndReadText(CWnd&) {
    constexpr wchar_t PATH[] = L"\\作業\\text.txt";
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
    if (bBytes) {
        EXPECT_EQ(std::vector<BYTE>({1, 2, 3}), std::vector<BYTE>(pRead, pRead + nRead));
    }
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

std::vector<fault::Scenario> Scenarios() {
    constexpr size_t SHEET = 700; // Wine's record of a sheet whose window was refused
    std::vector<fault::Scenario> all = {
        {"Panel", UsePanel},         {"ImageLists", UseImageLists}, {"Drawing", Draw},
        {"Files", WriteAndReadFile}, {"Text", WriteAndReadText},    {"Settings", KeepSettings},
        {"Combo", FillCombo},        {"Module", StartModule},
    };
    const auto add = [&](const AnyDialog& dialog) {
        all.push_back({dialog.pszName, [&dialog](CWnd& owner) { return Open(dialog, owner); },
                       dialog.open == OpenSheet ? SHEET : 0});
    };
    std::for_each(std::begin(DIALOGS), std::end(DIALOGS), add);
    std::for_each(std::begin(CONTROLS), std::end(CONTROLS), add);
    return all;
}

} // namespace fx
