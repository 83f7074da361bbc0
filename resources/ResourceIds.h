/// @file
/// Identifiers of the library's own resources. Applications choose theirs outside these
/// ranges, or deliberately the same to replace a text: their resources are searched first.
#pragma once

// String table
#define IDS_FK_ERROR 1500
#define IDS_FK_WARNING 1501
#define IDS_FK_BLANK 1502
#define IDS_FK_INFORMATION 1503
#define IDS_FK_FILE_NAME 1510
#define IDS_FK_DATE_MODIFIED 1511
#define IDS_FK_SIZE 1512
#define IDS_FK_OPEN_FILE 1513
#define IDS_FK_SAVE_AS 1514
#define IDS_FK_CREATE_NEW 1515
#define IDS_FK_ASK_OVERWRITE 1516

// Input dialog
#define IDD_FK_INPUT 1070
#define IDC_FK_INPUT_MESSAGE 1065
#define IDC_FK_INPUT_VALUE 1066

// Result dialog
#define IDD_FK_RESULT 140
#define IDC_FK_RESULT_LINES 1077
#define IDC_FK_RESULT_MESSAGE 1078
