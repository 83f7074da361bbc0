/// @file
/// CArchive. Included by afx.h.
#pragma once

#include "afxfile_.h"
#include "afxobj_.h"
#include "afxstr.h"

#include <exception>
#include <memory>

/// Stores values, strings and objects into a file, or loads them from it, buffered and
/// little-endian. What cannot be loaded throws CArchiveException*: endOfFile for a cut
/// file, badIndex for a wrong format, badClass and badSchema for objects. A failing file
/// throws its own CFileException*.
///
/// Objects: the archive owns none. One that ReadObject has returned belongs to who received it,
/// also when the rest of the file turns out to be damaged. One that is still being loaded when an
/// exception passes is deleted by ReadObject, with what it owns by then. So a class whose
/// destructor deletes what its Serialize has loaded leaks nothing. In a damaged file a reference
/// to an earlier object may stand where a new one is expected: who takes objects over must not
/// take the same one twice.
///
/// Damaged files cost no more memory than a multiple of their size, and objects within objects
/// end at a depth of 1000 (badIndex).
class AFX_CORE CArchive {
public:
    /// Combined with |: store or load, and the rest as wanted. bNoByteSwap has no effect.
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// @param pFile an open file, which stays the caller's and must outlive the archive.
    /// @param nMode store or load, with bNoFlushOnDelete if the destructor shall not close.
    /// @param nBufSize bytes to buffer, at least 128.
    /// @param lpBuf the caller's memory of that size, or NULL.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr)
        : CArchive(pFile, nMode, nBufSize, lpBuf, std::uncaught_exceptions()) {}
    /// Closes, unless the mode has bNoFlushOnDelete. May throw as Close does, but not while
    /// an exception of the framework or of the calling module is on its way.
    ~CArchive() noexcept(false) { CloseUnlessUnwinding(std::uncaught_exceptions()); }
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    /// Which way the archive goes.
    ///@{
    BOOL IsLoading() const { return (m_nMode & load) != 0 ? TRUE : FALSE; }
    BOOL IsStoring() const { return (m_nMode & load) == 0 ? TRUE : FALSE; }
    ///@}
    /// The file, which is not owned.
    CFile* GetFile() const { return m_pFile; }

    /// Loads up to `nMax` bytes. @return the bytes loaded, fewer only at the end of the file.
    UINT Read(void* lpBuf, UINT nMax);
    /// Stores `nMax` bytes as they are. Throws CArchiveException* (readOnly) on an archive for
    /// loading.
    void Write(const void* lpBuf, UINT nMax);
    /// Storing: writes the buffer out. Loading: sets the file back to the first byte not used.
    void Flush();
    /// Flushes and lets go of the file, which stays open. Throws as the file's Write does.
    void Close();
    /// Lets go of the file without flushing; throws nothing.
    void Abort() noexcept;

    /// Whether the next load or store needs the file.
    BOOL IsBufferEmpty() const { return m_lpBufCur == m_lpBufMax ? TRUE : FALSE; }
    /// Stores the characters of a text, 2 bytes each, without its length.
    void WriteString(LPCTSTR lpsz);
    /// Loads what WriteString stored, up to and with a \n, or `nMax` - 1 characters.
    /// @return NULL at the end of the file.
    LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// The same without the \n and without limit. @return zero at the end of the file.
    BOOL ReadString(CString& rString);
    /// Taken for compatibility: tables grow as they must.
    ///@{
    void SetLoadParams(UINT /*nGrowBy*/ = 1024) {}
    void SetStoreParams(UINT /*nHashSize*/ = 2053, UINT /*nBlockSize*/ = 128) {}
    ///@}

    /// Stores a count in 2 bytes, or from 0xFFFF on in 6.
    void WriteCount(DWORD_PTR dwCount);
    /// Loads what WriteCount stored.
    DWORD_PTR ReadCount();

