#include "Tesuvo.h"

#include <string>

void TVIncrementName(CString& strName) {
    std::wstring name(strName.GetString(), static_cast<std::size_t>(strName.GetLength()));
    // Counted up on the text, so that no number is too long.
    std::size_t at = name.size();
    while (at > 0 && name[at - 1] == L'9')
        name[--at] = L'0';
    if (at > 0 && name[at - 1] >= L'0' && name[at - 1] < L'9')
        ++name[at - 1];
    else
        name.insert(at, 1, L'1');
    strName = CString(name.data(), static_cast<int>(name.size()));
}
