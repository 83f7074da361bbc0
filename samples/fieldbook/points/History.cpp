#include "points/History.h"

#include "points/FileReplacement.h"

#include <utility>

namespace {

std::unique_ptr<CStringStack> EmptyStack() {
    constexpr int kCapacity = 20;
    return std::make_unique<CStringStack>(CStringStack::ModeHeader, kCapacity);
}

/// Stored with its class, so that a file of anything else is told at once.
std::unique_ptr<CStringStack> ReadStack(const CString& strPath) {
    CFile file(strPath, CFile::modeRead | CFile::shareDenyWrite);
    CArchive archive(&file, CArchive::load);
    auto* pStack = static_cast<CStringStack*>(archive.ReadObject(RUNTIME_CLASS(CStringStack)));
    return std::unique_ptr<CStringStack>(pStack);
}

} // namespace

CHistory::CHistory(const CString& strPath) : m_strPath(strPath), m_pStack(EmptyStack()) {}

void CHistory::Load() {
    std::unique_ptr<CStringStack> pStack;
    try {
        pStack = ReadStack(m_strPath);
    } catch (CException* pError) {
        pError->Delete();
    }
    m_pStack = pStack != nullptr ? std::move(pStack) : EmptyStack();
}

bool CHistory::Save() {
    try {
        RewriteFile(m_strPath, [this](CFile& file) {
            CArchive archive(&file, CArchive::store);
            archive.WriteObject(m_pStack.get());
            archive.Close();
        });
        return true;
    } catch (CException* pError) {
        pError->Delete();
        return false;
    }
}
