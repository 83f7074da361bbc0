// Where there is no such code page: that of Western Europe.
#include "points/CodePage.h"

bool SurvivesCodePage(const CString& strText) {
    for (int i = 0; i < strText.GetLength(); ++i)
        if (static_cast<char32_t>(strText[i]) >= 0x100)
            return false;
    return true;
}
