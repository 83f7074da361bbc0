/// @file
/// CAngleEdit: an entry field for an angle in degrees, minutes and seconds.
#pragma once

#include "controls/nEdit.h"

/// An entry field that holds one angle in radians.
///
/// Without the focus it shows degrees, minutes and seconds. With the focus it shows the
/// packed number that the user edits: degrees, point, two digits of minutes, two of seconds
/// and perhaps one of tenths ("12.34567" is 12 degrees 34 minutes 56.7 seconds, "12.3" is
/// 12 degrees 30 minutes). Minutes and seconds of 60 and more count for what they are. What
/// was typed becomes the angle when the focus goes; text that is no number becomes 0.
///
/// Three properties of the display belong to it: angles between -1 and 0 degrees are shown
/// without their sign; the packed number of a negative angle is its degrees plus the positive
/// rest (-12.5 degrees give -11.7000), so it is good for editing angles from 0 up only; whole
/// seconds from 59.5 up are shown as 60. Angles to about 59,000 degrees are shown and to about
/// 21,000 degrees accepted; what is beyond counts as the largest that is.
class FIELDKIT_API CAngleEdit : public CnEdit {
public:
    /// Value of the seconds mode for whole seconds; any other means tenths.
    static constexpr int WHOLE_SECONDS = 3;

    CAngleEdit() = default;

    /// Takes over an entry field of a dialog. It keeps its text until SetAngle.
    /// @param nID      its control id in pParent
    /// @param nMode    seconds mode; kept as it was on failure
    /// @param dwOption SipOption bits, see CnEdit
    /// @return 1, or 0 if there is no such control or this object already has one
    int Attach(unsigned int nID, CWnd* pParent, int nMode, unsigned long dwOption);

    /// Sets the angle and shows it in degrees, minutes and seconds.
    /// @param dAngle radians, any sign, not normalised
    void SetAngle(double dAngle);
    /// @return radians; what is being typed is not in it yet
    double GetAngle();
    /// Switches the conversion on focus changes on (at first) or off (0). Without it the
    /// text stays as it is, and so does the angle.
    void SetConvActive(int nActive);

protected:
    /// Rounds an angle to tenths of a second and takes it apart.
    /// @param dAngle   radians
    /// @param pDegree  the only part with the sign
    /// @param pMinute  0 to 59
    /// @param pSecond  0 to 59.9, whole tenths
    void RadToDMS(double dAngle, int* pDegree, int* pMinute, double* pSecond);
    /// @param dDegree packed number, rounded to its fifth decimal
    /// @return radians
    double DegToRad(double dDegree);
    /// @param dAngle radians
    /// @return packed number
    double RadToDeg(double dAngle);
    /// Shows the angle in degrees, minutes and seconds.
    void ShowDMS();

    /// Shows the packed number for editing, and the soft input panel.
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    /// Turns what was typed into the angle, and shows degrees, minutes and seconds.
    afx_msg void OnKillFocus(CWnd* pNewWnd);

    double m_dAngle = 0.0; ///< Radians.

    DECLARE_MESSAGE_MAP()

private:
    bool ShowsTenths() const { return m_nMode != WHOLE_SECONDS; }

    int m_nConvActive = 1;
    int m_nMode = WHOLE_SECONDS;
};
