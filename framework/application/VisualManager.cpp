#include "afxcontrolbars.h"

IMPLEMENT_DYNCREATE(CMFCVisualManager, CObject)
IMPLEMENT_DYNCREATE(CMFCVisualManagerWindows, CMFCVisualManager)
IMPLEMENT_DYNAMIC(CWinAppEx, CWinApp)
