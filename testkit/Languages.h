/// @file
/// The resources of a module in its languages: the same texts, with the same placeholders, and the
/// same dialogs, in which each text has room.
///
///     EXPECT_LE(21, CompareLanguages(::GetModuleHandle(nullptr), kJapanese, kEnglish));
#pragma once

#include "testkit/Failure.h"
#include "testkit/Window.h"

#include "afxstr.h"

#include <map>
#include <string>
#include <vector>

namespace testkit {

/// The library's own languages.
///@{
constexpr LANGID kJapanese = MAKELANGID(LANG_JAPANESE, SUBLANG_DEFAULT);
constexpr LANGID kEnglish = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
///@}

/// Fails for each text of the string table that one language lacks or fills with other placeholders
/// ("%d", "%1") or in another order, each dialog whose windows are not alike but for texts and places,
/// each text of a dialog that is clipped in either language, and for menus, which are not compared.
/// @return how many texts and dialogs were compared, so that a test notices that there are some
int CompareLanguages(HMODULE hModule, LANGID first, LANGID second, const Place& place = {});

/// All texts of a module's string table in a language, by number.
std::map<UINT, CString> StringsOf(HMODULE hModule, LANGID language);

/// A dialog template of a module as a window that is not shown.
class TemplateWindow {
public:
    /// Fails if the module does not have the template in that language, and is NULL then.
    TemplateWindow(HMODULE hModule, WORD nName, LANGID language, const Place& place = {});
    ~TemplateWindow();
    TemplateWindow(const TemplateWindow&) = delete;
    TemplateWindow& operator=(const TemplateWindow&) = delete;

    /// The dialog; its controls are created, nothing has initialised them.
    operator HWND() const { return m_hWnd; }

    /// Whether its title has room beside the "OK" of the device's title bar.
    bool TitleFits() const;

    /// The dialog and its controls, a line each: class, number, style, font.
    /// @param bDesign also texts, and places in dialog units
    std::string Describe(bool bDesign) const;

private:
    HWND m_hOwner = nullptr; ///< Pages are children.
    HWND m_hWnd = nullptr;
};

} // namespace testkit
