// Dialog templates as they lie in resources.
#pragma once

#include "afxwin.h"

#include <vector>

namespace fieldkit::detail {

/// A template with those style bits taken out that the framework itself takes care of:
/// WS_VISIBLE, and the OK button of the title bar, which desktop Windows does not know.
class CDialogTemplateCopy {
public:
    explicit CDialogTemplateCopy(LPCDLGTEMPLATE pTemplate);

    /// FALSE if the memory does not hold a template.
    BOOL IsValid() const { return !m_bytes.empty(); }
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data()); }
    BOOL WasVisible() const { return m_bVisible; }
    BOOL HasCaptionOkButton() const { return m_bOkButton; }

private:
    std::vector<BYTE> m_bytes;
    BOOL m_bVisible = FALSE;
    BOOL m_bOkButton = FALSE;
};

} // namespace fieldkit::detail
