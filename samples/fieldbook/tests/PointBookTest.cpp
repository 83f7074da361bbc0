#include "points/PointBook.h"

#include <gtest/gtest.h>

namespace {

struct PointBook : testing::Test {
    void SetUp() override { m_book.SetModified(false); }

    static CNamedPoint At(const wchar_t* pszName, double dE) { return {pszName, CCoordinate(dE, 0, 0, 1)}; }

    /// The names in order, and that each is found where it stands.
    CString Names() const {
        CString strNames;
        for (const CNamedPoint& point : m_book.GetPoints()) {
            strNames += point.strName + L" ";
            EXPECT_EQ(&point.point, m_book.Find(point.strName));
        }
        return strNames;
    }

    static CPointBook Fresh() {
        CPointBook book;
        for (const wchar_t* pszName : {L"T1", L"T2", L"K009"})
            book.Add(At(pszName, book.GetCount()));
        return book;
    }

    CPointBook m_book = Fresh();
};

TEST_F(PointBook, NextNameIsTheFirstFreeOne) {
    EXPECT_STREQ(L"T3", m_book.NextName(L"T"));
    EXPECT_STREQ(L"K010", m_book.NextName(L"K009"));
}

TEST_F(PointBook, PointIsChangedInItsPlaceAndKeepsItsMarkUnderANewName) {
    ASSERT_TRUE(m_book.Replace(L"T2", At(L"T2", 20)));
    EXPECT_STREQ(L"T1 T2 K009 ", Names());
    EXPECT_EQ(20, m_book.Find(L"T2")->GetE());
    EXPECT_TRUE(m_book.IsModified());
    m_book.MarkUsed(L"T1");
    ASSERT_TRUE(m_book.Replace(L"T1", At(L"T7", 7)));
    EXPECT_STREQ(L"T7 T2 K009 ", Names());
    EXPECT_EQ(nullptr, m_book.Find(L"T1"));
    EXPECT_TRUE(m_book.IsUsed(L"T7"));
    EXPECT_FALSE(m_book.IsUsed(L"T1"));
    EXPECT_TRUE(m_book.Add(At(L"T1", 1))) << "the old name is free";
}

TEST_F(PointBook, WhatIsRefusedChangesNothing) {
    EXPECT_FALSE(m_book.Add(At(L"T1", 9)));
    EXPECT_FALSE(m_book.Replace(L"T1", At(L"T2", 9)));
    EXPECT_FALSE(m_book.Replace(L"X", At(L"Y", 9)));
    EXPECT_FALSE(m_book.Remove(L"X"));
    EXPECT_FALSE(m_book.IsModified());
    EXPECT_STREQ(L"T1 T2 K009 ", Names());
    EXPECT_EQ(0, m_book.Find(L"T1")->GetE());
    EXPECT_EQ(1, m_book.Find(L"T2")->GetE());
}

TEST_F(PointBook, ChangesAreTakenBackOneByOneAndToldLikeOthers) {
    m_book.BeginHere();
    std::vector<CPointChange> told;
    m_book.SetObserver([&](const CPointChange& change) { told.push_back(change); });
    m_book.Replace(L"T1", At(L"X1", 9));
    m_book.MarkUsed(L"T2");
    m_book.Remove(L"T2");
    EXPECT_EQ(0, m_book.GetUsedCount());
    m_book.Add(At(L"T1", 8));
    CPointBook same = Fresh();
    const wchar_t* const states[] = {L"X1 K009 ", L"X1 T2 K009 ", L"T1 T2 K009 "};
    for (const wchar_t* pszNames : states) {
        CPointChange undone{};
        ASSERT_TRUE(m_book.Undo(undone));
        EXPECT_STREQ(pszNames, Names());
    }
    EXPECT_FALSE(m_book.CanUndo());
    EXPECT_EQ(0, m_book.Find(L"T1")->GetE());
    for (const CPointChange& change : told)
        EXPECT_TRUE(same.Apply(change)) << "whoever repeats them all comes to the same";
    EXPECT_FALSE(same.Apply(told.front().Reversed())) << "not made in this state";
}

} // namespace
