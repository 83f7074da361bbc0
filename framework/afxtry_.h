/// @file
/// The macros with which older programs try and catch. Included by afx.h.
#pragma once

#include "afxerr_.h"

// The exception that a block has caught is deleted at its end, unless it is thrown on.

/// Keeps the exception of a CATCH block.
class AFX_EXCEPTION_OWNER {
public:
    explicit AFX_EXCEPTION_OWNER(CException* e) noexcept : m_pException(e) {}
    ~AFX_EXCEPTION_OWNER() {
        if (m_pException != nullptr)
            m_pException->Delete();
    }
    AFX_EXCEPTION_OWNER(const AFX_EXCEPTION_OWNER&) = delete;
    AFX_EXCEPTION_OWNER& operator=(const AFX_EXCEPTION_OWNER&) = delete;
    /// Another one will delete it.
    void Release() noexcept { m_pException = nullptr; }

private:
    CException* m_pException;
};

/// `TRY { ... } CATCH(CFileException, e) { ... } AND_CATCH_ALL(e) { ... } END_CATCH_ALL`
///@{
#define TRY try
#define CATCH(class_name, e)                                                                                 \
    catch (class_name * e) {                                                                                 \
        AFX_EXCEPTION_OWNER _afxOwner(e);
#define AND_CATCH(class_name, e)                                                                             \
    }                                                                                                        \
    CATCH(class_name, e)
#define END_CATCH }
#define CATCH_ALL(e) CATCH(CException, e)
#define AND_CATCH_ALL(e) AND_CATCH(CException, e)
#define END_CATCH_ALL }
#define END_TRY                                                                                              \
    catch (CException * e) {                                                                                 \
        e->Delete();                                                                                         \
    }
///@}
/// Throws an exception made by new; throws on the one that the CATCH block has caught.
///@{
#define THROW(e) throw(e)
#define THROW_LAST() (_afxOwner.Release(), throw)
///@}
