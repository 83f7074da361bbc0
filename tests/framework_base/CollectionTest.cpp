#include "afxcoll.h"
#include "afxtempl.h"

#include "support/ArchiveBytes.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

CString Joined(const CStringList& list) {
    CString forwards, backwards;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        forwards += list.GetNext(pos);
    for (POSITION pos = list.GetTailPosition(); pos != nullptr;)
        backwards += list.GetPrev(pos);
    EXPECT_STREQ(forwards, CString(backwards).MakeReverse()) << "the links disagree";
    EXPECT_EQ(forwards.GetLength(), list.GetCount());
    return forwards;
}

CString Joined(const CStringArray& array) {
    CString all;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        all += array[i];
    return all;
}

void Fill(CStringList& list, LPCTSTR letters) {
    for (; *letters != L'\0'; ++letters)
        list.AddTail(CString(*letters));
}

void Fill(CStringArray& array, LPCTSTR letters) {
    for (; *letters != L'\0'; ++letters)
        array.Add(CString(*letters));
}

TEST(List, AddsInsertsAndRemovesAnywhere) {
    CStringList list(3);
    EXPECT_TRUE(list.IsEmpty());
    const POSITION b = list.AddHead(L"b");
    const POSITION d = list.AddTail(L"d");
    list.AddHead("a");
    list.InsertBefore(d, L"c");
    list.InsertAfter(d, L"e");
    list.InsertBefore(nullptr, L"0");
    list.InsertAfter(nullptr, L"9");
    list.RemoveAt(b);
    list.RemoveAt(list.GetHeadPosition());
    list.RemoveAt(list.GetTailPosition());
    list.SetAt(d, L"D");
    EXPECT_STREQ(L"acDe", Joined(list));
    EXPECT_STREQ(L"a", list.RemoveHead());
    EXPECT_STREQ(L"e", list.RemoveTail());
    EXPECT_STREQ(L"cD", Joined(list));
    EXPECT_FALSE(list.IsEmpty());
    list.RemoveAll();
    EXPECT_EQ(0, list.GetCount());
}

TEST(List, FindsByValueAndByIndex) {
    CStringList list;
    Fill(list, L"aba");
    const POSITION first = list.Find(L"a");
    EXPECT_EQ(list.FindIndex(0), first);
    EXPECT_EQ(list.GetTailPosition(), list.Find(L"a", first));
    EXPECT_STREQ(L"b", list.GetAt(list.FindIndex(1)));
    EXPECT_EQ(nullptr, list.Find(L"x"));
    EXPECT_EQ(nullptr, list.FindIndex(3));
    EXPECT_EQ(nullptr, list.FindIndex(-1));
}

TEST(List, TakesListsAndItself) {
    CStringList list, more;
    Fill(list, L"ab");
    Fill(more, L"xy");
    list.AddHead(&more);
    list.AddTail(&more);
    const CStringList none;
    list.AddTail(&none);
    EXPECT_STREQ(L"xyabxy", Joined(list));
    more.AddTail(&more);
    more.AddHead(&more);
    EXPECT_STREQ(L"xyxyxyxy", Joined(more));
}

TEST(Array, GrowsShrinksAndMoves) {
    CStringArray array;
    EXPECT_EQ(-1, array.GetUpperBound());
    Fill(array, L"abc");
    EXPECT_EQ(3, array.Add(L"d"));
    array.InsertAt(1, L"x", 2);
    array.RemoveAt(1, 2);
    array.RemoveAt(3);
    array.RemoveAt(0);
    array.SetAtGrow(2, L"d");
    array.SetAtGrow(5, L"f");
    EXPECT_EQ(6, array.GetSize());
    array.SetSize(2, 10);
    array.SetSize(4); // what was cut off must not come back
    EXPECT_STREQ(L"bc", Joined(array));
    array.InsertAt(0, array[1]);
    array.Add(array[0]);
    EXPECT_STREQ(L"cbcc", Joined(array));
    array.SetAtGrow(2, L"x");
    const CString* const pBefore = array.GetData();
    array.FreeExtra();
    EXPECT_NE(pBefore, array.GetData());
    EXPECT_STREQ(L"cbxc", Joined(array));
    array.SetSize(1);
    EXPECT_STREQ(L"c", Joined(array));
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
    array.Add(L"z"); // ten at a time
}

TEST(Array, TakesArraysAndItself) {
    CStringArray array, more;
    Fill(array, L"ab");
    Fill(more, L"xy");
    array.Append(more);
    array.Append(array);
    array.Append(CStringArray());
    more.InsertAt(1, &array);
    EXPECT_STREQ(L"xabxyabxyy", Joined(more));
    more.Copy(array);
    more.Copy(more);
    EXPECT_STREQ(L"abxyabxy", Joined(more));
}

