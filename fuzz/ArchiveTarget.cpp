// Texts, lists, arrays, maps and objects that refer to each other, loaded from any bytes.
#include "Targets.h"

#include <afxcoll.h>
#include <afxtempl.h>

#include <set>
#include <vector>

namespace {

/// An object with two references, each to nothing, to a new object or to an earlier one.
class CNode : public CObject {
    DECLARE_SERIAL(CNode)

public:
    CNode() { s_alive.insert(this); }
    ~CNode() override { s_alive.erase(this); }

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << m_strName << m_pFirst << m_pSecond;
        else
            ar >> m_strName >> m_pFirst >> m_pSecond;
        m_texts.Serialize(ar);
        m_numbers.Serialize(ar);
    }

    /// References may form circles, so nobody owns a node but this set.
    static void DeleteAll() {
        while (!s_alive.empty())
            delete *s_alive.begin();
    }

private:
    static std::set<CNode*> s_alive;

    CString m_strName;
    CNode* m_pFirst = nullptr;
    CNode* m_pSecond = nullptr;
    CStringList m_texts;
    CArray<double, double> m_numbers;
};
std::set<CNode*> CNode::s_alive;
IMPLEMENT_SERIAL(CNode, CObject, 1)

using Bytes = std::vector<std::uint8_t>;

/// Small buffer and little room to grow, so that values lie across borders.
constexpr int kBuffer = 128;

template <class Use>
bool Load(const std::uint8_t* pData, std::size_t nSize, Use use) {
    CMemFile file;
    file.Write(pData, static_cast<UINT>(nSize));
    file.SeekToBegin();
    try {
        CArchive ar(&file, CArchive::load, kBuffer);
        use(ar);
        return true;
    } catch (CException* pError) {
        pError->Delete();
        return false;
    }
}

Bytes Store(CNode* pRoot) {
    CMemFile file;
    CArchive ar(&file, CArchive::store, kBuffer);
    ar << pRoot;
    ar.Close();
    Bytes bytes(static_cast<std::size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

} // namespace

void FuzzArchive(const std::uint8_t* pData, std::size_t nSize) {
    CNode* pRoot = nullptr;
    const bool bLoaded = Load(pData, nSize, [&](CArchive& ar) {
        ar >> pRoot;
        CMap<int, int, CString, LPCTSTR> names;
        names.Serialize(ar);
    });
    if (bLoaded) {
        const Bytes first = Store(pRoot);
        CNode* pAgain = nullptr;
        Promise(Load(first.data(), first.size(), [&](CArchive& ar) { ar >> pAgain; }),
                "what an archive stores can be loaded");
        Promise(Store(pAgain) == first, "it is the same when it is stored again");
    }
    CNode::DeleteAll();
}
