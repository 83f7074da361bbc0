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
            EXPECT_EQ(m_book.Find(point.strName), &point.point);
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
    EXPECT_TRUE(m_book.NextName(L"T") == L"T3" && m_book.NextName(L"T1") == L"T3");
    EXPECT_TRUE(m_book.NextName(L"K009") == L"K010" && m_book.NextName(L"BM") == L"BM1");
}

TEST_F(PointBook, PointIsChangedInItsPlace) {
    ASSERT_TRUE(m_book.Replace(L"T2", At(L"T2", 20)));
    EXPECT_TRUE(Names() == L"T1 T2 K009 ");
    EXPECT_EQ(m_book.Find(L"T2")->GetE(), 20);
    EXPECT_TRUE(m_book.IsModified());
}

TEST_F(PointBook, PointKeepsItsPlaceAndItsMarkUnderANewName) {
    m_book.MarkUsed(L"T1");
    ASSERT_TRUE(m_book.Replace(L"T1", At(L"T7", 7)));
    EXPECT_TRUE(Names() == L"T7 T2 K009 " && m_book.Find(L"T1") == nullptr && m_book.IsUsed(L"T7"));
    EXPECT_FALSE(m_book.IsUsed(L"T1"));
    EXPECT_TRUE(m_book.Add(At(L"T1", 1))) << "the old name is free";
}

TEST_F(PointBook, WhatIsRefusedChangesNothing) {
    EXPECT_TRUE(!m_book.Add(At(L"T1", 9)) && !m_book.Replace(L"T1", At(L"T2", 9)));
    EXPECT_TRUE(!m_book.Replace(L"X", At(L"Y", 9)) && !m_book.Remove(L"X") && !m_book.IsModified());
    EXPECT_TRUE(Names() == L"T1 T2 K009 ");
    EXPECT_EQ(m_book.Find(L"T1")->GetE(), 0);
    EXPECT_EQ(m_book.Find(L"T2")->GetE(), 1);
}

TEST_F(PointBook, RemovedPointLeavesTheOthersInOrder) {
    m_book.MarkUsed(L"T1");
    ASSERT_TRUE(m_book.Remove(L"T1"));
    EXPECT_TRUE(m_book.IsModified() && Names() == L"T2 K009 ");
    EXPECT_EQ(m_book.GetUsedCount(), 0);
    ASSERT_TRUE(m_book.Add(At(L"T1", 5)));
    EXPECT_TRUE(Names() == L"T2 K009 T1 ");
}

TEST_F(PointBook, ChangesAreTakenBackOneByOneAndToldLikeOthers) {
    m_book.BeginHere();
    std::vector<CPointChange> told;
    m_book.SetObserver([&](const CPointChange& change) { told.push_back(change); });
    m_book.Replace(L"T1", At(L"X1", 9));
    m_book.Remove(L"T2");
    m_book.Add(At(L"T1", 8));
    CPointBook same = Fresh();
    const wchar_t* const states[] = {L"X1 K009 ", L"X1 T2 K009 ", L"T1 T2 K009 "};
    for (const wchar_t* pszNames : states) {
        CPointChange undone{};
        ASSERT_TRUE(m_book.Undo(undone));
        EXPECT_TRUE(Names() == pszNames);
    }
    EXPECT_FALSE(m_book.CanUndo());
    EXPECT_EQ(m_book.Find(L"T1")->GetE(), 0);
    for (const CPointChange& change : told)
        EXPECT_TRUE(same.Apply(change)) << "whoever repeats them all comes to the same";
    EXPECT_FALSE(same.Apply(told.front().Reversed())) << "not made in this state";
}

} // namespace
