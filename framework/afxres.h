/// @file
/// The standard identifiers of resource scripts and commands. Only macros: the resource
/// compiler reads this too, and gets the system's names with it.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXRES_H__

#ifdef RC_INVOKED
#include <windows.h>
#endif

/// Identifier of controls that are never looked for. The system's own headers have it as a
/// number without a sign, which a template cannot hold.
#undef IDC_STATIC
#define IDC_STATIC (-1)

/// The version resource of a module.
#ifndef VS_VERSION_INFO
#define VS_VERSION_INFO 1
#endif

/// Commands of the menu "File".
///@{
#define ID_FILE_NEW 0xE100
#define ID_FILE_OPEN 0xE101
#define ID_FILE_CLOSE 0xE102
#define ID_FILE_SAVE 0xE103
#define ID_FILE_SAVE_AS 0xE104
#define ID_FILE_PAGE_SETUP 0xE105
#define ID_FILE_PRINT_SETUP 0xE106
#define ID_FILE_PRINT 0xE107
#define ID_FILE_PRINT_DIRECT 0xE108
#define ID_FILE_PRINT_PREVIEW 0xE109
#define ID_FILE_UPDATE 0xE10A
#define ID_FILE_SAVE_COPY_AS 0xE10B
#define ID_FILE_SEND_MAIL 0xE10C
#define ID_FILE_NEW_FRAME 0xE10D
#define ID_FILE_MRU_FIRST 0xE110
#define ID_FILE_MRU_FILE1 0xE110
#define ID_FILE_MRU_FILE2 0xE111
#define ID_FILE_MRU_FILE3 0xE112
#define ID_FILE_MRU_FILE4 0xE113
#define ID_FILE_MRU_FILE5 0xE114
#define ID_FILE_MRU_FILE6 0xE115
#define ID_FILE_MRU_FILE7 0xE116
#define ID_FILE_MRU_FILE8 0xE117
#define ID_FILE_MRU_FILE9 0xE118
#define ID_FILE_MRU_FILE10 0xE119
#define ID_FILE_MRU_FILE11 0xE11A
#define ID_FILE_MRU_FILE12 0xE11B
#define ID_FILE_MRU_FILE13 0xE11C
#define ID_FILE_MRU_FILE14 0xE11D
#define ID_FILE_MRU_FILE15 0xE11E
#define ID_FILE_MRU_FILE16 0xE11F
#define ID_FILE_MRU_LAST 0xE11F
///@}

/// Commands of the menu "Edit".
///@{
#define ID_EDIT_CLEAR 0xE120
#define ID_EDIT_CLEAR_ALL 0xE121
#define ID_EDIT_COPY 0xE122
#define ID_EDIT_CUT 0xE123
#define ID_EDIT_FIND 0xE124
#define ID_EDIT_PASTE 0xE125
#define ID_EDIT_PASTE_LINK 0xE126
#define ID_EDIT_PASTE_SPECIAL 0xE127
#define ID_EDIT_REPEAT 0xE128
#define ID_EDIT_REPLACE 0xE129
#define ID_EDIT_SELECT_ALL 0xE12A
#define ID_EDIT_UNDO 0xE12B
#define ID_EDIT_REDO 0xE12C
///@}

/// Commands of the menu "Window".
///@{
#define ID_WINDOW_NEW 0xE130
#define ID_WINDOW_ARRANGE 0xE131
#define ID_WINDOW_CASCADE 0xE132
#define ID_WINDOW_TILE_HORZ 0xE133
#define ID_WINDOW_TILE_VERT 0xE134
#define ID_WINDOW_SPLIT 0xE135
///@}

/// Commands for the application and its help.
///@{
#define ID_APP_ABOUT 0xE140
#define ID_APP_EXIT 0xE141
#define ID_HELP_INDEX 0xE142
#define ID_HELP_FINDER 0xE143
#define ID_HELP_USING 0xE144
#define ID_CONTEXT_HELP 0xE145
#define ID_HELP 0xE146
#define ID_DEFAULT_HELP 0xE147
///@}

