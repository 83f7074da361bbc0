/// @file
/// An object that refers to another one of its kind.
#pragma once

#include "afx.h"

/// Owns the next link unless that leads back.
class CLink : public CObject {
    DECLARE_SERIAL(CLink)
public:
    explicit CLink(BYTE id = 0, CLink* pNext = nullptr) : m_id(id), m_pNext(pNext) { ++s_alive; }
    ~CLink() override {
        if (m_bOwnsNext)
            delete m_pNext;
        --s_alive;
    }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_id << m_pNext;
            return;
        }
        ar >> m_id;
        const int nBefore = s_alive;
        ar >> m_pNext;
        m_bOwnsNext = s_alive > nBefore;
    }

    static inline int s_alive = 0;
    BYTE m_id;
    CLink* m_pNext;
    bool m_bOwnsNext = false;
};
