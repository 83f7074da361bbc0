#include "afxcoll.h"

IMPLEMENT_SERIAL(CByteArray, CObject, 0)
IMPLEMENT_SERIAL(CWordArray, CObject, 0)
IMPLEMENT_SERIAL(CDWordArray, CObject, 0)
IMPLEMENT_SERIAL(CStringArray, CObject, 0)
IMPLEMENT_SERIAL(CObArray, CObject, 0)
IMPLEMENT_SERIAL(CStringList, CObject, 0)
IMPLEMENT_SERIAL(CObList, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToString, CObject, 0)
IMPLEMENT_SERIAL(CMapStringToOb, CObject, 0)
IMPLEMENT_SERIAL(CMapWordToOb, CObject, 0)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)

CStringList::CStringList(INT_PTR nBlockSize) : CList(nBlockSize) {}
CObList::CObList(INT_PTR nBlockSize) : CList(nBlockSize) {}
CPtrList::CPtrList(INT_PTR nBlockSize) : CList(nBlockSize) {}
CMapStringToString::CMapStringToString(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapStringToOb::CMapStringToOb(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapWordToOb::CMapWordToOb(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapStringToPtr::CMapStringToPtr(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapPtrToPtr::CMapPtrToPtr(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapPtrToWord::CMapPtrToWord(INT_PTR nBlockSize) : CMap(nBlockSize) {}
CMapWordToPtr::CMapWordToPtr(INT_PTR nBlockSize) : CMap(nBlockSize) {}
