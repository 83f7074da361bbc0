// Does one work of the portable base once, for a tool that counts the instructions.
//   portable_instructions        lists the works
//   portable_instructions NAME   does one

#include "util/BufferedAsciiFile.h"
#include "util/StringStack.h"

#include <afxtempl.h>

#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

namespace {

constexpr int kTexts = 500;
constexpr auto kPath = L"portable_instructions.tmp";

/// Made before anything is counted.
struct Inputs {
    std::vector<CString> texts;   ///< 40 characters
    std::vector<CString> blanked; ///< with white space at both ends
    std::vector<CString> other;   ///< in capitals
    CArray<CString, const CString&> array;
    CMap<int, int, int, int> map;
    CMemFile stored; ///< the texts, in an archive
    CStringStack history{CStringStack::ModeHeader, kTexts};
};

void Store(Inputs& inputs) {
    inputs.stored.SeekToBegin();
    CArchive ar(&inputs.stored, CArchive::store);
    for (const CString& text : inputs.texts)
        ar << text;
}

void WriteLines(Inputs& inputs) {
    CBufferedAsciiFile file;
    file.Open(kPath, CFile::modeCreate | CFile::modeWrite);
    for (const CString& text : inputs.texts)
        file.WriteString(text);
    file.Close();
}

void Fill(Inputs& inputs) {
    for (int i = 0; i < kTexts; ++i) {
        CString text;
        text.Format(L"P%d-abcdefghijklmnopqrstuvwxyzabcdefgh-%d", i % 90 + 10, i % 900 + 100);
        inputs.texts.push_back(text);
        inputs.blanked.push_back(L"  " + text + L" ");
        inputs.other.push_back(CString(text).MakeUpper());
        inputs.array.Add(text);
        inputs.map[i * 7] = i;
        inputs.history.Add(text, 1);
    }
    Store(inputs);
    inputs.stored.SeekToBegin();
    WriteLines(inputs);
}

template <class Change>
std::function<int(Inputs&)> OnEach(Change change) {
    return [change](Inputs& inputs) {
        CString str;
        int nSum = 0;
        for (std::size_t i = 0; i < inputs.texts.size(); ++i)
            nSum += change(str, inputs, i);
        return nSum;
    };
}

int LoadTexts(Inputs& inputs) {
    CArchive ar(&inputs.stored, CArchive::load);
    CString str;
    int nSum = 0;
    for (int i = 0; i < kTexts; ++i) {
        ar >> str;
        nSum += str.GetLength();
    }
    return nSum;
}

int ReadLines(Inputs&) {
    CBufferedAsciiFile file;
    file.Open(kPath, CFile::modeRead);
    int nSum = 0;
    for (CString str; file.ReadString(str) != 0;)
        nSum += str.GetLength();
    return nSum;
}

int WalkMap(Inputs& inputs) {
    int nSum = 0;
    for (POSITION pos = inputs.map.GetStartPosition(); pos != nullptr;) {
        int key = 0;
        int value = 0;
        inputs.map.GetNextAssoc(pos, key, value);
        nSum += key + value;
    }
    return nSum;
}

int Empty(Inputs& inputs) {
    while (!inputs.array.IsEmpty())
        inputs.array.RemoveAt(inputs.array.GetUpperBound());
    return 0;
}

const struct {
    const char* pszName;
    std::function<int(Inputs&)> work;
} kWorks[] = {
    {"trim", OnEach([](CString& str, const Inputs& inputs, std::size_t i) {
         str = inputs.blanked[i];
         return str.Trim().GetLength();
     })},
    {"capitals", OnEach([](CString& str, const Inputs& inputs, std::size_t i) {
         str = inputs.texts[i];
         return str.MakeUpper().GetLength();
     })},
    {"compare-no-case", OnEach([](CString&, const Inputs& inputs, std::size_t i) {
         return inputs.texts[i].CompareNoCase(inputs.other[i]);
     })},
    {"join", OnEach([](CString& str, const Inputs& inputs, std::size_t i) {
         str = inputs.texts[i] + L"," + inputs.other[i] + L',' + inputs.texts[i];
         return str.GetLength();
     })},
    {"format-text", OnEach([](CString& str, const Inputs& inputs, std::size_t i) {
         str.Format(L"%s", inputs.texts[i]);
         return str.GetLength();
     })},
    {"format-integer", OnEach([](CString& str, const Inputs&, std::size_t i) {
         str.Format(L"%6d", static_cast<int>(i) * 197);
         return str.GetLength();
     })},
    {"format-number", OnEach([](CString& str, const Inputs&, std::size_t i) {
         str.Format(L"%.4f", static_cast<double>(i) * -12.3456789);
         return str.GetLength();
     })},
    {"array-append",
     [](Inputs& inputs) {
         CArray<CString, const CString&> array;
         for (const CString& text : inputs.texts)
             array.Add(text);
         return static_cast<int>(array.GetSize());
     }},
    {"array-remove-end", Empty},
    {"map-walk", WalkMap},
    {"archive-store", [](Inputs& inputs) { return Store(inputs), 0; }},
    {"archive-load", LoadTexts},
    {"lines-write", [](Inputs& inputs) { return WriteLines(inputs), 0; }},
    {"lines-read", ReadLines},
    {"history-add",
     [](Inputs& inputs) {
         for (const CString& text : inputs.other)
             inputs.history.Add(text, 0);
         return 0;
     }},
};

} // namespace

/// What is counted, with all that it calls.
extern "C" [[gnu::noinline]] int CountedPass(const std::function<int(Inputs&)>& work, Inputs& inputs) {
    return work(inputs);
}

int main(int argc, char** argv) {
    for (const auto& [pszName, work] : kWorks) {
        if (argc < 2) {
            std::printf("%s\n", pszName);
        } else if (std::strcmp(pszName, argv[1]) == 0) {
            Inputs inputs;
            Fill(inputs);
            std::printf("%d\n", CountedPass(work, inputs));
            CFile::Remove(kPath);
            return 0;
        }
    }
    return argc < 2 ? 0 : 2;
}
