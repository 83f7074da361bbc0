/// @file
/// CObject, run-time class information and the diagnostic macros. Included by afx.h.
#pragma once

#include "afxstr.h"

class CArchive;
class CDumpContext;
class CObject;

/// A place in a collection; NULL for none.
using POSITION = struct AFX_POSITION*;

/// Marks the schema number of a class that reads older formats of itself too: loading
/// another number is then no error, and Serialize asks CArchive::GetObjectSchema.
#define VERSIONABLE_SCHEMA 0x80000000U

/// What is known about a class at run time. One static object a class, made by the
/// IMPLEMENT_ macros and filled before any code runs.
struct AFX_CORE CRuntimeClass {
    LPCSTR m_lpszClassName;                ///< The class's name.
    int m_nObjectSize;                     ///< Size of an object in bytes.
    UINT m_wSchema;                        ///< 0xFFFF: the class cannot be archived
    CObject* (*m_pfnCreateObject)();       ///< Makes an object; null if the class cannot be created by name.
    CRuntimeClass* (*m_pfnGetBaseClass)(); ///< The base class; gives null for CObject.

    /// @return a new object owned by the caller; NULL if the class cannot be created by name.
    CObject* CreateObject() const;
    /// Creates an object of a class that was made known by IMPLEMENT_SERIAL.
    static CObject* AFXAPI CreateObject(LPCSTR lpszClassName);
    /// @return the class of that name in any module loaded now; NULL if there is none.
    static CRuntimeClass* AFXAPI FromName(LPCSTR lpszClassName);
    /// TRUE for the class itself too.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
    /// Stores schema number and name.
    void Store(CArchive& ar) const;
    /// Reads what Store wrote.
    /// @param pwSchemaNum receives the schema number in the archive.
    /// @return NULL if no class of the archive's name is known.
    static CRuntimeClass* AFXAPI Load(CArchive& ar, UINT* pwSchemaNum);
};

/// Makes a class known by name for as long as this object lives: a module that goes
/// takes its classes with it.
class AFX_CORE AFX_CLASSINIT {
public:
    /// @param pNewClass must outlive this object
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept;
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    friend struct CRuntimeClass;
    CRuntimeClass* m_pClass;
    AFX_CLASSINIT* m_pNext;
};

/// The root of the classes that know their class at run time or can be archived.
class AFX_CORE CObject {
public:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    /// The object's class. Overridden by the DECLARE_ macros.
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;

    /// Whether the object is of the class or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
    /// Whether the class can be archived.
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF ? TRUE : FALSE; }
    /// Stores or loads the members, as the archive's mode says. CObject has none.
    virtual void Serialize(CArchive& ar);
    /// Checks the object in a debug program; override it. Here: nothing.
    virtual void AssertValid() const;
    /// Writes the object's members for whoever debugs; override it. Here: class and address.
    virtual void Dump(CDumpContext& dc) const;

    static CRuntimeClass classCObject; ///< The class information of CObject itself.
    /// The base class of CObject: none.
    static CRuntimeClass* _GetBaseClass() { return nullptr; }

protected:
    CObject() = default;
};

/// The class information of a class that has a DECLARE_ macro.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

/// Gives a class run-time information. With IMPLEMENT_DYNAMIC in the source file.
#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    static CRuntimeClass* _GetBaseClass();                                                                   \
    CRuntimeClass* GetRuntimeClass() const override;

/// The same, and objects can be made by name. With IMPLEMENT_DYNCREATE; needs a default
/// constructor.
#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* CreateObject();

/// The operator is defined inside the class, so that it needs no export of its own.
#define DECLARE_SERIAL(class_name)                                                                           \
    DECLARE_DYNCREATE(class_name)                                                                            \
    [[maybe_unused]] friend CArchive& operator>>(CArchive& ar, class_name*& pOb) {                           \
        pOb = static_cast<class_name*>(AfxReadObject(ar, RUNTIME_CLASS(class_name)));                        \
        return ar;                                                                                           \
    }

