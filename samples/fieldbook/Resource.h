// Identifiers of the application's resources. The library's own lie below 2000.
#pragma once

#define IDD_MAIN 2001
#define IDD_POINT_LIST 2002

// Main dialog
#define IDC_FILE_NAME 2100
#define IDC_POINT_COUNT 2101
#define IDC_LINES 2102
#define IDC_LINE_CIRCLE 2103
#define IDC_CIRCLES 2104
#define IDC_ARC_CENTRE 2105
#define IDC_TANGENTS 2106
#define IDC_POINT_LIST 2107

// Point list dialog
#define IDC_POINTS 2110
#define IDC_HEIGHT 2111

// Titles of the computations, the same as on their buttons
#define IDS_LINES 2200
#define IDS_LINE_CIRCLE 2201
#define IDS_CIRCLES 2202
#define IDS_ARC_CENTRE 2203
#define IDS_TANGENTS 2204

// What the user is asked for
#define IDS_LINE1_START 2210
#define IDS_LINE1_END 2211
#define IDS_LINE2_START 2212
#define IDS_LINE2_END 2213
#define IDS_LINE_START 2214
#define IDS_LINE_END 2215
#define IDS_CIRCLE_CENTRE 2216
#define IDS_CIRCLE_RADIUS 2217
#define IDS_CIRCLE1_CENTRE 2218
#define IDS_CIRCLE1_RADIUS 2219
#define IDS_CIRCLE2_CENTRE 2220
#define IDS_CIRCLE2_RADIUS 2221
#define IDS_ARC_START 2222
#define IDS_ARC_END 2223
#define IDS_ARC_ANGLE 2224
#define IDS_CURVE_START 2225
#define IDS_CURVE_CENTRE 2226
#define IDS_CURVE_END 2227

// Why an answer was refused
#define IDS_UNKNOWN_POINT 2240
#define IDS_BAD_RADIUS 2241
#define IDS_BAD_ANGLE 2242

// Results
#define IDS_FOUND 2250
#define IDS_NOT_FOUND 2251
#define IDS_INTERSECTION 2252
#define IDS_CENTRE 2253
#define IDS_CORNER 2254
#define IDS_RADIUS_LINE 2255
#define IDS_RADIUS_START 2256
#define IDS_RADIUS_END 2257
#define IDS_RADII_DIFFER 2258

// Why there is no result, in the order of Verdict, from SamePoint on
#define IDS_VERDICT_FIRST 2260

// Why a line of the file was left out, in the order of LineFault, from TooFewFields on
#define IDS_FAULT_FIRST 2280

// File and points
#define IDS_NOT_READ 2300
#define IDS_POINT_COUNT 2301
#define IDS_BAD_LINES_TITLE 2302
#define IDS_BAD_LINES 2303
#define IDS_BAD_LINE 2304
#define IDS_MORE_BAD_LINES 2305
#define IDS_NO_HEIGHT 2306
#define IDS_HEIGHT 2307
#define IDS_NO_FILE 2308
#define IDS_NO_JOURNAL 2309
