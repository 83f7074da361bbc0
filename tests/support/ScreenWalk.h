// Walks over the controls of an open window and tells which of them a user could not read or reach.
#pragma once

#include "support/Languages.h"
#include "testkit/Panel.h"
#include "testkit/Picture.h"

#include "Tesuvo.h"

#include "afxdlgs.h"

namespace fx {

/// What the screens are walked over in. The sizes of texts are decided on the device's screen, upright
/// and turned, where a walk is short: larger ones only have more room.
inline std::vector<LANGID> WalkLanguages() {
    constexpr int MOST = 320;
    std::vector<LANGID> languages = {languages::JAPANESE};
    if (Screen().Width() <= MOST)
        languages.push_back(languages::ENGLISH);
    return languages;
}

class ScreenWalk {
public:
    /// @return a line for each fault, nothing for a window that is as it should be
    static std::string FaultsOf(HWND hWnd) {
        Pump();
        std::string faults = LookAt(hWnd);
        // It may be on its way back from where it was for the panel.
        if (!faults.empty())
            PumpUntil([&] { return (faults = LookAt(hWnd)).empty(); });
        wchar_t szFolder[MAX_PATH];
        if (::GetEnvironmentVariable(L"FIELDKIT_PICTURES", szFolder, MAX_PATH) != 0)
            Picture::OfScreen().Save(szFolder + PictureName());
        return faults;
    }

    /// @return a line for each entry field that the soft input panel covers while the user is in it,
    ///         and for each button of a popup that would fit above the panel and is covered by it
    static std::string FaultsUnderPanel(HWND hWnd) {
        ScreenWalk walk;
        std::vector<HWND> fields;
        CollectFields(hWnd, fields);
        for (const HWND hField : fields) {
            ::SetFocus(hField);
            TVShowSIP(0);
            const auto isClear = [hField] {
                return panel::IsVisible() && RectOf(hField).bottom <= panel::Place().top && IsInView(hField);
            };
            if (!PumpUntil(isClear))
                walk.Report(hField, "is covered by the panel", RectOf(hField));
            const auto isAbove = [hWnd] {
                const CRect window = RectOf(hWnd);
                return window.Height() > panel::Place().top || window.bottom <= panel::Place().top;
            };
            if (!PumpUntil(isAbove))
                walk.Report(hWnd, "does not make room for the panel", RectOf(hWnd));
        }
        if (!fields.empty())
            panel::Close();
        return walk.m_faults;
    }

private:
    static std::string LookAt(HWND hWnd) {
        ScreenWalk walk;
        CRect window = RectOf(hWnd);
        window.DeflateRect(::GetSystemMetrics(SM_CXFIXEDFRAME), 0); // which shows nothing
        if ((WorkArea() & window) != window)
            walk.Report(hWnd, "lies off the screen", window);
        walk.Look(hWnd);
        return walk.m_faults;
    }

    /// Of the test that is running, with a number.
    static std::wstring PictureName() {
        static int nPicture = 0;
        CString strName(testing::UnitTest::GetInstance()->current_test_info()->name());
        strName.Replace(L'/', L'-');
        return L"\\" + std::to_wstring(100 + ++nPicture) + L'-' + strName.GetString() + L".png";
    }

    static void CollectFields(HWND hWnd, std::vector<HWND>& fields) {
        for (const HWND hChild : ChildrenOf(hWnd)) {
            const LRESULT lCode = ::SendMessage(hChild, WM_GETDLGCODE, 0, 0);
            const bool bField =
                Is(hChild, WC_EDIT) && (lCode & DLGC_HASSETSEL) != 0 && ::IsWindowEnabled(hChild);
            if (bField)
                fields.push_back(hChild);
            else
                CollectFields(hChild, fields);
        }
    }

    static bool IsInView(HWND hControl) {
        CRect client;
        const HWND hTop = ::GetAncestor(hControl, GA_ROOT);
        ::GetClientRect(hTop, client);
        ::MapWindowPoints(hTop, nullptr, reinterpret_cast<LPPOINT>(&client), 2);
        return RectOf(hControl).top >= client.top;
    }

    static CString ClassOf(HWND hWnd) { return CString(languages::ClassOf(*CWnd::FromHandle(hWnd)).c_str()); }
    static bool Is(HWND hWnd, LPCTSTR pszClass) { return ClassOf(hWnd).CompareNoCase(pszClass) == 0; }
    static DWORD StyleOf(HWND hWnd) { return static_cast<DWORD>(::GetWindowLong(hWnd, GWL_STYLE)); }
    static CString Text(HWND hWnd) { return TextOf(*CWnd::FromHandle(hWnd)); }
    static bool IsDialog(HWND hWnd) { return Is(hWnd, L"#32770"); }
    static bool IsScrollBar(HWND hWnd) { return Is(hWnd, L"ScrollBar"); }
    static bool IsCommandBar(HWND hWnd) { return ::GetDlgCtrlID(hWnd) == static_cast<int>(AFX_IDW_TOOLBAR); }

