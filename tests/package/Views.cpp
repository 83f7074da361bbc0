// What the debugger is to show: one variable of each kind, and stand-ins for the windows that there
// are none of natively.
#include <afxcoll.h>
#include <afxtempl.h>
#include <atltypes.h>

#include "geometry/Vector.h"
#include "survey/Coordinate.h"

#include <algorithm>
#include <cwchar>

class CWnd : public CObject {
public:
    void* m_hWnd = nullptr;
    unsigned m_nFlags = 0;
};

class CNamedDlg : public CWnd {
public:
    CString m_strName = L"K12";
};

class CPointDlg : public CNamedDlg {
public:
    CCoordinate m_point{1, 2, 3, 3};
};

extern "C" int InternalGetWindowText(void* hWnd, wchar_t* pText, int nRoom) {
    return std::swprintf(pText, static_cast<std::size_t>(nRoom), L"window %d", hWnd != nullptr);
}

static int Stop() {
    return 0;
}

int main() {
    const CString text(L"測点 K12"), empty, shared = text;
    const CStringA narrow("plain");
    CArray<CVector> corners;
    corners.Add(CVector(0.5, -2));
    corners.Add(CVector(1e7, 0));
    CStringList history;
    history.AddTail(text);
    history.AddTail(L"K13");
    CMap<CString, LPCTSTR, CCoordinate, const CCoordinate&> points;
    points[L"K1"] = CCoordinate(10.25, -352.001, 0, 1);
    points[L"K2"] = CCoordinate();
    CTypedPtrArray<CPtrArray, CVector*> pointers;
    pointers.Add(nullptr);
    const CMapStringToString none;
    const CRect field(0, 26, 240, 294);
    const CTime noon(1700000000);
    const CTimeSpan shift(-90061);
    CPointDlg dialog;
    CWnd* const pWindow = &dialog;
    dialog.m_hWnd = reinterpret_cast<void*>(0x50042);
    const CPointDlg closed;
    // Not yet made, or gone.
    alignas(CString) unsigned char memory[sizeof(CString)];
    std::fill(std::begin(memory), std::end(memory), static_cast<unsigned char>(0xA5));
    auto* const pGarbage = reinterpret_cast<CString*>(memory);
    return Stop() + (pGarbage == nullptr && pWindow == nullptr);
}
