#include "dialogs/BrowseFolderDlg.h"

#include "Tesuvo.h"
#include "dialogs/detail/FolderSearch.h"
#include "dialogs/detail/LoadText.h"
#include "dialogs/detail/RedrawPause.h"
#include "resources/ResourceIds.h"

#include <deque>
#include <memory>
#include <utility>

using namespace fieldkit::detail;

namespace {

constexpr int kImageSize = 16; ///< Pixels at AFX_DESIGN_DPI.
constexpr int kImageCount = 8; ///< Room at first, and more each time it is full.
constexpr COLORREF kImageBackground = RGB(255, 255, 255);

/// Shared icons, in the order of the images.
constexpr TVIcon kIcons[] = {TVICON_FOLDER, TVICON_CARD_FOLDER, TVICON_DEVICE};
constexpr int kImageRoot = 2;

/// 0 for a folder, 1 for a storage card: the device marks those as temporary.
int ImageOf(const WIN32_FIND_DATA& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_TEMPORARY) != 0 ? 1 : 0;
}

/// A folder whose subfolders are being added.
struct OpenFolder {
    OpenFolder(HTREEITEM item, CString path, std::wstring system)
        : hItem(item), strPath(std::move(path)), systemPath(std::move(system)), search(systemPath) {}

    HTREEITEM hItem;
    CString strPath; ///< As it is shown and returned.
    std::wstring systemPath;
    FolderSearch search;
};

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CBrowseFolderDlg, CnDialog)
    ON_WM_DESTROY()
    ON_MESSAGE(WM_DPICHANGED, &CBrowseFolderDlg::OnDpiChanged)
END_MESSAGE_MAP()
// clang-format on

CBrowseFolderDlg::CBrowseFolderDlg(LPCTSTR pszFolder, CWnd* pParent)
    : CnDialog(IDD_FK_BROWSE_FOLDER, pParent), m_strFolder(pszFolder) {
    SetOption(OptionOkButton | OptionBarButtonSize);
}

CString CBrowseFolderDlg::GetSelectedFolder() const {
    return m_strFolder;
}

void CBrowseFolderDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FK_FOLDER_TREE, m_tree);
}

// --- Building the tree -----------------------------------------------------------------------

BOOL CBrowseFolderDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_FK_FOLDER_TREE, 0, 0, 100, 100);
    // A tree that gets the focus selects its first item. An empty one has none to select, so
    // that nothing is selected but what the caller asked for.
    m_tree.SetFocus();
    LoadImages();
    {
        const RedrawPause pause(m_tree);
        m_bFilled = true;
        const HTREEITEM hRoot = InsertFolder(TVI_ROOT, LoadText(IDS_FK_ROOT), kImageRoot, kRootFolder);
        MakeTreeSegment(hRoot, L"");
        m_tree.Expand(hRoot, TVE_EXPAND);
    }
    // Items are laid out now; before, there was nothing to scroll.
    if (const HTREEITEM hSelected = m_tree.GetSelectedItem())
        m_tree.EnsureVisible(hSelected);
    return TRUE;
}

void CBrowseFolderDlg::LoadImages() {
    m_tree.SetImageList(nullptr, TVSIL_NORMAL);
    m_images.DeleteImageList(); // of another resolution
    const int nSize = AfxScale(m_hWnd, kImageSize);
    m_images.Create(nSize, nSize, ILC_COLOR, kImageCount, kImageCount);
    m_images.SetBkColor(kImageBackground);
    for (const TVIcon nIcon : kIcons)
        m_images.Add(TVGetCommonIcon(nIcon));
    m_tree.SetImageList(&m_images, TVSIL_NORMAL);
}

LRESULT CBrowseFolderDlg::OnDpiChanged(WPARAM, LPARAM) {
    const LRESULT lResult = Default();
    LoadImages();
    return lResult;
}

HTREEITEM CBrowseFolderDlg::InsertFolder(HTREEITEM hParent, LPCTSTR pszName, int nImage,
                                         const CString& strPath) {
    auto pPath = std::make_unique<CString>(strPath);
    const HTREEITEM hItem =
        m_tree.InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM, pszName, nImage, nImage,
                          0, 0, reinterpret_cast<LPARAM>(pPath.get()), hParent, TVI_LAST);
    if (hItem != nullptr)
        static_cast<void>(pPath.release()); // the item's from here on, see RemoveTreeItems
    return hItem;
}

/// Depth first, each folder's subfolders directly after it. The folders on the way down are kept
/// in a list, since a path may have more of them than the stack has room for.
void CBrowseFolderDlg::MakeTreeSegment(HTREEITEM hParent, LPCTSTR pszPath) {
    const QuietDrives quiet;
    std::deque<OpenFolder> way;
    way.emplace_back(hParent, pszPath, SystemPath(pszPath));
    while (!way.empty()) {
        OpenFolder& folder = way.back();
        if (!folder.search.Next()) {
            way.pop_back();
            continue;
        }
        if (!folder.search.IsFolder())
            continue;
        const LPCTSTR pszName = folder.search.Name();
        const CString strPath = PathIn(folder.strPath, pszName);
        const HTREEITEM hItem = InsertFolder(folder.hItem, pszName, ImageOf(folder.search.Entry()), strPath);
        if (hItem == nullptr)
            continue;
        if (strPath == m_strFolder)
            m_tree.SelectItem(hItem);
        if (!folder.search.IsLink())
            way.emplace_back(hItem, strPath, folder.systemPath + L"\\" + pszName);
    }
}

// --- Ending ----------------------------------------------------------------------------------

void CBrowseFolderDlg::OnOK() {
    if (const CString* pPath = PathOf(m_tree.GetSelectedItem()))
        m_strFolder = *pPath;
    ResetMemory();
    CnDialog::OnOK();
}

void CBrowseFolderDlg::OnCancel() {
    ResetMemory();
    CnDialog::OnCancel();
}

/// For dialogs that end in neither way, as with their application.
void CBrowseFolderDlg::OnDestroy() {
    ResetMemory();
    CnDialog::OnDestroy();
}

void CBrowseFolderDlg::ResetMemory() {
    if (!std::exchange(m_bFilled, false))
        return;
    RemoveTreeItems(m_tree.GetRootItem());
    m_tree.SetImageList(nullptr, TVSIL_NORMAL);
    m_images.DeleteImageList();
}

void CBrowseFolderDlg::RemoveTreeItems(HTREEITEM hItem) {
    const HTREEITEM hEnd = m_tree.GetParentItem(hItem);
    for (; hItem != nullptr; hItem = NextBelow(hItem, hEnd)) {
        delete PathOf(hItem);
        m_tree.SetItemData(hItem, 0);
    }
}

/// Null for no item, and for one whose path has been freed.
CString* CBrowseFolderDlg::PathOf(HTREEITEM hItem) const {
    return reinterpret_cast<CString*>(m_tree.GetItemData(hItem));
}

/// The item after another one when the tree is read from top to bottom, as long as it is below
/// hEnd (null: the whole tree).
HTREEITEM CBrowseFolderDlg::NextBelow(HTREEITEM hItem, HTREEITEM hEnd) const {
    if (const HTREEITEM hChild = m_tree.GetChildItem(hItem))
        return hChild;
    for (; hItem != hEnd; hItem = m_tree.GetParentItem(hItem))
        if (const HTREEITEM hSibling = m_tree.GetNextSiblingItem(hItem))
            return hSibling;
    return nullptr;
}