    void Report(HWND hWnd, const char* pszFault, const CRect& rect) {
        CString str;
        str.Format(L"%s %d \"%s\" (%d, %d)-(%d, %d) ", ClassOf(hWnd).GetString(), ::GetDlgCtrlID(hWnd),
                   Text(hWnd).GetString(), rect.left, rect.top, rect.right, rect.bottom);
        m_faults += Utf8(str) + pszFault + '\n';
    }

    static std::vector<HWND> ChildrenOf(HWND hWnd) {
        std::vector<HWND> children;
        for (HWND hChild = ::GetWindow(hWnd, GW_CHILD); hChild; hChild = ::GetWindow(hChild, GW_HWNDNEXT))
            if (::IsWindowVisible(hChild))
                children.push_back(hChild);
        return children;
    }

    /// What a dialog shows of its controls: between its bars, or as far as its scroll bar reaches.
    static CRect RoomOf(HWND hDialog, const std::vector<HWND>& children) {
        CRect room;
        ::GetClientRect(hDialog, room);
        ::MapWindowPoints(hDialog, nullptr, reinterpret_cast<LPPOINT>(&room), 2);
        for (const HWND hChild : children)
            if (IsCommandBar(hChild))
                room.bottom = std::min(room.bottom, RectOf(hChild).top);
        for (const HWND hChild : children) {
            if (!IsScrollBar(hChild))
                continue;
            SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
            ::GetScrollInfo(hChild, SB_CTL, &info);
            room.right = RectOf(hChild).left;
            room.top -= info.nPos;
            room.bottom = room.top + info.nMax + 1;
        }
        return room;
    }

    void Look(HWND hDialog) {
        const std::vector<HWND> children = ChildrenOf(hDialog);
        const CRect room = RoomOf(hDialog, children);
        for (const HWND hChild : children) {
            if (IsScrollBar(hChild) || IsCommandBar(hChild))
                continue;
            if (IsDialog(hChild)) {
                if ((room & RectOf(hChild)) != RectOf(hChild))
                    Report(hChild, "is out of reach", RectOf(hChild));
                Look(hChild);
                continue;
            }
            // The templates are half a dialog unit wider than the device's screen.
            constexpr int HALF_UNIT = 2;
            CRect rect = RectOf(hChild);
            rect.right -= AfxScale(hChild, HALF_UNIT);
            if ((room & rect) != rect)
                Report(hChild, "is out of reach", rect);
            LookAtText(hChild);
            for (const HWND hOther : children)
                if (hOther != hChild && Covers(hOther, hChild))
                    Report(hChild, "is covered", rect);
        }
    }

    /// Neighbours may share their edge. A tab control and a frame lie around what is theirs.
    static bool Covers(HWND hOther, HWND hChild) {
        const auto isAround = [](HWND hWnd) {
            return IsDialog(hWnd) || Is(hWnd, WC_TABCONTROL) || IsCommandBar(hWnd) || IsScrollBar(hWnd) ||
                   (Is(hWnd, WC_BUTTON) && (StyleOf(hWnd) & BS_TYPEMASK) == BS_GROUPBOX);
        };
        const int nEdge = AfxScale(hChild, 1);
        CRect common;
        return !isAround(hOther) && !isAround(hChild) &&
               common.IntersectRect(RectOf(hOther), RectOf(hChild)) && common.Width() > nEdge &&
               common.Height() > nEdge;
    }

    void LookAtText(HWND hControl) {
        CRect client;
        ::GetClientRect(hControl, client);
        CWnd& control = *CWnd::FromHandle(hControl);
        if (!languages::Fits(control))
            Report(hControl, "has a text that is cut off", client);
        if (Is(hControl, WC_LISTVIEW))
            LookAtList(hControl);
        if (!Is(hControl, WC_EDIT) && !Is(hControl, WC_COMBOBOX))
            return;
        CClientDC dc(&control);
        CFont* const pOuter = dc.SelectObject(control.GetFont());
        TEXTMETRIC metrics = {};
        dc.GetTextMetrics(&metrics);
        dc.SelectObject(pOuter);
        if (metrics.tmHeight > client.Height())
            Report(hControl, "is too low for its text", client);
    }

    /// No number may be shortened: it would be another one.
    void LookAtList(HWND hControl) {
        auto& list = *static_cast<CListCtrl*>(CWnd::FromHandle(hControl));
        if ((StyleOf(hControl) & LVS_TYPEMASK) != LVS_REPORT)
            return;
        const int nColumns = list.GetHeaderCtrl() != nullptr ? list.GetHeaderCtrl()->GetItemCount() : 0;
        for (int nRow = 0; nRow < std::min(list.GetItemCount(), 50); ++nRow)
            for (int nColumn = 0; nColumn < nColumns; ++nColumn) {
                const CString strText = list.GetItemText(nRow, nColumn);
                const bool bNumber =
                    !strText.IsEmpty() && strText.SpanIncluding(L"-+0123456789.,:/ ") == strText;
                if (bNumber &&
                    list.GetStringWidth(strText) > list.GetColumnWidth(nColumn) - AfxScale(hControl, 4))
                    Report(hControl, ("shortens " + Utf8(strText)).c_str(), RectOf(hControl));
            }
    }

    std::string m_faults;
};

} // namespace fx
