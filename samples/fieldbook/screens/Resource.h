// Identifiers of the application's resources. The library's own lie below 2000.
#pragma once

#include "plan/PlanResource.h"

#define IDD_POINT_LIST 2002
#define IDD_COMPUTE 2003
#define IDD_POLAR 2004
#define IDD_POINT_ENTRY 2005
#define IDD_JOURNAL 2006
#define IDD_COORDINATES 2007
#define IDD_ANGLES 2008
#define IDD_TOLERANCE 2009
#define IDD_NAME 2010
#define IDD_REPORT 2011
#define IDD_PICK 2012
#define IDD_MESSAGE 2013
#define IDD_PROGRESS 2014

// Computations: the buttons, in the order of the computations
#define IDC_COMPUTATION_FIRST 2101
#define IDC_LINES 2101
#define IDC_LINE_CIRCLE 2102
#define IDC_CIRCLES 2103
#define IDC_BEARINGS 2104
#define IDC_COMBINED 2105
#define IDC_FOOT 2106
#define IDC_ARC_CENTRE 2107
#define IDC_CURVE 2108
#define IDC_INVERSE 2109
#define IDC_EXTENT 2110
#define IDC_AREA 2111
#define IDC_COMPUTATION_LAST 2111
#define IDC_POLAR 2112

// Result of a computation; with IDC_MESSAGE and IDC_LEGEND
#define IDC_REPORT 2115
#define IDC_SHOW_PLAN 2116
#define IDC_KEEP 2117

// Point list dialog
#define IDC_POINTS 2120
#define IDC_LEGEND 2121
#define IDC_EDIT 2122
#define IDC_REMOVE 2123
#define IDC_UNDO 2124

// Choice of a point
#define IDC_PART 2125
#define IDC_PICK_LIST 2126
#define IDC_PICK_PLAN 2127

// Point entry dialog; IDC_NAME and IDC_MESSAGE are those of the name dialog, too
#define IDC_KIND 2130
#define IDC_NAME 2131
#define IDC_N 2132
#define IDC_E 2133
#define IDC_Z 2134
#define IDC_NO_HEIGHT 2135
#define IDC_ADD 2136
#define IDC_MESSAGE 2137
#define IDC_CODE 2138

// Angle dialog
#define IDC_COMPUTE 2139
#define IDC_FROM 2140
#define IDC_DIRECTION 2141
#define IDC_TURN 2142
#define IDC_DISTANCE 2143
#define IDC_TURN_LEFT 2144

// Journal dialog
#define IDC_JOURNAL_TREE 2150
#define IDC_JOURNAL_LINES 2151

// Pages of the settings
#define IDC_DECIMALS 2160
#define IDC_SPIN 2161
#define IDC_EXAMPLE 2162
#define IDC_WHOLE_SECONDS 2163
#define IDC_TENTHS 2164
#define IDC_TOLERANCES 2165

// Long work
#define IDC_PROGRESS 2170

// Choice of columns
#define IDC_FIRST_LINES 2171

// Titles of the computations
#define IDS_LINES 2200
#define IDS_LINE_CIRCLE 2201
#define IDS_CIRCLES 2202
#define IDS_ARC_CENTRE 2203
#define IDS_CURVE 2204
#define IDS_BEARINGS 2205
#define IDS_INVERSE 2206
#define IDS_EXTENT 2207
#define IDS_COMBINED 2208
#define IDS_FOOT 2209
#define IDS_AREA 2219

// What the user is asked for. Figures: the questions for the only one of its kind, for the first
// of two and for the second
#define IDS_LINE_FIRST 2480
#define IDS_SIGHT_FIRST 2490
#define IDS_PARALLEL_FIRST 2500
#define IDS_CIRCLE_FIRST 2510
#define IDS_FIGURE_FIRST 2520 // kinds, in the order of Figure
#define IDS_FIGURE_LAST 2523
#define IDS_FIRST_FIGURE 2525
#define IDS_SECOND_FIGURE 2526
#define IDS_ARC_START 2222
#define IDS_ARC_END 2223
#define IDS_ARC_ANGLE 2224
#define IDS_CURVE_START 2225
#define IDS_CURVE_CENTRE 2226
#define IDS_CURVE_END 2227
#define IDS_FOOT_POINT 2228
#define IDS_VERTEX 2229
#define IDS_FEW_CORNERS 2230
#define IDS_INVERSE_FROM 2232
#define IDS_INVERSE_TO 2233
#define IDS_POLAR_FROM 2234
#define IDS_POLAR_DIRECTION 2235
#define IDS_POLAR_TURN 2236
#define IDS_POLAR_TURN_LEFT 2237
#define IDS_POLAR_DISTANCE 2238

// Why an answer was refused
#define IDS_UNKNOWN_POINT 2240
#define IDS_BAD_RADIUS 2241
#define IDS_BAD_DISTANCE 2243
#define IDS_POINT_WITHOUT_NE 2244
// Why an angle was refused, in the order of AngleFault, from NoNumber on
#define IDS_ANGLE_FIRST 2245
#define IDS_ANGLE_LAST 2247

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

