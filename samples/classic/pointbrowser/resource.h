//{{NO_DEPENDENCIES}}
// PointBrowser.rc
//
#define IDM_ABOUTBOX                    0x0010
#define IDD_ABOUTBOX                    100
#define IDS_ABOUTBOX                    101
#define IDD_BROWSER                     102
#define IDS_COL_NAME                    104
#define IDS_COL_EAST                    105
#define IDS_COL_NORTH                   106
#define IDS_COL_HEIGHT                  107
#define IDS_COL_DATE                    108
#define IDS_COUNT                       109
#define IDS_ASK_DELETE                  110
#define IDS_JOB_FILTER                  112
#define IDR_MAINFRAME                   128
#define IDR_MENU                        129
#define IDC_POINTS                      1000
#define IDC_COUNT                       1001
#define IDC_FIND                        1002
#define ID_POINT_DELETE                 32773
#define ID_FILE_EXPORT                  32775
#define IDC_MENU_BUTTON                 1009
