//{{NO_DEPENDENCIES}}
// RangeSketch.rc
//
#define IDM_ABOUTBOX                    0x0010
#define IDD_ABOUTBOX                    100
#define IDS_ABOUTBOX                    101
#define IDD_SKETCH                      102
#define IDS_AREA                        103
#define IDS_LENGTH                      104
#define IDS_NO_AREA                     105
#define IDR_MAINFRAME                   128
#define IDB_PAPER                       129
#define IDC_SKETCH                      1000
#define IDC_LENGTH                      1001
#define IDC_AREA                        1002
#define IDC_COMPUTE                     1003
#define IDC_CLEAR                       1004
#define IDC_SCALE                       1006
