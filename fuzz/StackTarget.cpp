// The file of texts that were entered lately.
#include "Targets.h"

#include "util/StringStack.h"

#include <vector>

namespace {

struct Content {
    std::vector<CString> texts;
    int nMode = 0;
    int nCapacity = 0;
    bool operator==(const Content&) const = default;
};

bool Load(CFile& file, CStringStack& stack) {
    file.SeekToBegin();
    try {
        CArchive ar(&file, CArchive::load);
        stack.Serialize(ar);
        return true;
    } catch (CArchiveException* pError) {
        pError->Delete();
        return false;
    }
}

/// What a stack holds, read from its archive without its help.
Content Stored(CStringStack& stack, CMemFile& file) {
    CArchive storing(&file, CArchive::store);
    stack.Serialize(storing);
    storing.Close();
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    int nCount = 0;
    ar >> nCount;
    Content content;
    content.texts.resize(static_cast<std::size_t>(nCount));
    for (CString& strText : content.texts)
        ar >> strText;
    ar >> content.nMode >> content.nCapacity;
    return content;
}

Content CheckStoring(CStringStack& stack) {
    CMemFile file;
    CMemFile fileAgain;
    Content content = Stored(stack, file);
    CStringStack again;
    Promise(Load(file, again), "what a stack stores can be loaded");
    Promise(Stored(again, fileAgain) == content, "it is the same after that");
    return content;
}

} // namespace

void FuzzStack(const std::uint8_t* pData, std::size_t nSize) {
    CMemFile file;
    file.Write(pData, static_cast<UINT>(nSize));
    CStringStack stack;
    Load(file, stack);
    const Content before = CheckStoring(stack); // also of what a damaged file left

    stack.Add(L"P12", 1);
    stack.Add(L"P13", 0);
    const Content after = CheckStoring(stack);
    Promise(!after.texts.empty() && after.texts.front() == L"P13", "the latest text comes first");
    Promise(after.texts.size() <= before.texts.size() + 2, "no text comes by itself");
    Promise(after.nMode == before.nMode && after.nCapacity == before.nCapacity, "adding changes texts only");
}
