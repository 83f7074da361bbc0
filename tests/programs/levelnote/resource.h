//{{NO_DEPENDENCIES}}
// LevelNote.rc
//
#define IDM_ABOUTBOX                    0x0010
#define IDD_ABOUTBOX                    100
#define IDS_ABOUTBOX                    101
#define IDD_LEVELNOTE_DIALOG            102
#define IDS_LINE_FORMAT                 103
#define IDS_CLOSED                      104
#define IDS_MISCLOSURE                  105
#define IDS_ASK_CLEAR                   106
#define IDR_MAINFRAME                   128
#define IDR_STATION_MENU                129
#define IDR_ACCELERATOR                 130
#define IDC_START                       1000
#define IDC_BACKSIGHT                   1001
#define IDC_FORESIGHT                   1002
#define IDC_STATIONS                    1003
#define IDC_ADD                         1004
#define IDC_RESULT                      1005
#define IDC_UNIT_M                      1006
#define IDC_UNIT_MM                     1007
#define IDC_KNOWN                       1008
#define IDC_USE_KNOWN                   1009
#define ID_STATION_REMOVE               32771
#define ID_STATION_CLEAR                32772
#define ID_STATION_COPY                 32773

// Next numbers
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        131
#define _APS_NEXT_COMMAND_VALUE         32774
#define _APS_NEXT_CONTROL_VALUE         1010
#define _APS_NEXT_SYMED_VALUE           101
#endif
#endif
