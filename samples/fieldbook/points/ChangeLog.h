/// @file
/// The record of changes that are in no points file yet, as bytes: what is appended for each change,
/// and how it is read again, however it was cut.
#pragma once

#include "points/PointBook.h"
#include "points/Progress.h"

#include <cstdint>
#include <string>

/// Tells the content of files apart.
std::uint64_t HashOf(const std::string& bytes);

/// Lines of a record. Each has a check sum of its own, so that a line that was written in part
/// only, by a full disk or an empty battery, is not taken for one.
///@{
/// The first line: changes are to the file with this content.
std::string BaseLine(std::uint64_t nHash);
/// One change.
std::string ChangeLine(const CPointChange& change);
/// From here on the file with this content has all changes above, if it came to that.
std::string SavedLine(std::uint64_t nHash);
///@}

/// What a record says.
struct CChangeRecord {
    std::uint64_t nBase = 0;
    /// The changes, with a place for each time that all above was saved.
    struct CSaved {
        std::uint64_t nHash;
        size_t nChanges; ///< So many changes are in that file.
    };
    std::vector<CPointChange> changes;
    std::vector<CSaved> saved;
    size_t nGoodBytes = 0; ///< Of the lines that are whole; what stands behind is of no use.

    /// Whether it belongs to a file with this content.
    /// @param nFirst receives the first change that is not in the file
    bool FitsTo(std::uint64_t nHash, size_t& nFirst) const;
};

/// Reads a record up to the first line that is not whole. Without a good first line nothing is read.
CChangeRecord ReadChanges(const std::string& bytes, const Progress& progress = {});
