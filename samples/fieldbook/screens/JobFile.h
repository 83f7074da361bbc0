/// @file
/// The points file of the job: reading and writing it. What goes wrong is told to the user.
#pragma once

#include "screens/Job.h"

// Work that takes long is shown and can be stopped; then nothing has changed.

/// Begins a job without a file: with points of an earlier one that were in no file when it ended.
void BeginWithoutFile(CJob& job, CWnd& parent);

/// Reads a points file in place of the job's points, whose unsaved changes are given up then, with the
/// changes that were not saved when the program ended the last time; says so in one line. Shows the lines
/// that could not be read.
/// @return false, with the job as it was, if the file cannot be read, is no text, is worked on by
///         another program of this kind, or if the user gives up
bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent);

/// Whether something else has changed or removed the job's points file. Each time is told once, and a
/// file that is being written not yet.
bool HasNewsOutside(CJob& job);

/// Asks whether the points file shall be read again, and does it. Changes that are not saved are added to
/// what it has now, if the user wants that. Of a file that has gone it asks whether it shall be saved
/// again; else its points count as unsaved.
void AnswerNewsOutside(CJob& job, CWnd& parent);

/// Makes a points file without points, and begins a job with it; unsaved changes are given up then.
/// @return false, with the job as it was, if the file cannot be written
bool MakePointsFile(CJob& job, const CString& strPath);

/// Writes the points into a file, which becomes the job's. A file that was changed by somebody else
/// in the meantime is asked about. One that something else has written, or that has lines that
/// could not be read, is kept under another name before it is written over.
/// @return false if the file is not written; the points count as unsaved still
bool SavePointsFile(CJob& job, const CString& strPath);

/// Forgets the record of changes that nobody wants: the program ends, or another job begins.
void GiveUpChanges(CJob& job);
