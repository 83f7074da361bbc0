//{{NO_DEPENDENCIES}}
// StationSetup.rc
//
#define IDS_SHEET_TITLE                 101
#define IDS_ALREADY_RUNNING             102
#define IDS_SUMMARY                     106
#define IDS_TIP_PRESSURE                107
#define IDS_TIP_PRISM                   108
#define IDS_TIP_OK                      109
#define IDR_MAINFRAME                   128
#define IDD_INSTRUMENT                  129
#define IDD_OUTPUT                      131
#define IDC_MODEL                       1000
#define IDC_PRISM                       1002
#define IDC_CONSTANT                    1003
#define IDC_PRESSURE                    1007
#define IDC_PRESSURE_SPIN               1008
#define IDC_COLUMNS                     1014
#define IDC_SEP_COMMA                   1015
#define IDC_SEP_TAB                     1016
#define IDC_SEP_SEMICOLON               1017
#define IDC_SERIAL                      1019

// Next numbers
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        132
#define _APS_NEXT_COMMAND_VALUE         32771
#define _APS_NEXT_CONTROL_VALUE         1020
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
