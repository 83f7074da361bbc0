#include "DialogTemplate.h"

#include <cstring>

using namespace fieldkit::detail;

namespace {

// Layout of both forms of a template; all parts are 16-bit words, items start on 4 bytes.
constexpr WORD kExtendedMark = 0xFFFF;
constexpr WORD kOrdinalMark = 0xFFFF;

/// Walks over a template, word by word.
class CTemplateWalker {
public:
    explicit CTemplateWalker(const void* p) : m_p(static_cast<const WORD*>(p)) {}

    const WORD* Position() const { return m_p; }
    void SkipWords(int n) { m_p += n; }
    WORD Word() { return *m_p++; }
    /// A name: nothing, a number behind the mark, or a text.
    void SkipName() {
        if (*m_p == kOrdinalMark) {
            m_p += 2;
            return;
        }
        while (*m_p++ != 0) {
        }
    }
    void SkipText() {
        while (*m_p++ != 0) {
        }
    }
    void SkipBytes(int n) { m_p += (n + 1) / 2; }
    void AlignToDword() {
        m_p = reinterpret_cast<const WORD*>((reinterpret_cast<UINT_PTR>(m_p) + 3) & ~UINT_PTR{3});
    }

private:
    const WORD* m_p;
};

bool IsExtended(const WORD* p) {
    return p[0] == 1 && p[1] == kExtendedMark;
}

/// Where the two style words stand.
DWORD* StyleOf(BYTE* p) {
    return reinterpret_cast<DWORD*>(IsExtended(reinterpret_cast<WORD*>(p)) ? p + 12 : p);
}
DWORD* ExStyleOf(BYTE* p) {
    return reinterpret_cast<DWORD*>(IsExtended(reinterpret_cast<WORD*>(p)) ? p + 8 : p + 4);
}

size_t TemplateSize(const void* pTemplate) {
    CTemplateWalker walker(pTemplate);
    const bool bExtended = IsExtended(walker.Position());
    DWORD dwStyle;
    std::memcpy(&dwStyle, reinterpret_cast<const BYTE*>(pTemplate) + (bExtended ? 12 : 0), sizeof dwStyle);
    walker.SkipWords(bExtended ? 8 : 4);
    const WORD nItems = walker.Word();
    walker.SkipWords(4); // x, y, cx, cy
    walker.SkipName();   // menu
    walker.SkipName();   // window class
    walker.SkipText();   // title
    if (dwStyle & DS_SETFONT) {
        walker.SkipWords(bExtended ? 3 : 1); // size; weight and slant with character set
        walker.SkipText();
    }
    for (WORD i = 0; i < nItems; ++i) {
        walker.AlignToDword();
        walker.SkipWords(bExtended ? 12 : 9);
        walker.SkipName();               // class
        walker.SkipName();               // text
        walker.SkipBytes(walker.Word()); // creation data
    }
    return static_cast<size_t>(reinterpret_cast<const BYTE*>(walker.Position()) -
                               static_cast<const BYTE*>(pTemplate));
}

} // namespace

CDialogTemplateCopy::CDialogTemplateCopy(LPCDLGTEMPLATE pTemplate) {
    if (pTemplate == nullptr)
        return;
    const auto* pFirst = reinterpret_cast<const BYTE*>(pTemplate);
    m_bytes.assign(pFirst, pFirst + TemplateSize(pTemplate));
    DWORD* pStyle = StyleOf(m_bytes.data());
    DWORD* pExStyle = ExStyleOf(m_bytes.data());
    m_bVisible = (*pStyle & WS_VISIBLE) != 0;
    m_bOkButton = (*pExStyle & WS_EX_CAPTIONOKBTN) != 0;
    *pStyle &= ~static_cast<DWORD>(WS_VISIBLE);
    *pExStyle &= ~WS_EX_CAPTIONOKBTN;
}
