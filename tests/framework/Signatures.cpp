// What applications rely on when they override and call the framework, checked by the
// compiler alone: result types, constness, and which functions are virtual.
#include "afxext.h"

#include <type_traits>
#include <utility>

namespace {

#define CHECK_RESULT(type, object, call)                                                                     \
    static_assert(std::is_same_v<type, decltype(std::declval<object>().call)>, #call)

// --- Windows ------------------------------------------------------------------------------------

CHECK_RESULT(HWND, const CWnd&, operator HWND());
CHECK_RESULT(HWND, const CWnd&, GetSafeHwnd());
CHECK_RESULT(BOOL, CWnd&, Attach(HWND()));
CHECK_RESULT(HWND, CWnd&, Detach());
CHECK_RESULT(BOOL, CWnd&, SubclassWindow(HWND()));
CHECK_RESULT(BOOL, CWnd&, SubclassDlgItem(UINT(), std::declval<CWnd*>()));
CHECK_RESULT(HWND, CWnd&, UnsubclassWindow());
CHECK_RESULT(DWORD, const CWnd&, GetStyle());
CHECK_RESULT(DWORD, const CWnd&, GetExStyle());
CHECK_RESULT(BOOL, CWnd&, ModifyStyle(0, 0, 0));
CHECK_RESULT(CWnd*, const CWnd&, GetDlgItem(0));
CHECK_RESULT(CWnd*, const CWnd&, GetParent());
CHECK_RESULT(CFont*, const CWnd&, GetFont());
CHECK_RESULT(CDC*, CWnd&, GetDC());
CHECK_RESULT(int, CWnd&, ReleaseDC(std::declval<CDC*>()));
CHECK_RESULT(LRESULT, const CWnd&, SendMessage(0, 0, 0));
CHECK_RESULT(BOOL, const CWnd&, PostMessage(0, 0, 0));
CHECK_RESULT(BOOL, CWnd&, UpdateData(TRUE));
CHECK_RESULT(int, const CWnd&, GetDlgItemText(0, std::declval<CString&>()));
CHECK_RESULT(void, const CWnd&, GetWindowText(std::declval<CString&>()));
CHECK_RESULT(int, CWnd&, MessageBox(L"", L"", UINT()));
CHECK_RESULT(UINT_PTR, CWnd&, SetTimer(UINT_PTR(), UINT(), TIMERPROC()));
static_assert(std::is_same_v<CWnd*, decltype(CWnd::FromHandle(nullptr))>);
static_assert(std::is_same_v<MSG*, decltype(CWnd::GetCurrentMessage())>);
static_assert(!std::is_copy_constructible_v<CWnd> && !std::is_copy_constructible_v<CDC>);
static_assert(std::has_virtual_destructor_v<CWnd> && std::has_virtual_destructor_v<CGdiObject>);

/// Everything that a window class of an application overrides; it must compile.
class WndProbe : public CWnd {
public:
    BOOL Create(LPCTSTR, LPCTSTR, DWORD, const RECT&, CWnd*, UINT, void*) override { return FALSE; }
    BOOL DestroyWindow() override { return FALSE; }
    BOOL PreCreateWindow(CREATESTRUCT&) override { return FALSE; }
    void PreSubclassWindow() override {}
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }
    BOOL ContinueModal() override { return FALSE; }
    void EndModalLoop(int) override {}
    BOOL OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO*) override { return FALSE; }
    void CalcWindowRect(LPRECT, UINT) override {}

protected:
    LRESULT WindowProc(UINT, WPARAM, LPARAM) override { return 0; }
    LRESULT DefWindowProc(UINT, WPARAM, LPARAM) override { return 0; }
    BOOL OnWndMsg(UINT, WPARAM, LPARAM, LRESULT*) override { return FALSE; }
    BOOL OnCommand(WPARAM, LPARAM) override { return FALSE; }
    BOOL OnNotify(WPARAM, LPARAM, LRESULT*) override { return FALSE; }
    BOOL OnChildNotify(UINT, WPARAM, LPARAM, LRESULT*) override { return FALSE; }
    void PostNcDestroy() override {}
    void DoDataExchange(CDataExchange*) override {}
    ULONG GetGestureStatus(CPoint) override { return 0; }
};

