/// @file
/// CBrowseFolderDlg: lets the user pick a folder from the tree of all folders.
#pragma once

#include <afxcmn.h>

#include "controls/nDialog.h"
#include "controls/nTreeCtrl.h"

/// A full-screen dialog with the folder tree of the device; on the desktop, of the current
/// drive.
///
/// The whole tree is read when the dialog opens. A link to a folder (symbolic link, junction,
/// mounted volume) is listed and can be picked, but what is behind it is not: the folder has
/// another place in some tree, and a link may lead back to a folder above itself. So each
/// folder is read once and the tree ends. Folders that cannot be read are shown without
/// children.
class FIELDKIT_API CBrowseFolderDlg : public CnDialog {
public:
    /// @param pszFolder the folder that is selected at first, written exactly as the dialog
    ///   gives it (from the root, upper and lower case, no backslash at the end); nothing is
    ///   selected for any other text. Null is no folder.
    /// @param pParent   owner; null for the application's main window
    explicit CBrowseFolderDlg(LPCTSTR pszFolder = nullptr, CWnd* pParent = nullptr);

    /// After OK the path of the folder picked, "\" for the root; else, and after OK with nothing
    /// selected, what the constructor was given.
    CString GetSelectedFolder() const;

protected:
    /// Adds all folders below a folder to the tree, and selects the wanted one when it comes by.
    /// @param hParent the folder's item
    /// @param pszPath the folder's path; "" or "\" for the root
    void MakeTreeSegment(HTREEITEM hParent, LPCTSTR pszPath);
    /// Frees the paths of an item, the siblings after it and all that is below them. The items
    /// stay, with no data.
    void RemoveTreeItems(HTREEITEM hItem);
    /// Frees what belongs to the tree: the paths of its items and its images. Does nothing when
    /// that has happened already.
    void ResetMemory();

    /// Ties the tree to its control.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Takes the selected folder over and ends the dialog.
    void OnOK() override;
    /// Ends the dialog; the folder stays what it was.
    void OnCancel() override;

    /// Frees the tree of a dialog that ends in neither way, as with its application.
    afx_msg void OnDestroy();
    /// The icons in the size of the new resolution.
    afx_msg LRESULT OnDpiChanged(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    void LoadImages();
    HTREEITEM InsertFolder(HTREEITEM hParent, LPCTSTR pszName, int nImage, const CString& strPath);
    CString* PathOf(HTREEITEM hItem) const;
    HTREEITEM NextBelow(HTREEITEM hItem, HTREEITEM hEnd) const;

    CnTreeCtrl m_tree; ///< Each item's data is a CString of its own, the folder's path.
    CImageList m_images;
    CString m_strFolder;
    bool m_bFilled = false;
};
