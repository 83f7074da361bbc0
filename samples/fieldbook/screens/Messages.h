/// @file
/// What the user is told and asked in message boxes.
#pragma once

#include <afxwin.h>

/// Asks before something is lost. No is the default button: a stray Enter loses nothing.
/// @return true if the user agrees
bool AskToLose(const CString& strText);

/// Tells why a file could not be read or written, and deletes the exception.
/// @param nTextId with a place for the file's name and one for the cause
void TellFileProblem(CFileException* e, UINT nTextId, const CString& strPath);

/// The cause in words: what to do about it can be told from them.
CString CauseText(const CFileException& e);
