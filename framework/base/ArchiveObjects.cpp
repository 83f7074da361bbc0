#include "ArchiveObjects.h"

#include <string>

namespace {

constexpr WORD kNullTag = 0;
constexpr WORD kNewClassTag = 0xFFFF;
constexpr WORD kClassTag = 0x8000;
constexpr DWORD kBigClassTag = 0x80000000;
constexpr WORD kBigObjectTag = 0x7FFF; // the number follows as a double word
constexpr DWORD kMaxCount = 0x3FFFFFFE;
constexpr UINT kNoSchema = static_cast<UINT>(-1);
constexpr UINT kNotSerializable = 0xFFFF;

// Objects inside objects use up the stack, and a file must not be able to exhaust it.
// Storing stops at the same depth, so that nothing is written that cannot be read.
constexpr int kMaxDepth = 1000;

class DepthGuard {
public:
    explicit DepthGuard(int& depth) : m_depth(depth) { ++m_depth; }
    ~DepthGuard() { --m_depth; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    int& m_depth;
};

UINT SchemaOf(const CRuntimeClass* pClass) {
    return pClass->m_wSchema & ~VERSIONABLE_SCHEMA;
}

void CheckSerializable(const CRuntimeClass* pClass) {
    if (pClass->m_wSchema == kNotSerializable)
        AfxThrowNotSupportedException();
}

} // namespace

CArchive::ObjectTable& CArchive::Objects() {
    if (m_pObjects == nullptr)
        m_pObjects = std::make_shared<ObjectTable>();
    // unreachable: without a billion objects
    if (m_pObjects->count > kMaxCount)
        Fail(CArchiveException::badIndex);
    return *m_pObjects;
}

void CArchive::WriteClass(const CRuntimeClass* pClassRef) {
    CheckSerializable(pClassRef);
    ObjectTable& table = Objects();
    const auto known = table.stored.find(pClassRef);
    if (known == table.stored.end()) {
        *this << kNewClassTag;
        pClassRef->Store(*this);
        table.stored[pClassRef] = table.count++;
        return;
    }
    const DWORD number = known->second;
    if (number < kBigObjectTag)
        *this << static_cast<WORD>(kClassTag | number);
    else
        *this << kBigObjectTag << (kBigClassTag | number);
}

CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClassRefRequested, UINT* pSchema, DWORD* pObTag) {
    if (pClassRefRequested != nullptr)
        CheckSerializable(pClassRefRequested);
    ObjectTable& table = Objects();

    WORD tag = 0;
    *this >> tag;
    DWORD number = static_cast<DWORD>(tag & kClassTag) << 16 | (tag & ~static_cast<DWORD>(kClassTag));
    if (tag == kBigObjectTag)
        *this >> number;

    if ((number & kBigClassTag) == 0) {
        if (pObTag == nullptr)
            Fail(CArchiveException::badIndex);
        *pObTag = number;
        return nullptr;
    }

    ObjectTable::Entry entry;
    if (tag == kNewClassTag) {
        entry.pClass = CRuntimeClass::Load(*this, &entry.nSchema);
        if (entry.pClass == nullptr)
            Fail(CArchiveException::badClass);
        const bool versionable = (entry.pClass->m_wSchema & VERSIONABLE_SCHEMA) != 0;
        if (entry.nSchema != SchemaOf(entry.pClass) && !versionable)
            Fail(CArchiveException::badSchema);
        table.loaded.push_back(entry);
        ++table.count;
    } else {
        number &= ~kBigClassTag;
        if (number >= table.loaded.size() || table.loaded[number].pClass == nullptr)
            Fail(CArchiveException::badIndex);
        entry = table.loaded[number];
    }

    if (pClassRefRequested != nullptr && !entry.pClass->IsDerivedFrom(pClassRefRequested))
        Fail(CArchiveException::badClass);
    (pSchema != nullptr ? *pSchema : m_nObjectSchema) = entry.nSchema;
    if (pObTag != nullptr)
        *pObTag = kBigClassTag;
    return entry.pClass;
}

