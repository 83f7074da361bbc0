// What applications rely on when they override and call the common controls, checked by
// the compiler alone: result types, constness, and which functions are virtual.
#include "afxcmn.h"
#include "afxdlgs.h"

#include <type_traits>
#include <utility>

namespace {

#define CHECK_RESULT(type, object, call)                                                                     \
    static_assert(std::is_same_v<type, decltype(std::declval<object>().call)>, #call)

class ListProbe : public CListCtrl {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
    void DrawItem(LPDRAWITEMSTRUCT) override {}
};

class TreeProbe : public CTreeCtrl {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
};

class SpinProbe : public CSpinButtonCtrl {
public:
    BOOL Create(DWORD, const RECT&, CWnd*, UINT) override { return FALSE; }
};

class PageProbe : public CPropertyPage {
public:
    using CPropertyPage::CPropertyPage;
    BOOL OnInitDialog() override { return FALSE; }
    BOOL OnSetActive() override { return FALSE; }
    BOOL OnKillActive() override { return FALSE; }
    BOOL OnApply() override { return FALSE; }
    void OnReset() override {}
    void OnOK() override {}
    void OnCancel() override {}
    BOOL OnQueryCancel() override { return FALSE; }
    LRESULT OnWizardBack() override { return 0; }
    LRESULT OnWizardNext() override { return 0; }
    BOOL OnWizardFinish() override { return FALSE; }
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }
};

class SheetProbe : public CPropertySheet {
public:
    using CPropertySheet::CPropertySheet;
    INT_PTR DoModal() override { return 0; }
    BOOL Create(CWnd*, DWORD, DWORD) override { return FALSE; }
    BOOL OnInitDialog() override { return FALSE; }
    BOOL PreTranslateMessage(MSG*) override { return FALSE; }
    BOOL ContinueModal() override { return FALSE; }

protected:
    BOOL OnCommand(WPARAM, LPARAM) override { return FALSE; }
};

static_assert(!std::is_abstract_v<ListProbe> && !std::is_abstract_v<TreeProbe> &&
              !std::is_abstract_v<SpinProbe> && !std::is_abstract_v<SheetProbe> &&
              !std::is_abstract_v<PageProbe>);
static_assert(std::is_constructible_v<PageProbe, UINT> && std::is_constructible_v<PageProbe, LPCTSTR, UINT>);
static_assert(std::is_constructible_v<SheetProbe, UINT, CWnd*, UINT> &&
              std::is_constructible_v<SheetProbe, LPCTSTR, CWnd*, UINT>);
static_assert(std::is_convertible_v<CImageList, HIMAGELIST> && !std::is_copy_constructible_v<CImageList>);

CHECK_RESULT(CImageList*, CListCtrl&, SetImageList(std::declval<CImageList*>(), 0));
CHECK_RESULT(CImageList*, const CTreeCtrl&, GetImageList(UINT()));
CHECK_RESULT(int, CImageList&, Add(HICON()));
CHECK_RESULT(int, const CListCtrl&, GetNextItem(0, 0));
CHECK_RESULT(POSITION, const CListCtrl&, GetFirstSelectedItemPosition());
CHECK_RESULT(CString, const CListCtrl&, GetItemText(0, 0));
CHECK_RESULT(DWORD_PTR, const CListCtrl&, GetItemData(0));
CHECK_RESULT(int, CListCtrl&, InsertItem(0, L""));
CHECK_RESULT(int, CListCtrl&, InsertColumn(0, L"", LVCFMT_LEFT, 100));
CHECK_RESULT(BOOL, CListCtrl&, SetItemState(0, UINT(), UINT()));
CHECK_RESULT(HTREEITEM, CTreeCtrl&, InsertItem(L"", 0, 0, HTREEITEM(), HTREEITEM()));
CHECK_RESULT(HTREEITEM, const CTreeCtrl&, GetSelectedItem());
CHECK_RESULT(DWORD_PTR, const CTreeCtrl&, GetItemData(HTREEITEM()));
CHECK_RESULT(BOOL, const CTreeCtrl&, ItemHasChildren(HTREEITEM()));
CHECK_RESULT(CWnd*, CSpinButtonCtrl&, SetBuddy(std::declval<CWnd*>()));
CHECK_RESULT(void, CSpinButtonCtrl&, SetRange(short(), short()));
CHECK_RESULT(int, CPropertySheet&, GetPageIndex(std::declval<CPropertyPage*>()));
CHECK_RESULT(CPropertyPage*, const CPropertySheet&, GetPage(0));

// The number is the device's; the desktop's controls use it for released capture.
static_assert(static_cast<int>(NM_RECOGNIZEGESTURE) == -16);

} // namespace
