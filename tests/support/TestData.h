// Files that the tests read, in tests/data.
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>

namespace testdata {

/// Throws when it cannot be read.
inline std::ifstream Open(const std::string& name) {
    const std::string path = std::string(FIELDKIT_TEST_DATA "/") + name;
    std::ifstream file(path);
    if (!file.is_open())
        file.open("Z:" + path); // Wine's name for the root, when another drive is the current one
    if (!file)
        throw std::runtime_error("no test data in " + name);
    return file;
}

/// For what opens files by wide names; Z: is Wine's name for the root.
inline std::wstring WidePath(const std::string& name) {
    const std::string path = "Z:" FIELDKIT_TEST_DATA "/" + name;
    return {path.begin(), path.end()};
}

} // namespace testdata
