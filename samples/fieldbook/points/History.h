/// @file
/// CHistory: what the user has entered lately, kept from one run to the next.
#pragma once

#include "util/StringStack.h"

#include <memory>

/// The last 20 names of points, one for each kind of name: of P12 and P13 the later one.
///
/// It is a convenience. A file that is absent or damaged gives an empty history, and nothing
/// here throws.
class CHistory {
public:
    /// @param strPath the file in which Save keeps the history and Load finds it
    explicit CHistory(const CString& strPath);

    /// Takes the texts from the file in place of the present ones.
    void Load();
    /// @return false if the file could not be written; it is as it was then
    bool Save();

    /// Puts a text in front of all others. An empty one is not kept.
    void Add(const CString& strText) { m_pStack->Add(strText, 0); }
    /// The texts, to fill a list with. The stack belongs to the history; Load makes a new one.
    CStringStack& GetStack() { return *m_pStack; }

private:
    CString m_strPath;
    std::unique_ptr<CStringStack> m_pStack;
};