/// Further commands.
///@{
#define ID_NEXT_PANE 0xE150
#define ID_PREV_PANE 0xE151
#define ID_FORMAT_FONT 0xE160
#define ID_VIEW_TOOLBAR 0xE800
#define ID_VIEW_STATUS_BAR 0xE801
#define ID_VIEW_REBAR 0xE804
#define ID_VIEW_AUTOARRANGE 0xE805
#define ID_VIEW_SMALLICON 0xE810
#define ID_VIEW_LARGEICON 0xE811
#define ID_VIEW_LIST 0xE812
#define ID_VIEW_DETAILS 0xE813
#define ID_VIEW_LINEUP 0xE814
#define ID_VIEW_BYNAME 0xE815
#define ID_RECORD_FIRST 0xE900
#define ID_RECORD_LAST 0xE901
#define ID_RECORD_NEXT 0xE902
#define ID_RECORD_PREV 0xE903
///@}

/// Panes of a status bar, and the gap between buttons of a toolbar.
///@{
#define ID_SEPARATOR 0
#define ID_INDICATOR_EXT 0xE700
#define ID_INDICATOR_CAPS 0xE701
#define ID_INDICATOR_NUM 0xE702
#define ID_INDICATOR_SCRL 0xE703
#define ID_INDICATOR_OVR 0xE704
#define ID_INDICATOR_REC 0xE705
#define ID_INDICATOR_KANA 0xE706
///@}

/// Identifiers of bars as child windows.
///@{
#define AFX_IDW_TOOLBAR 0xE800
#define AFX_IDW_STATUS_BAR 0xE801
#define AFX_IDW_PREVIEW_BAR 0xE802
#define AFX_IDW_RESIZE_BAR 0xE803
#define AFX_IDW_REBAR 0xE804
#define AFX_IDW_DIALOGBAR 0xE805
///@}

/// Identifiers of a property sheet's tabs and further buttons; OK and Cancel are IDOK and IDCANCEL.
///@{
#define AFX_IDC_TAB_CONTROL 0x3020
#define ID_APPLY_NOW 0x3021
#define ID_WIZBACK 0x3023
#define ID_WIZNEXT 0x3024
#define ID_WIZFINISH 0x3025
///@}

/// What is added to an identifier for its help context.
///@{
#define HID_BASE_COMMAND 0x00010000
#define HID_BASE_RESOURCE 0x00020000
#define HID_BASE_PROMPT 0x00030000
#define HID_BASE_NCAREAS 0x00040000
#define HID_BASE_CONTROL 0x00050000
#define HID_BASE_DISPATCH 0x00060000
///@}

// Strings. An application's string of the same number replaces the framework's.
/// Strings that describe the application.
///@{
#define AFX_IDS_APP_TITLE 0xE000
#define AFX_IDS_IDLEMESSAGE 0xE001
#define AFX_IDS_HELPMODEMESSAGE 0xE002
#define AFX_IDS_APP_TITLE_EMBEDDING 0xE003
#define AFX_IDS_COMPANY_NAME 0xE004
#define AFX_IDS_OBJ_TITLE_INPLACE 0xE005
#define AFX_IDS_APP_ID 0xE006
///@}

/// Strings that describe the commands of the system menu.
///@{
#define AFX_IDS_SCSIZE 0xEF00
#define AFX_IDS_SCMOVE 0xEF01
#define AFX_IDS_SCMINIMIZE 0xEF02
#define AFX_IDS_SCMAXIMIZE 0xEF03
#define AFX_IDS_SCNEXTWINDOW 0xEF04
#define AFX_IDS_SCPREVWINDOW 0xEF05
#define AFX_IDS_SCCLOSE 0xEF06
#define AFX_IDS_SCRESTORE 0xEF12
#define AFX_IDS_SCTASKLIST 0xEF13
///@}

/// Titles and words of dialogs.
///@{
#define AFX_IDS_OPENFILE 0xF000
#define AFX_IDS_SAVEFILE 0xF001
#define AFX_IDS_ALLFILTER 0xF002
#define AFX_IDS_UNTITLED 0xF003
#define AFX_IDS_SAVEFILECOPY 0xF004
#define AFX_IDS_PREVIEW_CLOSE 0xF005
#define AFX_IDS_UNNAMED_FILE 0xF006
#define AFX_IDS_ABOUT 0xF010
#define AFX_IDS_HIDE 0xF011
///@}

/// Texts of exceptions without a cause of their own.
///@{
#define AFX_IDP_NO_ERROR_AVAILABLE 0xF020
#define AFX_IDS_NOT_SUPPORTED_EXCEPTION 0xF021
#define AFX_IDS_RESOURCE_EXCEPTION 0xF022
#define AFX_IDS_MEMORY_EXCEPTION 0xF023
#define AFX_IDS_USER_EXCEPTION 0xF024
#define AFX_IDS_INVALID_ARG_EXCEPTION 0xF025
///@}

