/// @file
/// The survey point.
#pragma once

#include "api/Export.h"

#include <afx.h>

namespace fieldkit::survey {

/// The value of a missing member.
inline constexpr double kNull = 1e-37;

} // namespace fieldkit::survey

/// A survey point: northing, easting and height in the job's length unit, each of which
/// may be missing.
///
/// A missing member is told twice, by its existence flag and by the null value 1e-37 in it.
/// Predicates are `int`; nothing here fails.
class FIELDKIT_API CCoordinate {
public:
    /// All members missing.
    CCoordinate();
    /// @param e,n,z easting, northing and height; mind the order.
    /// @param exist the flag word, kept as given: 0x1 northing and easting exist, 0x2 height exists.
    CCoordinate(double e, double n, double z, unsigned short exist);
    /// Copies members and flags.
    ///@{
    CCoordinate(const CCoordinate& c) = default;
    const CCoordinate& operator=(const CCoordinate& c);
    ///@}
    virtual ~CCoordinate() = default;

    /// Replaces the flag word; the members keep their values.
    void SetExist(unsigned short exist) { m_wExist = exist; }
    /// The flag word: 0x1 northing and easting exist, 0x2 height exists.
    unsigned short GetExist() const { return m_wExist; }
    /// 1 when northing and easting exist, else 0.
    int IsExistNE() const { return m_wExist & kExistNE; }
    /// 2 (the flag itself) when the height exists, else 0.
    int IsExistZ() const { return m_wExist & kExistZ; }

    /// The members; the null value for a missing one.
    double GetN() const { return IsExistNE() ? m_dN : fieldkit::survey::kNull; }
    /// See GetN.
    ///@{
    double GetE() const { return IsExistNE() ? m_dE : fieldkit::survey::kNull; }
    double GetZ() const { return IsExistZ() ? m_dZ : fieldkit::survey::kNull; }
    ///@}

    /// Stores a member. Northing and easting exist as a pair from the first of them on and
    /// are missing again when both hold the null value; the height, when it holds it.
    /// @return 1.
    int SetN(double n);
    /// See SetN.
    ///@{
    int SetE(double e);
    int SetZ(double z);
    ///@}

    /// Adds northing and easting where this point has them and `c` has anything. The
    /// heights are subtracted, by both operators. The flags stay.
    const CCoordinate& operator+=(const CCoordinate& c);
    /// See operator+=.
    const CCoordinate& operator-=(const CCoordinate& c);
    /// The result of += or -= as a new point, with the flags of this one.
    ///@{
    CCoordinate operator+(const CCoordinate& c) const;
    CCoordinate operator-(const CCoordinate& c) const;
    ///@}

    /// 1 when the members that this point has are those of `c` to less than 1e-6. A point
    /// without any flag equals every point, on either side.
    int operator==(const CCoordinate& c) const { return CompareCoordinate(c); }
    /// The reverse of ==.
    int operator!=(const CCoordinate& c) const { return !CompareCoordinate(c); }

    /// The members as text with the decimals of the device's shared setting; empty for a
    /// missing one.
    CString GetNString() const { return GenCoordString(GetN()); }
    /// See GetNString.
    ///@{
    CString GetEString() const { return GenCoordString(GetE()); }
    CString GetZString() const { return GenCoordString(GetZ()); }
    ///@}

    /// Widens the corners `lo` and `hi` of a box by this point. Start with lo and hi set: the
    /// easting of an empty corner counts as the null value, not as missing, once its northing
    /// has been taken.
    void AddExtent(CCoordinate& lo, CCoordinate& hi);

protected:
    /// A value as text with the decimals of the device's shared setting.
    /// @param v the value; the null value gives an empty text
    CString GenCoordString(double v) const;

private:
    enum : unsigned short { kExistNE = 0x0001, kExistZ = 0x0002 };

    int CompareCoordinate(const CCoordinate& c) const;
    int Compare(double a, double b) const;
    void Mark(unsigned short flag, bool bExists);

    double m_dN;
    double m_dE;
    double m_dZ;
    unsigned short m_wExist;
};
