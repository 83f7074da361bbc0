// Identifiers of the plan's resources.
#pragma once

#define IDD_PLAN 2400

#define IDC_PLAN 2401
#define IDC_ZOOM_IN 2402
#define IDC_ZOOM_OUT 2403
#define IDC_ZOOM_ALL 2404

#define IDI_ZOOM_IN 2410
#define IDI_ZOOM_OUT 2411
#define IDI_ZOOM_ALL 2412

#define IDS_NO_DRAWING 2450