/// What the IMPLEMENT_ macros have in common.
#define _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                \
    CRuntimeClass* class_name::_GetBaseClass() {                                                             \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)),        \
                                                   wSchema, pfnNew, &class_name::_GetBaseClass};             \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return RUNTIME_CLASS(class_name);                                                                    \
    }

/// The counterpart of DECLARE_DYNAMIC.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

/// The counterpart of DECLARE_DYNCREATE.
#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// The counterpart of DECLARE_SERIAL.
/// @param wSchema version of the archived form, from 0
#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                               \
    CObject* class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    _IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject)                 \
    static AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

/// CArchive::ReadObject, for code that sees the archive only as a name.
AFX_CORE CObject* AFXAPI AfxReadObject(CArchive& ar, const CRuntimeClass* pClass);

/// The object itself, or NULL if it is not of the class; what DYNAMIC_DOWNCAST uses.
AFX_CORE CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
/// The object itself; in a debug program an assertion fails if it is not of the class.
AFX_CORE CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

/// The object as a pointer to the class; NULL if it is not of that kind.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

/// Names where memory comes from, in older debug programs: here plain new.
#define DEBUG_NEW new

/// Marks of older compilers, which mean nothing here.
///@{
#define BASED_CODE
#define AFX_CDECL
#define AFX_EXT_CLASS
#define AFX_EXT_API
#define AFX_EXT_DATA
///@}
/// A parameter that is not used.
///@{
#define UNUSED_ALWAYS(x) static_cast<void>(x)
#define UNUSED(x) static_cast<void>(x)
///@}

/// Reports a failed assertion and ends the program.
[[noreturn]] AFX_CORE void AFXAPI AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);
/// Calls AssertValid, after an assertion that there is an object.
AFX_CORE void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
/// Writes to the debugger's output, elsewhere to the standard error stream.
///@{
AFX_CORE void AFXAPI AfxTraceText(const CStringW& text);
template <class... Args>
void AfxTrace(LPCWSTR lpszFormat, Args... args) {
    CStringW text;
    text.Format(lpszFormat, args...);
    AfxTraceText(text);
}
template <class... Args>
void AfxTrace(LPCSTR lpszFormat, Args... args) {
    CStringA text;
    text.Format(lpszFormat, args...);
    AfxTraceText(CStringW(text));
}
///@}

// Checks cost nothing in a release program. The classes are the same in both, so that
// debug programs work with the release library.
#ifdef _DEBUG
#define ASSERT(f) ((f) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(f) ASSERT(f)
#define ASSERT_VALID(pOb) (AfxAssertValidObject(pOb, __FILE__, __LINE__))
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#define TRACE AfxTrace
#else
/// Ends a debug program if the condition does not hold; nothing in a release program.
#define ASSERT(f) ((void)0)
/// Like ASSERT, but the expression is evaluated in a release program too.
#define VERIFY(f) ((void)(f))
/// Calls the object's AssertValid in a debug program.
#define ASSERT_VALID(pOb) ((void)0)
/// The object as a pointer to the class, checked in a debug program only.
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
/// AfxTrace in a debug program, nothing in a release program.
#define TRACE(...) ((void)0)
#endif
/// TRACE with a fixed number of arguments.
///@{
#define TRACE0(sz) TRACE(sz)
#define TRACE1(sz, p1) TRACE(sz, p1)
#define TRACE2(sz, p1, p2) TRACE(sz, p1, p2)
#define TRACE3(sz, p1, p2, p3) TRACE(sz, p1, p2, p3)
///@}
/// Asserts that the object is of a kind.
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))

/// Asserts, and throws in the release build as well: ENSURE.
///@{
#define ATLASSERT(expr) ASSERT(expr)
#define ATLTRACE TRACE
#define ENSURE(cond) ENSURE_THROW(cond, AfxThrowInvalidArgException())
#define ENSURE_THROW(cond, exception) ((cond) ? static_cast<void>(0) : (exception))
#define ASSUME(cond) ASSERT(cond)
///@}
