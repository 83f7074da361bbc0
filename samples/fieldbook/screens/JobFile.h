/// @file
/// The points file of the job: reading and writing it. What goes wrong is told to the user.
#pragma once

#include "screens/Job.h"

/// Reads a points file in place of the job's points, and shows the lines that could not be read.
/// @return false, with the job as it was, if the file cannot be read
bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent);

/// Makes a points file without points, and begins a job with it.
/// @return false, with the job as it was, if the file cannot be written
bool MakePointsFile(CJob& job, const CString& strPath);

/// Writes the points into a file, which becomes the job's. If the job's file has lines that could
/// not be read, it is kept under another name before it is written over.
/// @return false if the file cannot be written; the points count as unsaved still
bool SavePointsFile(CJob& job, const CString& strPath);
