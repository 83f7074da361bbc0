// The file of texts that were entered lately.
#include "Targets.h"

#include "util/StringStack.h"

#include <vector>

namespace {

std::vector<CString> TextsOf(CStringStack& stack) {
    CComboBox combo;
    stack.SetupList(&combo);
    return combo.GetItems();
}

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

void CheckStoring(CStringStack& stack) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    stack.Serialize(ar);
    ar.Close();
    CStringStack again;
    Promise(Load(file, again), "what a stack stores can be loaded");
    Promise(TextsOf(again) == TextsOf(stack), "the texts are the same after that");
}

} // namespace

void FuzzStack(const std::uint8_t* pData, std::size_t nSize) {
    CMemFile file;
    file.Write(pData, static_cast<UINT>(nSize));
    CStringStack stack;
    Load(file, stack);
    CheckStoring(stack); // also of what a damaged file left

    const std::size_t nBefore = TextsOf(stack).size();
    stack.Add(L"P12", 1);
    stack.Add(L"P13", 0);
    const std::vector<CString> texts = TextsOf(stack);
    Promise(!texts.empty() && texts.front() == L"P13", "the latest text comes first");
    Promise(texts.size() <= nBefore + 2, "no text comes by itself");
    CheckStoring(stack);
}
