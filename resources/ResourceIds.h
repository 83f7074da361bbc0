/// @file
/// Identifiers of the library's own resources. Applications choose theirs outside these
/// ranges, or deliberately the same to replace a text: their resources are searched first.
#pragma once

// String table
/// A text of the library: captions, headings and questions of its dialogs.
///@{
#define IDS_FK_ERROR 1500
#define IDS_FK_WARNING 1501
#define IDS_FK_BLANK 1502
#define IDS_FK_INFORMATION 1503
#define IDS_FK_ROOT 1504
#define IDS_FK_FILE_NAME 1510
#define IDS_FK_DATE_MODIFIED 1511
#define IDS_FK_SIZE 1512
#define IDS_FK_OPEN_FILE 1513
#define IDS_FK_SAVE_AS 1514
#define IDS_FK_CREATE_NEW 1515
#define IDS_FK_ASK_OVERWRITE 1516
#define IDS_FK_NAME_CHARACTER 1517
#define IDS_FK_NAME_ENDING 1518
#define IDS_FK_NAME_OF_DEVICE 1519
///@}

// Soft input panel
/// A label of the panel's keys. In the framework's range, which applications leave alone.
///@{
#define IDS_FK_PANEL_NEXT 0xEF80
#define IDS_FK_PANEL_SPACE 0xEF81
#define IDS_FK_PANEL_KANA 0xEF82
#define IDS_FK_PANEL_KATAKANA 0xEF83
#define IDS_FK_PANEL_LETTERS 0xEF84
#define IDS_FK_PANEL_BACKSPACE 0xEF85
#define IDS_FK_PANEL_ENTER 0xEF86
#define IDS_FK_PANEL_SHIFT 0xEF87
///@}

// Input dialog
/// The input dialog's template and its controls.
///@{
#define IDD_FK_INPUT 1070
#define IDC_FK_INPUT_MESSAGE 1065
#define IDC_FK_INPUT_VALUE 1066
///@}

// Result dialog
/// The result dialog's template and its controls.
///@{
#define IDD_FK_RESULT 140
#define IDC_FK_RESULT_LINES 1077
#define IDC_FK_RESULT_MESSAGE 1078
///@}

// Member selection dialog
/// The member selection dialog's template and its controls.
///@{
#define IDD_FK_SELECT_MEMBER 134
#define IDC_FK_MEMBER_AVAILABLE 1002
#define IDC_FK_MEMBER_ADD 1003
#define IDC_FK_MEMBER_DELETE 1004
#define IDC_FK_MEMBER_CURRENT 1006
#define IDC_FK_MEMBER_UP 1008
#define IDC_FK_MEMBER_DOWN 1009
///@}

// Button menu dialog
/// The button menu's template, and the range of its buttons' identifiers.
///@{
#define IDD_FK_BUTTON_MENU 141
#define IDC_FK_MENU_FIRST 5100
#define IDC_FK_MENU_LAST 5120
///@}

// File selection dialog
/// The file selection dialog's template and its controls.
///@{
#define IDD_FK_FILE_SELECT 1150
#define IDC_FK_FILE_LIST 1151
#define IDC_FK_FILE_NAME 1152
#define IDC_FK_FILE_BROWSE 1153
#define IDC_FK_FILE_FOLDER 1154
#define IDC_FK_FILE_EXTENSION 1155
#define IDC_FK_FILE_NAME_LABEL 1156
#define IDC_FK_FILE_EXTENSION_LABEL 1157
///@}

// Folder browse dialog
/// The folder dialog's template and its tree.
///@{
#define IDD_FK_BROWSE_FOLDER 1120
#define IDC_FK_FOLDER_TREE 1100
///@}