/// Texts of CFileException's causes, in the order of the causes.
///@{
#define AFX_IDP_FILE_NONE 0xF030
#define AFX_IDP_FILE_GENERIC 0xF031
#define AFX_IDP_FILE_NOT_FOUND 0xF032
#define AFX_IDP_FILE_BAD_PATH 0xF033
#define AFX_IDP_FILE_TOO_MANY_OPEN 0xF034
#define AFX_IDP_FILE_ACCESS_DENIED 0xF035
#define AFX_IDP_FILE_INVALID_FILE 0xF036
#define AFX_IDP_FILE_REMOVE_CURRENT 0xF037
#define AFX_IDP_FILE_DIR_FULL 0xF038
#define AFX_IDP_FILE_BAD_SEEK 0xF039
#define AFX_IDP_FILE_HARD_IO 0xF03A
#define AFX_IDP_FILE_SHARING 0xF03B
#define AFX_IDP_FILE_LOCKING 0xF03C
#define AFX_IDP_FILE_DISKFULL 0xF03D
#define AFX_IDP_FILE_EOF 0xF03E
///@}

/// Texts of CArchiveException's causes, in the order of the causes.
///@{
#define AFX_IDP_ARCH_NONE 0xF040
#define AFX_IDP_ARCH_GENERIC 0xF041
#define AFX_IDP_ARCH_READONLY 0xF042
#define AFX_IDP_ARCH_ENDOFFILE 0xF043
#define AFX_IDP_ARCH_WRITEONLY 0xF044
#define AFX_IDP_ARCH_BADINDEX 0xF045
#define AFX_IDP_ARCH_BADCLASS 0xF046
#define AFX_IDP_ARCH_BADSCHEMA 0xF047
#define AFX_IDP_ARCH_BUFFERFULL 0xF048
///@}

/// What an application tells its user.
///@{
#define AFX_IDP_INVALID_FILENAME 0xF100
#define AFX_IDP_FAILED_TO_OPEN_DOC 0xF101
#define AFX_IDP_FAILED_TO_SAVE_DOC 0xF102
#define AFX_IDP_ASK_TO_SAVE 0xF103
#define AFX_IDP_FAILED_TO_CREATE_DOC 0xF104
#define AFX_IDP_FILE_TOO_LARGE 0xF105
#define AFX_IDP_FAILED_TO_START_PRINT 0xF106
#define AFX_IDP_FAILED_TO_LAUNCH_HELP 0xF107
#define AFX_IDP_INTERNAL_FAILURE 0xF108
#define AFX_IDP_COMMAND_FAILURE 0xF109
#define AFX_IDP_FAILED_MEMORY_ALLOC 0xF10A
#define AFX_IDP_UNREG_DONE 0xF10B
#define AFX_IDP_UNREG_FAILURE 0xF10C
#define AFX_IDP_DLL_LOAD_FAILED 0xF10D
#define AFX_IDP_DLL_BAD_VERSION 0xF10E
///@}

/// Why data exchange refused what stands in a field. %1 and %2 are the numbers of the rule.
///@{
#define AFX_IDP_PARSE_INT 0xF110
#define AFX_IDP_PARSE_REAL 0xF111
#define AFX_IDP_PARSE_INT_RANGE 0xF112
#define AFX_IDP_PARSE_REAL_RANGE 0xF113
#define AFX_IDP_PARSE_STRING_SIZE 0xF114
#define AFX_IDP_PARSE_BYTE 0xF116
#define AFX_IDP_PARSE_UINT 0xF117
#define AFX_IDP_PARSE_DATETIME 0xF118
#define AFX_IDP_PARSE_CURRENCY 0xF119
#define AFX_IDP_PARSE_GUID 0xF11A
#define AFX_IDP_PARSE_TIME 0xF11B
#define AFX_IDP_PARSE_DATE 0xF11C
///@}

/// What went wrong with a document's file; %1 is its name.
///@{
#define AFX_IDP_FAILED_INVALID_FORMAT 0xF120
#define AFX_IDP_FAILED_INVALID_PATH 0xF121
#define AFX_IDP_FAILED_DISK_FULL 0xF122
#define AFX_IDP_FAILED_ACCESS_READ 0xF123
#define AFX_IDP_FAILED_ACCESS_WRITE 0xF124
#define AFX_IDP_FAILED_IO_ERROR_READ 0xF125
#define AFX_IDP_FAILED_IO_ERROR_WRITE 0xF126
///@}
