/// @file
/// The application and its thread, module state and the resource chain.
/// Included by afxwin.h.
#pragma once

#include "afxcoll.h"
#include "afxtempl.h"
#include "afxwnd_.h"

/// What a thread without a message loop runs.
using AFX_THREADPROC = UINT (*)(LPVOID);

/// A thread of the framework: one that runs a function (AFX_THREADPROC), or one with windows, its message
/// loop and its main window.
class AFX_CORE CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread() = default;
    /// A thread that runs a function.
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< The program ends when it is destroyed.
    CWnd* m_pActiveWnd = nullptr; ///< Not used by the framework itself.
    /// The system's number of the thread.
    DWORD m_nThreadID = 0;
    MSG m_msgCur = {};          ///< The message being pumped.
    HANDLE m_hThread = nullptr; ///< The system's thread; closed with this object. Null for the main thread.
    BOOL m_bAutoDelete = TRUE;  ///< The object is deleted when its thread ends.
    LPVOID m_pThreadParams = nullptr;         ///< What the function is given.
    AFX_THREADPROC m_pfnThreadProc = nullptr; ///< Null for a thread with windows.

    /// Starts the thread. @return FALSE if the system refuses
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    /// Deletes the object, if m_bAutoDelete says so.
    virtual void Delete();
    /// The Win32 function of the same name.
    ///@{
    operator HANDLE() const { return m_hThread; }
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }
    ///@}
    /// The thread's main window; null without one.
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }

    /// Opens the main window, or runs the main dialog. @return FALSE: end without a message loop.
    virtual BOOL InitInstance();
    /// The message loop. @return the exit code.
    virtual int Run();
    /// @return the exit code of the program.
    virtual int ExitInstance();
    /// @return TRUE if the message shall go no further.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Fetches, translates and dispatches one message. @return FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called while the queue is empty. @return TRUE to be called again.
    virtual BOOL OnIdle(LONG lCount);
    /// Whether OnIdle shall be called again after a message. Here: not after paint and timer
    /// messages, nor after mouse moves on the spot.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// An exception came out of a message handler or another function that the system calls. One of
    /// the standard library comes as a CMemoryException (std::bad_alloc) or with its own text. Here:
    /// tells the user, unless it is a CUserException or another box of this kind is still open, and
    /// deletes it. @return what the window procedure answers
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

    /// A menu, message box or dialog is about to handle a message: also those of the system, whose loops
    /// PreTranslateMessage does not see. Only in threads that the framework runs (AfxWinMain,
    /// AfxBeginThread). Here: does nothing.
    /// @param code MSGF_...
    /// @return TRUE if the message shall go no further
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);

protected:
    /// Looks for a handler (ON_THREAD_MESSAGE) of a message without a window. @return TRUE if there is one
    BOOL DispatchThreadMessage(MSG* pMsg);

    CPoint m_ptCursorLast{-1, -1}; ///< Where the last mouse move was, for IsIdleMessage.
    UINT m_nMsgLast = 0;           ///< Which of the two moves it was.
};

/// The program's arguments: a file to open; others for a derived class.
class AFX_CORE CCommandLineInfo : public CObject {
public:
    CCommandLineInfo() = default;

    /// What the program shall do.
    enum { FileNew, FileOpen, FilePrint, FilePrintTo, FileDDE, AppRegister, AppUnregister, FileNothing = -1 };

    BOOL m_bShowSplash = TRUE;     ///< Not used by the framework itself.
    BOOL m_bRunEmbedded = FALSE;   ///< Always FALSE.
    BOOL m_bRunAutomated = FALSE;  ///< Always FALSE.
    int m_nShellCommand = FileNew; ///< FileOpen if there is a file.
    CString m_strFileName;         ///< The first argument that is no flag.

    /// Called for each argument. @param bFlag it began with - or /, which is taken off
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);
};

/// What a program asks of the restart manager, which this framework does not use.
enum : DWORD {
    AFX_RESTART_MANAGER_SUPPORT_RESTART = 0x01,
    AFX_RESTART_MANAGER_SUPPORT_RECOVERY = 0x02,
    AFX_RESTART_MANAGER_SUPPORT_RESTART_ASPECTS = 0x11,
    AFX_RESTART_MANAGER_SUPPORT_ALL_ASPECTS = 0x7F,
};

