/// @file
/// The pages of the settings.
#pragma once

#include "controls/nPropertyPage.h"

#include "screens/EntryControls.h"
#include "screens/ListControls.h"
#include "screens/Settings.h"

/// How many decimals coordinates have.
class CCoordinatesPage : public CnPropertyPage {
public:
    /// @param settings receives what the user enters, here and in the other pages; must
    ///                 outlive the page
    explicit CCoordinatesPage(CSettings& settings);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Shows an example as soon as the number changes.
    afx_msg void OnDecimals();
    DECLARE_MESSAGE_MAP()

private:
    CSettings& m_settings;
    CnEdit m_decimals;
    CDecimalsSpin m_spin;
    CResultLine m_example;
};

/// Whole seconds or tenths.
class CAnglesPage : public CnPropertyPage {
public:
    explicit CAnglesPage(CSettings& settings);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    afx_msg void OnSeconds();
    DECLARE_MESSAGE_MAP()

private:
    CSettings& m_settings;
    CResultLine m_example;
};

/// The library's tolerance.
class CTolerancePage : public CnPropertyPage {
public:
    explicit CTolerancePage(CSettings& settings);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Writes the choice down in words.
    afx_msg void OnTolerance();
    DECLARE_MESSAGE_MAP()

private:
    CSettings& m_settings;
    CChoiceList m_list;
    CResultLine m_choice;
};
