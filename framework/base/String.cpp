#include "StringEdit.h"
#include "StringFormat.h"
#include "StringSearch.h"
#include "StringText.h"

// Filled before any code runs, since static objects of every module start with it.
constinit CStringNil afxStringNil = {{1, 0, 0}, L'\0'};

template class CStringT<wchar_t>;
template class CStringT<char>;