/// The application: one static object of a class derived from it in each program.
class AFX_CORE CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    /// @param lpszAppName null for the name of the program's file
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    /// The program's module.
    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr; ///< Without the program's own name; not owned.
    /// How the main window shall be shown, as the program was told.
    int m_nCmdShow = SW_SHOWNORMAL;
    /// Texts in memory of malloc: who replaces one frees it, and gives it a copy (_tcsdup).
    ///@{
    LPCTSTR m_pszAppName = nullptr;      ///< Caption of message boxes: the constructor's, else m_pszExeName.
    LPCTSTR m_pszExeName = nullptr;      ///< The program's file without folder and extension.
    LPCTSTR m_pszHelpFilePath = nullptr; ///< The program's path with the extension .chm; see OnHelp.
    LPCTSTR m_pszRegistryKey = nullptr;  ///< Set by SetRegistryKey, else null.
    /// Where the settings are: the last part of their registry key, or without SetRegistryKey an INI file,
    /// by its full path or by its name alone, which is one in the user's folder for application data
    /// (%APPDATA%). At first m_pszExeName with ".INI".
    LPCTSTR m_pszProfileName = nullptr;
    ///@}

    /// Shows a message box with the application's name as its caption.
    /// @param nIDPrompt not used
    /// @return the button, IDOK and the like; 0 if the box could not be shown
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    /// An icon of the application or an extension module; not to be destroyed. Null if there is
    /// none.
    ///@{
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    ///@}
    /// An icon of the system, IDI_...
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const;
    /// A cursor of the application or an extension module; not to be destroyed. Null if there is
    /// none.
    ///@{
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    ///@}
    /// A cursor of the system, IDC_...
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;

    /// Keeps the program's settings in the registry, under Software\<key>\<application name> of the
    /// user. Without it they are in a file, see m_pszProfileName.
    ///@{
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    ///@}
    /// The open key of all settings, or of one section, made if need be; the caller closes it. Null
    /// without SetRegistryKey or if the system refuses.
    ///@{
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    ///@}
    /// Reads or writes one setting. What is missing or of another kind reads as the default;
    /// writing gives FALSE on failure. A file keeps texts of one line only.
    ///@{
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    ///@}
    /// A null entry deletes the section, a null value the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// @param ppData receives memory that the caller frees with delete[]
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    /// Stores bytes, which are copied. @return FALSE on failure
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    /// Here: TRUE.
    BOOL InitInstance() override;
    int Run() override;

    /// Reads the program's arguments into an object, by its ParseParam.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);

    /// For lines ON_COMMAND: opens m_pszHelpFilePath if there is such a file; closes the main window.
    ///@{
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex() { OnHelp(); }
    afx_msg void OnHelpFinder() { OnHelp(); }
    afx_msg void OnHelpUsing() { OnHelp(); }
    afx_msg void OnContextHelp() { OnHelp(); }
    afx_msg void OnAppExit();
    ///@}
    /// Open the help file. @param dwData, nCmd a topic, which is left to the viewer's contents
    ///@{
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    void EnableHtmlHelp() {}
    ///@}
    /// A cursor or an icon of the system. @param nIDCursor, nIDIcon OCR_..., OIC_...
    ///@{
    HCURSOR LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor)); }
    HICON LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon)); }
    ///@}
    /// Shows the wait cursor (1), ends it (-1), shows it again (0).
    virtual void DoWaitCursor(int nCode);
    /// Deletes a key of the registry with all below it. @return ERROR_...
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName) {
        return ::RegDeleteTree(hParentKey, strKeyName);
    }

    /// Nothing is to be done: the system's controls look as they should. @return TRUE
    ///@{
    BOOL Enable3dControls() { return TRUE; }
    BOOL Enable3dControlsStatic() { return TRUE; }
    ///@}
    /// The taskbar's name for the program, its buttons there, and older programs' colours. Here: nothing.
    ///@{
    void SetAppID(LPCTSTR) {}
    BOOL EnableTaskbarInteraction(BOOL = TRUE) { return TRUE; }
    void SetDialogBkColor(COLORREF = RGB(192, 192, 192), COLORREF = RGB(0, 0, 0)) {}
    ///@}
    /// AFX_RESTART_MANAGER_...: not used, nothing is started again.
    DWORD m_dwRestartManagerSupportFlags = 0;
    /// Not used: there are no recent files.
    void LoadStdProfileSettings(UINT = 4) {}

private:
    void SetProfileName(LPCTSTR lpszName);
};

/// Shows the wait cursor while it exists.
class AFX_CORE CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    /// Shows the wait cursor again, after a message box for example.
    void Restore();
};

/// Starts a thread that runs a function, or one with windows, of a class with DECLARE_DYNCREATE.
/// @return its object, which goes when the thread ends (m_bAutoDelete); null if the system refuses
///@{
AFX_CORE CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                           int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                           DWORD dwCreateFlags = 0,
                                           LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
AFX_CORE CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass,
                                           int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                           DWORD dwCreateFlags = 0,
                                           LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
///@}
/// Ends the calling thread, without running destructors of what is on its stack.
/// @param bDelete whether its object is deleted, if m_bAutoDelete says so
AFX_CORE void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

