/// @file
/// How long work tells how far it is.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>

/// Is told from time to time how far work is. What it throws stops the work and goes on to the
/// caller, for whom nothing has changed then.
using Progress = std::function<void(size_t nDone, size_t nAll)>;

/// The progress of one part, counted from 0, of work that has several.
inline Progress PartOf(const Progress& progress, size_t nPart, size_t nParts) {
    if (!progress)
        return {};
    return [=](size_t nDone, size_t nAll) { progress(nPart * nAll + nDone, nParts * nAll); };
}

/// The steps of a loop, some of which are told.
class CSteps {
public:
    /// @param progress may be empty; it must outlive the object
    /// @param nAll     steps, or whatever else At counts; more are not told
    CSteps(const Progress& progress, size_t nAll) : m_progress(progress), m_nAll(std::max<size_t>(nAll, 1)) {}

    void Next() { At(m_nStep); }
    void At(size_t nDone) {
        constexpr size_t kStepsBetween = 1024;
        if (m_nStep++ % kStepsBetween == 0 && m_progress)
            m_progress(std::min(nDone, m_nAll), m_nAll);
    }

private:
    const Progress& m_progress;
    size_t m_nAll;
    size_t m_nStep = 0;
};
