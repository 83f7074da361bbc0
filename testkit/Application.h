/// @file
/// What a test program needs to open windows of the framework in its own process.
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

#include "afxwin.h"

#include <functional>
#include <vector>

namespace testkit {

/// The application object of a test program that has none of its own, at namespace scope in one
/// source: `testkit::Application theApp;`. The framework is ready to use from then on.
class Application : public CWinApp {
public:
    /// @param pszName its name, for the captions of message boxes; null takes the program's
    explicit Application(LPCTSTR pszName = nullptr);

    /// Hands the text to the MessageRecorder, or shows a box if there is none.
    int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt) override;
};

/// While it exists, what AfxMessageBox would show is kept here and answered at once. It needs an
/// Application as application object, and fails without. The last one made is the one that keeps.
class MessageRecorder {
public:
    /// @param nAnswer the button that answers, IDOK and the like
    explicit MessageRecorder(int nAnswer = IDOK, const Place& place = {});
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    std::vector<CString> m_prompts; ///< The texts, in their order.

private:
    friend class Application;

    int m_nAnswer;
    MessageRecorder* m_pOuter;
};

/// A top-level window at (10, 40), as an owner of dialogs and to try controls in.
class Frame : public CWnd {
public:
    /// Created, and active if it is visible.
    explicit Frame(CSize size = {200, 200}, DWORD dwStyle = WS_POPUP | WS_VISIBLE);
    ~Frame() override;
};

/// Handles what is in the thread's queue, as the framework's message loop does, and returns.
void Pump();

/// Handles messages until the condition holds. @return false if the time is over before
bool PumpUntil(const std::function<bool()>& condition, DWORD nMilliseconds = 3000);

/// The text of a window of this process.
CString TextOf(const CWnd& wnd);

} // namespace testkit
