/// @file
/// The device's companion library: soft input panel, shared settings and icons,
/// and a few helpers for numbers and file names.
///
/// Natively (no window system) the settings, the numbers and the names are available.
#pragma once

/// @def TESUVO_API
/// Marks a function of the library: an undecorated C name, exported while Tesuvo.dll itself is
/// built and imported by everybody else.

#include <afx.h>

#if defined(FIELDKIT_STATIC) || !defined(_WIN32)
#define TESUVO_API extern "C"
#elif defined(TESUVO_EXPORTS)
#define TESUVO_API extern "C" __declspec(dllexport)
#else
#define TESUVO_API extern "C" __declspec(dllimport)
#endif

/// Numbers of the settings that all applications of the device share, for TVGetCommonRegInt().
enum TVSetting : int {
    TVSETTING_DECIMALS = 1280,        ///< Decimals of coordinate text minus one.
    TVSETTING_SYSTEM_KEYBOARD = 1312, ///< Whether the system's touch keyboard is the panel.
};

/// Reads an integer of the settings that all applications of the device share.
///
/// TVSETTING_DECIMALS is the number of decimals of coordinate text minus one, 0 (one decimal) to 4
/// (five decimals), default 2. TVSETTING_SYSTEM_KEYBOARD is 1 if the touch keyboard of the system has
/// been chosen and there is one, otherwise 0; see TVUseSystemKeyboard().
///
/// The store is the registry key `HKEY_CURRENT_USER\Software\Tesuvo\Common`, one
/// REG_DWORD a setting, named by the setting's number in decimal ("1280"). The
/// library sets none: a settings page writes the value, and the next call sees it.
/// Natively the environment variable `TESUVO_SETTING_<id>` takes its place.
///
/// @param nId  number of the setting
/// @return the stored value; the default if it is absent, of another type or out
///         of its range; 0 for an unknown setting
TESUVO_API int TVGetCommonRegInt(int nId);

/// Reads a decimal number, in the same way whatever the user's locale is.
///
/// Blanks around it, one sign, digits with an optional point, commas between
/// complete groups of three digits, and an exponent are accepted, in half width
/// and in full width. The result is the double nearest to the text. A number
/// too large for a double, or too close to zero for any but zero, is refused.
///
/// @param pText   the text
/// @param pValue  receives the number; written on success only
/// @return TRUE on success; FALSE if the whole text is not a number or an
///         argument is null
TESUVO_API BOOL TVString2Double(const CString* pText, double* pValue);

/// Replaces a name by the next numbered one: the digits (0 to 9) at its end are
/// counted up by one and keep their leading zeros, so P009 becomes P010 and P999
/// becomes P1000. A name without a number at its end gets a 1: P becomes P1.
///
/// The number may have any length.
///
/// @param strName  the name, without folder and extension; replaced
TESUVO_API void TVIncrementName(CString& strName);

/// Splits a path into its parts, as text: the file system is not asked.
///
/// Both kinds of slash separate. The folder comes without a slash at its end, unless
/// it is the root of a drive. The extension comes without its dot. Dots at the end
/// are left out, since the file system ignores them; dots at the beginning belong
/// to the name.
///
/// @param pszPath     the path; null counts as empty
/// @param pFolder     receives drive and folder, may be null
/// @param pName       receives the name without extension, may be null
/// @param pExtension  receives the extension, may be null
TESUVO_API void TVResolveFilePath(LPCTSTR pszPath, CString* pFolder, CString* pName, CString* pExtension);

#ifdef _WIN32

/// Shows the soft input panel of the calling thread at the bottom of the work area,
/// above the bar with its switch. Neither focus nor activation changes; the keys
/// reach whatever has the focus as real input. A panel already shown changes mode.
///
/// The thread's active window is told with WM_SETTINGCHANGE (wParam SPI_SETSIPINFO)
/// when the panel comes, goes or changes its size. The panel goes by itself when the
/// window that had the focus is destroyed.
///
/// Call it from a thread with a message loop. The library stays loaded from the
/// first call to the end of the process.
///
/// @param nMode  0 letters, 1 digits, 2 kana; any other value acts as 0
TESUVO_API void TVShowSIP(int nMode);

/// Hides the calling thread's soft input panel. Does nothing if none is shown.
///
/// It disappears when the thread's message loop is next idle and the pen is up: if
/// TVShowSIP() follows before, as on the way from field to field, it stays.
TESUVO_API void TVCloseSIP();

/// Chooses the touch keyboard of Windows instead of the panel, for all applications of the user:
/// TVShowSIP() and TVCloseSIP() show and hide it from the next call on, and dialogs make room for it as
/// for the panel, as soon as it is on the screen. It has its own keys for all modes. Where it is not to
/// be had, then or later, the panel goes on.
///
/// It is the setting TVSETTING_SYSTEM_KEYBOARD, kept with the others, and not a function of the library:
/// a program that calls it runs with the device's own library, too, which always has the panel.
///
/// @param bUse TRUE for the system's keyboard, FALSE for the panel
/// @return TRUE if the system's keyboard is used from now on; FALSE if there is none, the setting cannot
///         be stored, or bUse is FALSE
inline BOOL TVUseSystemKeyboard(BOOL bUse) {
    const DWORD dwUse = bUse ? 1 : 0;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\Tesuvo\\Common", L"1312", REG_DWORD, &dwUse,
                      sizeof dwUse);
    return TVGetCommonRegInt(TVSETTING_SYSTEM_KEYBOARD) != 0;
}

/// Numbers of the device's shared icons, for TVGetCommonIcon().
enum TVIcon : int {
    TVICON_FOLDER_BUTTON = 2,
    TVICON_UP = 4,
    TVICON_DOWN = 5,
    TVICON_MENU_ENTRY = 26,
    TVICON_FOLDER = 31,
    TVICON_CARD_FOLDER = 32, ///< A folder on a storage card.
    TVICON_INFORMATION = 39,
    TVICON_DEVICE = 42,
};

/// The device's shared icon of the given number, 16 x 16 pixels at 96 pixels per inch and as large
/// to the eye at other resolutions: that of the thread's active window, or of the primary screen.
///
/// @param nIndex  one of TVIcon
/// @return a handle that all callers share, the same for each call at a resolution, which must
///         not be destroyed; NULL for an unknown number
TESUVO_API HICON TVGetCommonIcon(int nIndex);

/// Whether a file of that name exists. A folder or a device is not a file.
///
/// Paths may be relative and may be longer than 260 characters.
///
/// @param pszPath  the path; null and malformed ones give FALSE
TESUVO_API BOOL TVCheckFileExist(LPCTSTR pszPath);

#endif