TEST(Collection, OutsideThrows) {
    CPtrList list;
    POSITION none = nullptr;
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    EXPECT_THROW(list.AddHead(static_cast<CPtrList*>(nullptr)), CInvalidArgException*);
    EXPECT_THROW(list.AddTail(static_cast<CPtrList*>(nullptr)), CInvalidArgException*);
    CUIntArray array;
    array.SetSize(2);
    EXPECT_EQ(0U, array[1]);
    EXPECT_THROW(array[2], CInvalidArgException*);
    EXPECT_THROW(array.SetAt(-1, 1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(-1, 1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, 1, -1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, static_cast<CUIntArray*>(nullptr)), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, &array), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(1, 2), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(-1), CInvalidArgException*);
    EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
    EXPECT_THROW(array.SetSize(INTPTR_MAX), CMemoryException*);
    EXPECT_THROW(array.InsertAt(INTPTR_MAX, 1, 9), CMemoryException*);
    array.RemoveAt(2, 0);
    const CUIntArray empty;
    array.InsertAt(9, &empty);
    EXPECT_EQ(2, array.GetSize());
}

TEST(Map, FindsItsKeysAndWalksThemOnce) {
    CMap<CString, LPCTSTR, int, int> map;
    map.InitHashTable(17);
    for (int i = 0; i < 100; ++i) {
        CString key;
        key.Format(L"key%d", i);
        map.SetAt(key, i);
    }
    map[L"key7"] = 707;
    EXPECT_TRUE(map.RemoveKey(L"key8"));
    EXPECT_FALSE(map.RemoveKey(L"key8"));
    int value = -1;
    EXPECT_TRUE(map.Lookup(L"key7", value));
    EXPECT_FALSE(map.Lookup(L"key8", value));
    EXPECT_EQ(707, value);
    EXPECT_FALSE(map.IsEmpty());
    int sum = 0;
    CString key;
    for (POSITION pos = map.GetStartPosition(); pos != nullptr;) {
        map.GetNextAssoc(pos, key, value);
        sum += value;
        map.RemoveKey(key); // the entry just visited may go
    }
    EXPECT_EQ(99 * 100 / 2 - 8 + 700, sum);
    EXPECT_TRUE(map.IsEmpty());
    POSITION none = nullptr;
    EXPECT_THROW(map.GetNextAssoc(none, key, value), CInvalidArgException*);
}

template <class Collection>
std::string HexOf(Collection& collection) {
    return ToHex(Stored([&](CArchive& ar) { collection.Serialize(ar); }));
}

TEST(Collection, ArchivesHoldCountAndElements) {
    CStringList list;
    Fill(list, L"ab");
    EXPECT_EQ("02 00 ff fe ff 01 61 00 ff fe ff 01 62 00", HexOf(list));
    CStringArray array;
    Fill(array, L"ab");
    CMap<int, int, CString, LPCTSTR> map;
    map[2] = L"x";
    EXPECT_EQ("01 00 02 00 00 00 ff fe ff 01 78 00", HexOf(map));

    const Bytes stored = FromHex(HexOf(list));
    Loaded(stored, [&](CArchive& ar) { list.Serialize(ar); });
    EXPECT_STREQ(L"abab", Joined(list)); // a list appends
    Loaded(stored, [&](CArchive& ar) { array.Serialize(ar); });
    EXPECT_STREQ(L"ab", Joined(array)); // an array is replaced
    Loaded(FromHex("0000"), [&](CArchive& ar) { array.Serialize(ar); });
    EXPECT_TRUE(array.IsEmpty());
    Loaded(FromHex("0100 03000000 fffeff01 7900"), [&](CArchive& ar) { map.Serialize(ar); });
    Loaded(FromHex("0100 02000000 fffeff01 7a00"), [&](CArchive& ar) { map.Serialize(ar); });
    EXPECT_STREQ(L"y", map[3]); // a map keeps what has another key
    EXPECT_STREQ(L"z", map[2]);
}

TEST(Collection, ReadyMadeOnesAreMadeByTheirNamesInArchives) {
    for (const char* name : {"CByteArray", "CWordArray", "CDWordArray", "CStringArray", "CObArray", "CObList",
                             "CMapStringToString", "CMapStringToOb", "CMapWordToOb"}) {
        const std::unique_ptr<CObject> made(CRuntimeClass::CreateObject(name));
        ASSERT_NE(nullptr, made) << name;
        EXPECT_TRUE(made->IsSerializable()) << name;
    }
}

TEST(Collection, WhatMeansNothingInAFileIsNotArchived) {
    const std::unique_ptr<CObject> pointers[] = {
        std::make_unique<CMapStringToPtr>(), std::make_unique<CMapPtrToWord>(),
        std::make_unique<CMapWordToPtr>(), std::make_unique<CPtrArray>(), std::make_unique<CPtrList>()};
    for (const auto& pCollection : pointers) {
        EXPECT_EQ("", HexOf(*pCollection));
        EXPECT_FALSE(pCollection->IsSerializable());
    }
    CArray<std::string> unknown;
    unknown.SetSize(1);
    EXPECT_THROW(HexOf(unknown), CNotSupportedException*);
}

TEST(Collection, LargeOnesSurviveTheRoundTrip) {
    CArray<double, double> numbers, loaded;
    for (int i = 0; i < 70'000; ++i)
        numbers.Add(i / 7.0);
    Loaded(Stored([&](CArchive& ar) { numbers.Serialize(ar); }), [&](CArchive& ar) { loaded.Serialize(ar); });
    EXPECT_TRUE(std::equal(numbers.GetData(), numbers.GetData() + 70'000, loaded.GetData(),
                           loaded.GetData() + loaded.GetSize()));
}

} // namespace