void CArchive::SerializeClass(const CRuntimeClass* pClassRef) {
    if (IsStoring())
        WriteClass(pClassRef);
    else
        ReadClass(pClassRef);
}

void CArchive::MapObject(const CObject* pOb) {
    ObjectTable& table = Objects();
    if (pOb == nullptr)
        return; // has its number from the start
    if (IsLoading()) {
        table.loaded.push_back({nullptr, const_cast<CObject*>(pOb), 0});
        ++table.count;
    } else if (table.stored.emplace(pOb, table.count).second) {
        ++table.count;
    }
}

void CArchive::WriteObject(const CObject* pOb) {
    ObjectTable& table = Objects();
    if (pOb == nullptr) {
        *this << kNullTag;
        return;
    }
    if (const auto known = table.stored.find(pOb); known != table.stored.end()) {
        if (known->second < kBigObjectTag)
            *this << static_cast<WORD>(known->second);
        else
            *this << kBigObjectTag << known->second;
        return;
    }
    const DepthGuard guard(table.depth);
    if (table.depth > kMaxDepth)
        Fail(CArchiveException::badIndex);
    WriteClass(pOb->GetRuntimeClass());
    MapObject(pOb); // before its content, which may refer back to it
    const_cast<CObject*>(pOb)->Serialize(*this);
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    UINT schema = 0;
    DWORD number = 0;
    const CRuntimeClass* pObjectClass = ReadClass(pClass, &schema, &number);
    ObjectTable& table = Objects();
    if (pObjectClass == nullptr) {
        if (number == kNullTag)
            return nullptr;
        CObject* pKnown = number < table.loaded.size() ? table.loaded[number].pObject : nullptr;
        if (pKnown == nullptr)
            Fail(CArchiveException::badIndex);
        if (pClass != nullptr && !pKnown->IsKindOf(pClass))
            Fail(CArchiveException::badClass);
        return pKnown;
    }

    const DepthGuard guard(table.depth);
    if (table.depth > kMaxDepth)
        Fail(CArchiveException::badIndex);
    std::unique_ptr<CObject> pNew(pObjectClass->CreateObject());
    if (pNew == nullptr)
        Fail(CArchiveException::badClass);
    const std::size_t place = table.loaded.size();
    MapObject(pNew.get()); // before its content, which may refer back to it
    const UINT outerSchema = m_nObjectSchema;
    m_nObjectSchema = schema;
    try {
        pNew->Serialize(*this);
    } catch (...) {
        table.loaded[place].pObject = nullptr; // it goes, so nobody may refer to it
        throw;
    }
    m_nObjectSchema = outerSchema;
    return pNew.release();
}

UINT CArchive::GetObjectSchema() {
    const UINT schema = m_nObjectSchema;
    m_nObjectSchema = kNoSchema;
    return schema;
}

void CRuntimeClass::Store(CArchive& ar) const {
    const std::string name = m_lpszClassName;
    const auto length = static_cast<WORD>(name.size());
    ar << static_cast<WORD>(m_wSchema) << length;
    ar.Write(name.data(), length);
}

CRuntimeClass* AFXAPI CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD schema = 0;
    WORD length = 0;
    ar >> schema >> length;
    std::string name(length, '\0');
    if (ar.Read(name.data(), length) != length)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.GetFile()->GetFilePath());
    if (pwSchemaNum != nullptr)
        *pwSchemaNum = schema;
    const bool terminatedInside = name.find('\0') != std::string::npos;
    return terminatedInside ? nullptr : FromName(name.c_str());
}

CObject* AFXAPI AfxReadObject(CArchive& ar, const CRuntimeClass* pClass) {
    return ar.ReadObject(pClass);
}

CArchive& AFXAPI operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
