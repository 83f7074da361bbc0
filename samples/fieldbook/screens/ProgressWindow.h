/// @file
/// CProgressWindow: shows how far long work is, and lets the pen stop it.
#pragma once

#include "controls/nDialog.h"
#include "points/Progress.h"

#include <afxcmn.h>

#include <memory>

/// A text, a bar and a button that stops the work; so does closing the window.
class CProgressDlg : public CnDialog {
public:
    explicit CProgressDlg(UINT nTextId);

    void ShowProgress(size_t nDone, size_t nAll);
    /// Handles what the pen does to this window. All others of the thread are drawn and nothing else:
    /// no command can begin in the middle of the work.
    void HandleInput();
    bool IsStopped() const { return m_bStopped; }
    void Stop() { m_bStopped = true; }

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override {} // a stray Enter stops nothing
    void OnCancel() override { Stop(); }
    /// Also when the window goes with its owner.
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    UINT m_nTextId;
    CProgressCtrl m_bar;
    bool m_bStopped = false;
};

/// Stands beside work that may be long. From half a second on there is a window; work that is shorter
/// costs nothing.
///
/// Work that is stopped gets a CUserException*, which it leaves to its caller: whatever it makes becomes
/// the user's at its very end only. What is tapped in the meantime, outside of the window, is not meant
/// for what comes after and does nothing.
class CProgressWindow {
public:
    /// @param nTextId what is done
    explicit CProgressWindow(UINT nTextId) : m_nTextId(nTextId) { s_pCurrent = this; }
    ~CProgressWindow() {
        Close();
        s_pCurrent = m_pOuter;
    }
    CProgressWindow(const CProgressWindow&) = delete;
    CProgressWindow& operator=(const CProgressWindow&) = delete;

    /// For the work, which must end before this object.
    /// @throw CUserException* when the user has stopped it
    Progress Get();
    /// Takes the window off the screen. It comes again if the work goes on for long.
    void Close();

    /// Stops the work that is under way, if there is any: the program is about to end.
    /// @return false if there is none
    static bool StopCurrent();

private:
    void Step(size_t nDone, size_t nAll);
    void Open();
    static ULONGLONG FirstLook();

    static inline CProgressWindow* s_pCurrent = nullptr;

    CProgressWindow* const m_pOuter = s_pCurrent;
    const UINT m_nTextId;
    std::unique_ptr<CProgressDlg> m_pDialog; ///< From the moment on when it is shown.
    ULONGLONG m_nNextLook = FirstLook();     ///< In milliseconds.
    bool m_bStopped = false;
};
