/// @file
/// CFileCommands: what the user does with points files.
#pragma once

#include "screens/Job.h"

/// The file menu and its commands. Points that are not saved are given up only when the user says
/// so.
class CFileCommands {
public:
    /// @param job, parent must outlive the object
    CFileCommands(CJob& job, CWnd& parent) : m_job(job), m_parent(parent) {}

    void RunMenu();
    /// Asks what is to become of points that are not saved.
    /// @return false if the user wants to stay with them
    bool MayGiveUpPoints();
    /// Asks whether points that are not saved shall be saved.
    void OfferToSave();

private:
    void Open();
    void OpenPrevious();
    void New();
    /// @return false if the points are not saved
    bool Save();
    bool SaveAs();
    void ChooseFolder();

    CJob& m_job;
    CWnd& m_parent;
};