#define IDS_COMPUTED 2270
#define IDS_SWEEP 2271
#define IDS_ARC_LENGTH 2272
#define IDS_BULGE 2273
#define IDS_DISTANCE_LINE 2274
#define IDS_SOUTH_WEST 2275
#define IDS_NORTH_EAST 2276
#define IDS_NORTH_SOUTH 2277
#define IDS_EAST_WEST 2278
#define IDS_NEW_POINT 2279
#define IDS_LOWEST 2440
#define IDS_HIGHEST 2441
#define IDS_DELTA_N 2442
#define IDS_DELTA_E 2443
#define IDS_DELTA_Z 2444
#define IDS_SLOPE_DISTANCE 2445
#define IDS_GRADIENT 2446
#define IDS_BEHIND 2447
#define IDS_FOOT_NAME 2545
#define IDS_ALONG 2546
#define IDS_OFFSET_RIGHT 2547
#define IDS_OFFSET_LEFT 2548
#define IDS_AREA_LINE 2549
#define IDS_PERIMETER 2550
#define IDS_SIDES_CROSS 2551
#define IDS_BAD_NUMBER 2552
#define IDS_SLOPE 2357
#define IDS_NORTH_SOUTH_LINE 2358
#define IDS_CHOOSE_SOLUTION 2354
#define IDS_NEW_NAME 2355
#define IDS_KEEP_POINT 2356

// Why there is no result, in the order of Verdict, from SamePoint on
#define IDS_VERDICT_FIRST 2530
#define IDS_VERDICT_LAST 2540

// Why a line of the file was left out, in the order of LineFault, from TooFewFields on
#define IDS_FAULT_FIRST 2280
#define IDS_FAULT_LAST 2289

// Main menu: the title without and with a points file, and the entries in the order of its commands
#define IDS_TITLE 2290
#define IDS_TITLE_POINTS 2291
#define IDS_UNTITLED 2292
#define IDS_MENU_FIRST 2460
#define IDS_MENU_LAST 2467

// File menu: the title, and the entries in the order of its commands
#define IDS_FILE_MENU 2293
#define IDS_FILE_MENU_FIRST 2470
#define IDS_FILE_MENU_LAST 2475
#define IDS_NO_PREVIOUS 2299
#define IDS_ASK_SAVE 2294
#define IDS_ASK_GIVE_UP 2295
#define IDS_BACKUP_KEPT 2296
#define IDS_NO_BACKUP 2297
#define IDS_NO_NAME 2298
#define IDS_NOT_RECORDED 2400
#define IDS_ASK_REPEAT 2401
#define IDS_REPEATED 2402
#define IDS_RECOVERED 2403
#define IDS_FILE_IN_USE 2404
#define IDS_ASK_CHANGED_OUTSIDE 2405
#define IDS_POINT_NOT_WRITABLE 2406
#define IDS_ASK_CAPTION 2407
#define IDS_ASK_TYPED 2408
#define IDS_ASK_NO_COORDINATE 2409

// Why a file could not be read or written
#define IDS_CAUSE_FULL 2410
#define IDS_CAUSE_DENIED 2411
#define IDS_CAUSE_PROTECTED 2412
#define IDS_CAUSE_GONE 2413
#define IDS_CAUSE_IN_USE 2414
#define IDS_CAUSE_NO_FILE 2415
#define IDS_CAUSE_LARGE 2416
#define IDS_CAUSE_OTHER 2417

// Columns of a file that does not tell them
#define IDS_FILE_COLUMNS 2420
#define IDS_COLUMNS_MISSING 2421
#define IDS_ASK_HEADING 2422
#define IDS_ASK_ORDER 2423
#define IDS_NO_TEXT 2424
#define IDS_FAULT_NO_TEXT 2425

// Export: the columns in the order of Column
#define IDS_EXPORT_COLUMNS 2380
#define IDS_NO_COLUMNS 2381
#define IDS_EXPORTED 2382
#define IDS_EXPORT_OWN_FILE 2383
#define IDS_COLUMN_FIRST 2390
#define IDS_COLUMN_LAST 2395

// File and points
#define IDS_NOT_READ 2300
#define IDS_BAD_LINES_TITLE 2302
#define IDS_BAD_LINES 2303
#define IDS_BAD_LINE 2304
#define IDS_MORE_BAD_LINES 2305
#define IDS_NO_JOURNAL 2309

// Point list and point entry
#define IDS_COLUMN_NAME 2320
#define IDS_USED_POINTS 2321
#define IDS_ENTER_POINT 2322
#define IDS_NAME_TAKEN 2323
#define IDS_ADDED 2324
#define IDS_NOT_WRITTEN 2325
#define IDS_SELECT_POINT 2326
#define IDS_ASK_REMOVE 2327
#define IDS_EDIT_POINT 2328
#define IDS_CHANGE_POINT 2329
#define IDS_REMOVED 2430
#define IDS_UNDONE 2431
#define IDS_CHANGED 2432
#define IDS_COLUMN_CODE 2433
#define IDS_PICK_FROM_PLAN 2434

// Kinds of points, in the order of the beginnings of their names
#define IDS_KIND_FIRST 2330
#define IDS_KIND_LAST 2333

// Angles
#define IDS_POLAR 2340
#define IDS_DIRECTION_LINE 2341

// Journal
#define IDS_RESULT_NUMBER 2350
#define IDS_COLUMN_ITEM 2351
#define IDS_COLUMN_VALUE 2352
#define IDS_TIME 2353
#define IDS_FILE 2366
#define IDS_INPUTS 2367

// Settings
#define IDS_SETTINGS 2360
#define IDS_EXAMPLE 2361
#define IDS_TOLERANCE 2362
#define IDS_TOLERANCE_CHOICE 2363
#define IDS_NOT_SAVED 2364

// Long work
#define IDS_READING 2560
#define IDS_SAVING 2561
#define IDS_EXPORTING 2562
#define IDS_SORTING 2563

// A file that something else has changed
#define IDS_ASK_RELOAD 2564
#define IDS_ASK_SAVE_AGAIN 2566

// What questions for a point end in, and the titles of the answers do not
#define IDS_QUESTION_SUFFIX 2565
