// Numbers that the dialog's template and its code share.
#pragma once

#define IDD_FIRST 100
#define IDC_EAST 101
#define IDC_NORTH 102
#define IDC_COMPUTE 103
#define IDC_DISTANCE 104