/// The calling thread's object; null in a thread that has none.
AFX_CORE CWinThread* AFXAPI AfxGetThread();
/// The application object; null in a program without one.
AFX_CORE CWinApp* AFXAPI AfxGetApp();
/// The active in-place or main window of the thread; null without one.
AFX_CORE CWnd* AFXAPI AfxGetMainWnd();
/// The program's module.
AFX_CORE HINSTANCE AFXAPI AfxGetInstanceHandle();
/// Where resources are searched first: the program's module unless AfxSetResourceHandle has changed
/// it.
AFX_CORE HINSTANCE AFXAPI AfxGetResourceHandle();
/// Changes where resources are searched first.
AFX_CORE void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
/// The application's name, as CWinApp keeps it.
AFX_CORE LPCTSTR AFXAPI AfxGetAppName();

/// Prepares the framework in a program that has its own main function.
AFX_CORE BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// What the program's entry point calls: InitInstance, Run, ExitInstance.
AFX_CORE int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// Ends the calling thread's message loop.
AFX_CORE void AFXAPI AfxPostQuitMessage(int nExitCode);
/// Runs one message of the calling thread through its loop. @return FALSE on WM_QUIT
AFX_CORE BOOL AFXAPI AfxPumpMessage();

/// Shows a message box with the application's name as its caption, owned by the window that
/// CWnd::GetSafeOwner gives.
/// @param nType MB_... values
/// @param nIDHelp not used
/// @return the button, IDOK and the like; 0 if the box could not be shown
///@{
AFX_CORE int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_CORE int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
///@}

/// Registers a window class unless there is one of its name. @return FALSE if the system refuses
AFX_CORE BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);
/// A text of the resources with %1 (and %2) replaced.
///@{
AFX_CORE void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
AFX_CORE void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
///@}
/// Registers a window class once. @return its name, which stays valid.
/// @throw CResourceException* if the system refuses
AFX_CORE LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                            HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);

// --- Extension modules ---------------------------------------------------------------

/// Loads a DLL, and lets it go. @return null, and FALSE, on failure
///@{
inline HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName) {
    return ::LoadLibrary(lpszModuleName);
}
inline BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib) {
    return ::FreeLibrary(hInstLib);
}
///@}

/// All modules have one state: nothing is to be switched at a DLL's entry points.
///@{
struct AFX_MODULE_STATE {};
#define AFX_MANAGE_STATE(pState) static_cast<void>(0)
///@}

/// State of a DLL that extends the framework: a static object of the DLL.
struct AFX_EXTENSION_MODULE {
    /// Set by AfxInitExtensionModule.
    BOOL bInitialized = FALSE;
    /// The DLL.
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr; ///< Where its resources are; set to hModule by the start.
};

/// Call at DLL_PROCESS_ATTACH, then create a CDynLinkLibrary.
AFX_CORE BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Call at DLL_PROCESS_DETACH: takes the module's link records out of the chain.
/// @param bAll not used
AFX_CORE void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// The link record of an extension module: while it exists, resources are searched in
/// the module as well. Created with new; AfxTermExtensionModule deletes it.
class AFX_CORE CDynLinkLibrary : public CObject {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    /// Links the module into the chain.
    /// @param state a module that AfxInitExtensionModule has prepared
    /// @param bSystem that the module is a part of the library: its texts are Japanese unless a
    ///   language was chosen. Of other modules the system chooses the language then.
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

    /// The DLL.
    HMODULE m_hModule;
    /// Where its resources are.
    HMODULE m_hResource;
    /// As the constructor was given it.
    BOOL m_bSystem;

private:
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;
};

/// The module that holds a resource: the application first, then the extension modules
/// in the order of their loading, then the framework; the application if none has it.
AFX_CORE HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszResource, LPCTSTR lpszType);
/// The module that holds a string. A block of sixteen strings may be spread over modules,
/// so it is the string that is looked for, not the block. Null if none has it.
AFX_CORE HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
/// @return the length without terminator; 0 and an empty text if there is no such string.
AFX_CORE int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);

/// Chooses the language of dialogs, strings, menus and toolbars, and of the buttons of message
/// boxes, wherever the framework loads them. Which module a resource comes from does not change:
/// the first that has it at all. Of that module's languages the chosen one is taken, else another
/// variant of it (US for British English), else the library's own resources in Japanese and
/// others in the system's choice; each string for itself. What exists already keeps its texts.
/// Pictures, and what a program loads past the framework, are the system's choice.
///
/// May be called at any time and from any thread; it holds for the process. Without a call the
/// application's resources choose, if they have a resource AFX_RESOURCE_LANGUAGE, an RCDATA of one
/// 16-bit number; if they have none, the library is Japanese, whatever the system's language.
///
/// @param wLanguage e.g. MAKELANGID(LANG_ENGLISH, SUBLANG_DEFAULT), or LANG_ENGLISH for any of its
///   variants; 0 takes an earlier call back
AFX_CORE void AFXAPI AfxSetResourceLanguage(LANGID wLanguage);
/// @return the chosen language; Japanese if none was chosen.
AFX_CORE LANGID AFXAPI AfxGetResourceLanguage();