class DialogProbe : public CDialog {
public:
    INT_PTR DoModal() override { return 0; }
    BOOL OnInitDialog() override { return FALSE; }
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }

protected:
    void OnOK() override {}
    void OnCancel() override {}
};

class AppProbe : public CWinApp {
public:
    BOOL InitInstance() override { return FALSE; }
    int ExitInstance() override { return 0; }
    int Run() override { return 0; }
    BOOL OnIdle(LONG) override { return FALSE; }
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }
    int DoMessageBox(LPCTSTR, UINT, UINT) override { return 0; }
};

// --- Drawing ------------------------------------------------------------------------------------

class DcProbe : public CDC {
public:
    int SaveDC() override { return 0; }
    BOOL RestoreDC(int) override { return FALSE; }
    CGdiObject* SelectStockObject(int) override { return nullptr; }
    CPen* SelectObject(CPen*) override { return nullptr; }
    CBrush* SelectObject(CBrush*) override { return nullptr; }
    CFont* SelectObject(CFont*) override { return nullptr; }
    COLORREF SetBkColor(COLORREF) override { return 0; }
    COLORREF SetTextColor(COLORREF) override { return 0; }
    int SelectClipRgn(CRgn*) override { return 0; }
    BOOL TextOut(int, int, LPCTSTR, int) override { return FALSE; }
    BOOL ExtTextOut(int, int, UINT, LPCRECT, LPCTSTR, UINT, LPINT) override { return FALSE; }
};

CHECK_RESULT(CBitmap*, CDC&, SelectObject(std::declval<CBitmap*>()));
CHECK_RESULT(HDC, const CDC&, GetSafeHdc());
CHECK_RESULT(CSize, const CDC&, GetTextExtent(std::declval<const CString&>()));
CHECK_RESULT(CPoint, CDC&, MoveTo(0, 0));
CHECK_RESULT(int, CDC&, DrawText(std::declval<const CString&>(), LPRECT(), UINT()));
CHECK_RESULT(void, CDC&, DrawDragRect(LPCRECT(), SIZE(), LPCRECT(), SIZE()));
CHECK_RESULT(HGDIOBJ, const CGdiObject&, GetSafeHandle());
static_assert(std::is_same_v<CBrush*, decltype(CDC::GetHalftoneBrush())>);
static_assert(std::is_convertible_v<CBrush, HBRUSH> && !std::is_convertible_v<COLORREF, CBrush>);

// --- Controls -----------------------------------------------------------------------------------

class ListProbe : public CListBox {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
    void MeasureItem(LPMEASUREITEMSTRUCT) override {}
    int CompareItem(LPCOMPAREITEMSTRUCT) override { return 0; }
    void DeleteItem(LPDELETEITEMSTRUCT) override {}
};

class ComboProbe : public CComboBox {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
    void MeasureItem(LPMEASUREITEMSTRUCT) override {}
    int CompareItem(LPCOMPAREITEMSTRUCT) override { return 0; }
    void DeleteItem(LPDELETEITEMSTRUCT) override {}
};

class ButtonProbe : public CButton {
public:
    BOOL Create(LPCTSTR, DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
};

class EditProbe : public CEdit {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
};

CHECK_RESULT(int, const CButton&, GetCheck());
CHECK_RESULT(HICON, CButton&, SetIcon(HICON()));
CHECK_RESULT(void, CButton&, SetButtonStyle(UINT(), BOOL()));
CHECK_RESULT(DWORD, const CEdit&, GetSel());
CHECK_RESULT(void, const CListBox&, GetText(0, std::declval<CString&>()));
CHECK_RESULT(DWORD_PTR, const CListBox&, GetItemData(0));
CHECK_RESULT(void, const CComboBox&, GetLBText(0, std::declval<CString&>()));
CHECK_RESULT(void*, const CComboBox&, GetItemDataPtr(0));

// Each can be made: nothing is left abstract.
static_assert(!std::is_abstract_v<WndProbe> && !std::is_abstract_v<DialogProbe> &&
              !std::is_abstract_v<AppProbe>);
static_assert(!std::is_abstract_v<DcProbe> && !std::is_abstract_v<ListProbe> &&
              !std::is_abstract_v<ComboProbe>);
static_assert(!std::is_abstract_v<ButtonProbe> && !std::is_abstract_v<EditProbe>);

} // namespace
