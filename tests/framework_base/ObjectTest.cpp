#define _DEBUG 1 // the checks of a debug program, against the library as it is
#include "support/ArchiveBytes.h"

#include "afxcoll.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class CShape : public CObject {
    DECLARE_DYNAMIC(CShape)
public:
    void AssertValid() const override { ASSERT(m_bValid); }
    bool m_bValid = true;
};
IMPLEMENT_DYNAMIC(CShape, CObject)

class CSquare : public CShape {
    DECLARE_DYNCREATE(CSquare)
};
IMPLEMENT_DYNCREATE(CSquare, CShape)

struct CPlain : CObject {};

TEST(Object, KnowsItsClass) {
    CSquare square;
    EXPECT_EQ(static_cast<int>(sizeof(CSquare)), RUNTIME_CLASS(CSquare)->m_nObjectSize);
    CPlain plain; // needs no class of its own
    ASSERT_VALID(&plain);
    EXPECT_EQ(RUNTIME_CLASS(CObject), plain.GetRuntimeClass());
    EXPECT_EQ(nullptr, CObject::_GetBaseClass());
    EXPECT_EQ(Bytes(), Stored([&](CArchive& ar) { plain.Serialize(ar); }));

    CObject* pObject = &square;
    EXPECT_EQ(&square, DYNAMIC_DOWNCAST(CSquare, pObject));
    EXPECT_EQ(&square, STATIC_DOWNCAST(CShape, pObject));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CStringList, pObject));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(CSquare, nullptr));
    EXPECT_EQ(nullptr, STATIC_DOWNCAST(CSquare, nullptr));
    EXPECT_NE(nullptr, std::unique_ptr<CObject>(RUNTIME_CLASS(CSquare)->CreateObject()));
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("CNobody"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(nullptr));
}

TEST(Object, NamesGoWithTheModuleThatBroughtThem) {
    CRuntimeClass first = CShape::classCShape, second = CShape::classCShape;
    first.m_lpszClassName = "CFirst";
    second.m_lpszClassName = "CSecond";
    auto firstModule = std::make_unique<AFX_CLASSINIT>(&first);
    const AFX_CLASSINIT secondModule(&second);
    firstModule.reset(); // not in the order of loading
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("CFirst"));
    EXPECT_EQ(&second, CRuntimeClass::FromName("CSecond"));
}

TEST(ObjectDeathTest, FailedChecksEndADebugProgram) {
    CShape shape;
    ASSERT_VALID(&shape);
    VERIFY(shape.m_bValid);
    EXPECT_DEATH(ASSERT(!shape.m_bValid), "Assertion failed: .*ObjectTest.cpp, line");
    EXPECT_DEATH(static_cast<void>(STATIC_DOWNCAST(CSquare, static_cast<CObject*>(&shape))),
                 "Assertion failed");
    shape.m_bValid = false;
    EXPECT_DEATH(ASSERT_VALID(&shape), "Assertion failed");
    EXPECT_DEATH(ASSERT_VALID(static_cast<CShape*>(nullptr)), "Assertion failed");
    EXPECT_DEATH(AfxAbort(), "");
}

TEST(Exception, SayWhatHappenedToWhichFile) {
    const auto text = [](const CException& e) {
        TCHAR buffer[100] = L"?";
        UINT context = 1;
        const BOOL given = e.GetErrorMessage(buffer, 100, &context);
        EXPECT_EQ(0U, context);
        EXPECT_EQ(given != 0, buffer[0] != L'\0');
        return CString(buffer);
    };
    // Natively there is no string table, whose texts are Japanese unless English was chosen.
#ifdef _WIN32
    const auto expect = [&](const CException& e, LPCTSTR, LPCTSTR told) { EXPECT_STREQ(told, text(e)); };
#else
    const auto expect = [&](const CException& e, LPCTSTR told, LPCTSTR) { EXPECT_STREQ(told, text(e)); };
#endif
    expect(CFileException(CFileException::fileNotFound, 2, L"a%1.txt"), L"a%1.txt was not found.",
           L"a%1.txt がありません。");
    expect(CFileException(CFileException::diskFull), L"The disk is full while accessing an unnamed file.",
           L"名前のないファイル を書く空きがありません。");
    expect(CArchiveException(CArchiveException::none), L"No error occurred.", L"エラーはありません。");
    for (const int cause : {99, 9, -1})
        expect(CArchiveException(cause, L"x"), L"An unknown error occurred while accessing x.",
               L"x で不明なエラーが起きました。");
    expect(CMemoryException(), L"Out of memory.", L"メモリーが足りません。");
    expect(CNotSupportedException(), L"An unsupported operation was attempted.", L"この操作はできません。");
    expect(CResourceException(), L"A required resource was unavailable.", L"必要なリソースがありません。");
    expect(CInvalidArgException(), L"An invalid argument was encountered.", L"引数が正しくありません。");
    EXPECT_STREQ(L"", text(CUserException())); // the user was told already

    TCHAR small[4];
    EXPECT_TRUE(CMemoryException().GetErrorMessage(small, 4));
    EXPECT_STREQ(text(CMemoryException()).Left(3), small);
    EXPECT_FALSE(CMemoryException().GetErrorMessage(small, 0));
    EXPECT_FALSE(CMemoryException().GetErrorMessage(nullptr, 4));
    EXPECT_THROW(AfxThrowResourceException(), CResourceException*);
    EXPECT_THROW(AfxThrowUserException(), CUserException*);
}

} // namespace
