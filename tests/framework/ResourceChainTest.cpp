// In which module a resource is found.
#include "afxres.h"
#include "support/TestApp.h"

using namespace testkit;

namespace {

HMODULE ModuleOf(const void* pCode) {
    HMODULE hModule = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        static_cast<LPCTSTR>(pCode), &hModule);
    return hModule;
}

HMODULE FrameworkModule() {
    return ModuleOf(reinterpret_cast<const void*>(&AfxGetInstanceHandle));
}

CString Text(UINT nID) {
    CString str = L"before";
    const bool bFound = str.LoadString(nID) != FALSE;
    EXPECT_EQ(bFound, !str.IsEmpty());
    return str;
}

TEST(ResourceChain, ApplicationComesFirstThenTheFramework) {
    EXPECT_EQ(AfxFindStringResourceHandle(40000), AfxGetInstanceHandle());
    EXPECT_EQ(Text(40000), L"応用の文字列");
    EXPECT_EQ(Text(AFX_IDP_PARSE_DATETIME), L"応用が置き換えた文字列");
    EXPECT_EQ(AfxFindStringResourceHandle(AFX_IDP_PARSE_INT), FrameworkModule());
    EXPECT_EQ(Text(AFX_IDP_PARSE_INT), L"整数を入力してください。")
        << "though its block of sixteen is the application's";
    EXPECT_EQ(AfxFindStringResourceHandle(41000), nullptr);
    EXPECT_EQ(Text(41000), L"");
}

TEST(ResourceChain, ExtensionModuleIsSearchedWhileItsLinkRecordExists) {
    const HMODULE hExtension = ::LoadLibrary(L"comctl32.dll");
    ASSERT_NE(hExtension, nullptr);
    TCHAR szText[100] = {};
    UINT nID = 1;
    while (nID < 0xFFFF &&
           (::LoadString(hExtension, nID, szText, 100) == 0 || AfxFindStringResourceHandle(nID)))
        ++nID;
    ASSERT_LT(nID, 0xFFFFU) << "no string to test with";

    AFX_EXTENSION_MODULE module;
    ASSERT_TRUE(AfxInitExtensionModule(module, hExtension));
    new CDynLinkLibrary(module);
    EXPECT_EQ(AfxFindStringResourceHandle(nID), hExtension);
    EXPECT_EQ(Text(nID), szText);
    EXPECT_EQ(Text(40000), L"応用の文字列");
    AfxTermExtensionModule(module);
    EXPECT_TRUE(AfxFindStringResourceHandle(nID) == nullptr && !module.bInitialized);
    ::FreeLibrary(hExtension);
}

TEST(ResourceChain, ResourceThatNobodyHasIsTheApplicationsToMiss) {
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(300), RT_DIALOG), AfxGetInstanceHandle());
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(301), RT_DIALOG), AfxGetResourceHandle());
}

TEST(ResourceChain, TextIsCutToTheBuffer) {
    TCHAR szText[4] = {L'x', L'x', L'x', L'x'};
    EXPECT_EQ(AfxLoadString(40000, szText, 4), 3);
    EXPECT_EQ(CString(szText), L"応用の");
    EXPECT_EQ(AfxLoadString(41000, szText, 4), 0);
    EXPECT_EQ(szText[0], 0);
}

} // namespace
