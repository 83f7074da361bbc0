// A window program: its exit code tells that the library's entry point and start-up ran.
#include <afxwin.h>

class CWindowApp : public CWinApp {
    BOOL InitInstance() override { return FALSE; }
    int ExitInstance() override { return m_hInstance == ::GetModuleHandle(nullptr) ? 42 : 1; }
} theApp;
