/// @file
/// CStringStack: what the user has entered lately, for the list of a combo box.
#pragma once

#include <afxcoll.h>

#include "api/Export.h"

class CComboBox;

/// A bounded list of texts, the most recent one first, that can be kept in an archive.
///
/// Two texts with the same key are the same entry. The key is the whole text or, in header
/// mode, what stands before the digits at its end: P12 and P13 then share one entry, so the
/// list keeps the last name of each kind.
///
/// Archived are the count, the texts from the most recent one, mode and capacity. The numbers
/// are 32-bit, the texts CString's. An object can also be stored as such, with its class.
class FIELDKIT_API CStringStack : public CObject {
    DECLARE_SERIAL(CStringStack)

public:
    /// What the key of a text is.
    enum Mode : int {
        ModeWhole = 0,  ///< The key is the whole text; so for every value but ModeHeader.
        ModeHeader = 1, ///< The key is the text without the digits 0 to 9 at its end.
    };

    /// @param nMode one of Mode
    /// @param nMax  capacity: the number of texts from which on Add drops one for each new
    ///              one. With 0 and less it keeps one text.
    CStringStack(int nMode = ModeWhole, int nMax = kDefaultCapacity);
    ~CStringStack() override;

    /// Records an entry. A full list loses its last text for it. Want of memory changes nothing.
    /// @param psz   the text, not null; an empty one is not recorded
    /// @param bTail 0: the text becomes the first one and replaces the one with the same key.
    ///              Else it becomes the last one, unless its key is there already.
    void Add(const wchar_t* psz, int bTail);

    /// Stores, or loads in place of all there is, mode and capacity included.
    ///
    /// Loading a damaged archive throws CArchiveException*. What was read up to there stays.
    void Serialize(CArchive& ar) override;

    /// Refills the list of a combo box, which must not be sorted. Its text stays.
    void SetupList(CComboBox* pCombo);

    /// Removes all texts.
    void Reset();

protected:
    /// Splits a text before the digits 0 to 9 at its end.
    /// @param strHeader receives what stands before them
    /// @param strParam  receives the digits; empty if there are none
    void SeparateHeaderToParam(const wchar_t* psz, CString& strHeader, CString& strParam);

private:
    static constexpr int kDefaultCapacity = 20;
    static constexpr int kEntryBlock = 10;

    POSITION FindSameKey(const wchar_t* psz) const;
    void RemoveLastBut(POSITION posNew);
    void Store(CArchive& ar) const;
    void Load(CArchive& ar);

    CStringList m_list{kEntryBlock};
    int m_nMode;
    int m_nMax;
};
