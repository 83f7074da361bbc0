/// @file
/// What the user is told and asked.
#pragma once

#include <afxwin.h>

/// Boxes above the active window, with a text of any length in the font of the screens. Their buttons
/// are always at the same place.
///@{
void TellError(const CString& strText);
void TellInformation(const CString& strText);
/// @return true for Yes, the default button
bool Ask(const CString& strText);
/// Asks before something is lost. No is the default button: a stray Enter loses nothing.
/// @return true if the user agrees
bool AskToLose(const CString& strText);
///@}

/// Tells why a file could not be read or written, and deletes the exception.
/// @param nTextId with a place for the file's name and one for the cause
void TellFileProblem(CFileException* e, UINT nTextId, const CString& strPath);

/// The text that has the cause in words: what to do about it can be told from them.
UINT CauseTextId(const CFileException& e);