    /// Stores an object with its class, or a reference if it was stored before; NULL too.
    void WriteObject(const CObject* pOb);
    /// Loads what WriteObject stored.
    /// @param pClass the class that the object must be of, or be derived from; NULL for any.
    /// @return a new object owned by the caller, or one that this archive returned before.
    CObject* ReadObject(const CRuntimeClass* pClass);
    /// Stores a class: its name and schema number, or a reference if it was stored before.
    void WriteClass(const CRuntimeClass* pClassRef);
    /// @param pSchema receives the schema number; if NULL, GetObjectSchema returns it.
    /// @param pObTag receives the tag; NULL if only a class may come, no object reference.
    /// @return NULL if the tag refers to an object.
    CRuntimeClass* ReadClass(const CRuntimeClass* pClassRefRequested = nullptr, UINT* pSchema = nullptr,
                             DWORD* pObTag = nullptr);
    /// WriteClass or ReadClass, as the mode says.
    void SerializeClass(const CRuntimeClass* pClassRef);
    /// Gives an object a number that later references can use, without storing it.
    void MapObject(const CObject* pOb);
    /// The schema number of the object being loaded, once for each Serialize; then -1.
    UINT GetObjectSchema();
    /// Sets what GetObjectSchema returns next.
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }

    // int and LONG are 4 bytes, bool 1, wchar_t 2.
    /// Stores or loads one number, little-endian, in the width of its type.
    ///@{
    CArchive& operator<<(BYTE by);
    CArchive& operator<<(char ch);
    CArchive& operator<<(bool b);
    CArchive& operator<<(wchar_t ch);
    CArchive& operator<<(short w);
    CArchive& operator<<(WORD w);
    CArchive& operator<<(int i);
    CArchive& operator<<(unsigned u);
    CArchive& operator<<(float f);
    CArchive& operator<<(double d);
    CArchive& operator<<(LONGLONG dwdw);
    CArchive& operator<<(ULONGLONG dwdw);
    CArchive& operator>>(BYTE& by);
    CArchive& operator>>(char& ch);
    CArchive& operator>>(bool& b);
    CArchive& operator>>(wchar_t& ch);
    CArchive& operator>>(short& w);
    CArchive& operator>>(WORD& w);
    CArchive& operator>>(int& i);
    CArchive& operator>>(unsigned& u);
    CArchive& operator>>(float& f);
    CArchive& operator>>(double& d);
    CArchive& operator>>(LONGLONG& dwdw);
    CArchive& operator>>(ULONGLONG& dwdw);
    ///@}
#ifdef _WIN32
    // Types of their own there; elsewhere they are int and unsigned.
    /// The same for the types that are types of their own on Windows.
    ///@{
    CArchive& operator<<(LONG l);
    CArchive& operator<<(DWORD dw);
    CArchive& operator>>(LONG& l);
    CArchive& operator>>(DWORD& dw);
    ///@}
#endif
    /// A literal would otherwise be stored as a bool: make it a CString.
    CArchive& operator<<(const void*) = delete;

    friend AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb);
    friend AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb);

private:
    struct ObjectTable;

    // Every module counts its own exceptions only, and never counts one down that another
    // module catches. So the caller's count is taken in inline code, and differences tell.
    CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf, int nCallerExceptions);
    void CloseUnlessUnwinding(int nCallerExceptions);

    template <class Value>
    void StoreValue(Value value);
    template <class Value>
    void LoadValue(Value& value);
    bool ReadUnit(wchar_t& ch);
    void CheckMode(UINT nMode) const;
    void ReadAll(void* lpBuf, UINT nCount);
    bool FillBuffer();
    [[noreturn]] void Fail(int cause) const;
    ObjectTable& Objects();

    CFile* m_pFile;
    UINT m_nMode;
    UINT m_nBufSize;
    std::unique_ptr<BYTE[]> m_pOwnBuffer;
    BYTE* m_lpBufStart;
    BYTE* m_lpBufCur;
    BYTE* m_lpBufMax; ///< storing: the buffer's end; loading: the end of what it holds
    int m_nCallerExceptions;
    int m_nOwnExceptions;
    UINT m_nObjectSchema = static_cast<UINT>(-1);
    std::shared_ptr<ObjectTable> m_pObjects; // shared only because the type is incomplete here
};

/// Stores the text with its length.
///@{
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const CStringW& string);
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const CStringA& string);
///@}
/// Loads wide and narrow text. Throws badIndex for a length that no string can have.
///@{
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, CStringW& string);
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, CStringA& string);
///@}
/// WriteObject and ReadObject as operators.
///@{
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb);
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb);
///@}

/// Stores or loads a point, a size or a rectangle, 4 bytes a coordinate.
///@{
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const POINT& point);
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const SIZE& size);
AFX_CORE CArchive& AFXAPI operator<<(CArchive& ar, const RECT& rect);
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, POINT& point);
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, SIZE& size);
AFX_CORE CArchive& AFXAPI operator>>(CArchive& ar, RECT& rect);
///@}
