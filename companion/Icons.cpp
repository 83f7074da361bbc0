#include "Tesuvo.h"

#include "Module.h"

HICON TVGetCommonIcon(int nIndex) {
    constexpr int kIconSize = 16;
    // A number beyond 16 bits would be taken for the address of a name.
    if (nIndex <= 0 || nIndex > 0xFFFF)
        return nullptr;
    // The system keeps a shared image: the same handle for every call, freed with the process.
    return static_cast<HICON>(::LoadImageW(CompanionModule(), MAKEINTRESOURCEW(nIndex), IMAGE_ICON, kIconSize,
                                           kIconSize, LR_SHARED));
}
