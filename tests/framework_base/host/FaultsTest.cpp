// Each allocation and each system call fails once.
#include "support/NativeFaults.h"
#include "support/TempFolder.h"

#include "afxcoll.h"
#include "afxtempl.h"

#include <cerrno>
#include <functional>
#include <memory>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using faults::FailCall;
using faults::FailMemory;

// Longer than what a string keeps without asking for memory.
constexpr LPCTSTR kLong = L"a text that is longer than any small string";

template <class Object>
using Changes = Rows<const char*, std::function<void(Object&)>>;

template <class Object, class Make, class Look>
void ExpectAllOrNothing(Make make, Look look, const Changes<Object>& changes) {
    for (const auto& [what, change] : changes) {
        SCOPED_TRACE(what);
        EXPECT_GT(faults::FailEachChange(make, change, look), 0) << "nothing that can fail";
    }
}

template <class Object>
Bytes Archived(Object& object) {
    return Stored([&](CArchive& ar) { object.Serialize(ar); });
}

TEST(Faults, StringsChangeWhollyOrNotAtAll) {
    const CString other = CString(kLong) + kLong;
    const auto takeOwnCopy = [](CString& s) {
        const CString twin = s;
        s.SetAt(0, L'A');
    };
    ExpectAllOrNothing<CString>(
        [] { return std::make_unique<CString>(kLong); }, [](const CString& s) { return s; },
        {{"own copy", takeOwnCopy},
         {"= narrow",
          [](CString& s) { s = "a narrow text that is longer than any small string, much longer"; }},
         {"+=", [&](CString& s) { s += other; }},
         {"Insert", [](CString& s) { s.Insert(3, kLong); }},
         {"Replace", [](CString& s) { s.Replace(L"a", kLong); }},
         {"Format", [](CString& s) { s.Format(L"%s %d %hs %#40.3f %c", kLong, 5, "narrow", 1.5, L'x'); }},
         {"AppendFormat", [](CString& s) { s.AppendFormat(L"%-100d|%p", 5, nullptr); }}});
}

TEST(Faults, ArraysChangeWhollyOrNotAtAll) {
    // Strings of the framework share their text, so that copying one cannot fail.
    using Texts = CArray<std::string, const std::string&>;
    const std::string text = "a text that is longer than any small string";
    Texts three;
    three.InsertAt(0, text, 3);
    Texts five;
    five.SetAtGrow(4, text);
    const auto make = [&] {
        auto pArray = std::make_unique<Texts>();
        pArray->Append(three);
        return pArray;
    };
    const auto look = [](const Texts& a) { return std::vector(a.GetData(), a.GetData() + a.GetSize()); };
    FailMemory(1);
    EXPECT_THROW(three.SetSize(100), CMemoryException*);
    faults::Disarm();
    ExpectAllOrNothing<Texts>(make, look,
                              {{"Add", [&](Texts& a) { a.Add(text); }},
                               {"SetSize", [](Texts& a) { a.SetSize(100); }},
                               {"SetAt", [&](Texts& a) { a.SetAt(1, text + text); }},
                               {"SetAtGrow", [&](Texts& a) { a.SetAtGrow(9, text); }},
                               {"InsertAt", [&](Texts& a) { a.InsertAt(1, text, 4); }},
                               {"InsertAt behind", [&](Texts& a) { a.InsertAt(7, text, 2); }},
                               {"InsertAt array", [&](Texts& a) { a.InsertAt(1, &three); }},
                               {"Append", [&](Texts& a) { a.Append(three); }},
                               {"Append itself", [](Texts& a) { a.Append(a); }},
                               {"Copy", [&](Texts& a) { a.Copy(five); }}});
}

TEST(Faults, ListsAndMapsChangeWhollyOrNotAtAll) {
    CStringList two;
    two.AddTail(kLong);
    two.AddTail(L"b");
    const auto makeList = [&] {
        auto pList = std::make_unique<CStringList>();
        pList->AddTail(&two);
        return pList;
    };
    ExpectAllOrNothing<CStringList>(
        makeList, Archived<CStringList>,
        {{"AddHead", [](CStringList& l) { l.AddHead(kLong); }},
         {"AddTail", [](CStringList& l) { l.AddTail(l.GetHead()); }},
         {"AddHead list", [&](CStringList& l) { l.AddHead(&two); }},
         {"AddTail itself", [](CStringList& l) { l.AddTail(&l); }},
         {"InsertBefore", [](CStringList& l) { l.InsertBefore(l.GetTailPosition(), kLong); }},
         {"InsertAfter", [](CStringList& l) { l.InsertAfter(l.GetHeadPosition(), kLong); }},
         {"SetAt", [](CStringList& l) { l.SetAt(l.GetTailPosition(), kLong); }}});

    using Map = CMap<CString, LPCTSTR, CString, LPCTSTR>;
    const auto makeMap = [] {
        auto pMap = std::make_unique<Map>();
        pMap->SetAt(L"old", L"value");
        return pMap;
    };
    ExpectAllOrNothing<Map>(makeMap, Archived<Map>,
                            {{"SetAt a new key", [](Map& m) { m.SetAt(L"new", kLong); }},
                             {"SetAt", [](Map& m) { m.SetAt(L"old", kLong); }},
                             {"[]", [](Map& m) { m[kLong]; }},
                             {"InitHashTable", [](Map& m) { m.InitHashTable(1000); }}});
}

// The archive itself is of no use after a failure; nothing may be left, and the next one works.
TEST(Faults, ArchivesLeaveNothing) {
    CStringArray strings;
    strings.Add(kLong);
    strings.Add(L"\U0001F600");
    const auto store = [&] {
        return Stored([&](CArchive& ar) { ar << 1.5 << CString(kLong) << &strings << &strings; });
    };
    EXPECT_GT(faults::FailEach(FailMemory, store), 5);
    const Bytes bytes = store();
    const auto load = [](CArchive& ar) {
        double number = 0;
        CString text = L"old";
        ar >> number >> text;
        const std::unique_ptr<CObject> owner(ar.ReadObject(nullptr));
        EXPECT_EQ(owner.get(), ar.ReadObject(nullptr));
    };
    EXPECT_GT(faults::FailEach(FailMemory, [&] { Loaded(bytes, load); }), 5);
}

struct FaultsOfFiles : TempFolder {
    void WriteAndRead() const {
        constexpr UINT kMode = kCreate | CFile::shareExclusive;
        std::filesystem::remove(m_folder / "b");
        CFile file(Path(L"a"), kMode);
        file.Write("abcdef", 6);
        file.Flush();
        EXPECT_EQ(6U, file.GetLength());
        file.SetLength(4);
        file.LockRange(0, 1);
        file.UnlockRange(0, 1);
        file.SeekToBegin();
        char buffer[8] = {};
        EXPECT_EQ(2U, file.Read(buffer, 2));
        EXPECT_EQ(2U, file.Read(buffer + 2, 6));
        EXPECT_STREQ("abcd", buffer);
        delete file.Duplicate();
        file.Close();
        CFile::Rename(Path(L"a"), Path(L"b"));
        CFile::Remove(Path(L"b"));
        CStdioFile lines(Path(L"a"), kMode);
        lines.WriteString(L"one\ntwo\n");
        lines.SeekToBegin();
        CString line;
        lines.ReadString(line);
        EXPECT_STREQ(L"one", line);
        lines.Write("2", 1);
        lines.Close();
    }
};

TEST_F(FaultsOfFiles, EachFailureIsThrownAndClosesTheFile) {
    const auto run = [&] { WriteAndRead(); };
    EXPECT_GT(faults::FailEach(FailMemory, run), 10);
    // error: 0: half of it is done
    for (const auto& [call, error, least] : Rows<const char*, int, long>{
             {nullptr, EIO, 15}, {nullptr, EINTR, 15}, {"write", 0, 2}, {"read", 0, 2}})
        EXPECT_GT(faults::FailEach([&](long nth) { FailCall(call, error, nth); }, run), least) << error;
}

TEST_F(FaultsOfFiles, CausesAndWhatIsOnDiskAfterwards) {
    // error: 0: half of it is done
    // position: after writing 6 bytes
    for (const auto& [call, error, wanted, wantedPosition] :
         Rows<const char*, int, int, ULONGLONG>{{"write", 0, CFileException::none, 6},
                                                {"write", EINTR, CFileException::none, 6},
                                                {"write", ENOSPC, CFileException::diskFull, 0},
                                                {"write", EIO, CFileException::hardIO, 0},
                                                {"fsync", EIO, CFileException::hardIO, 6},
                                                {"close", ENOSPC, CFileException::diskFull, 6}}) {
        SCOPED_TRACE(call);
        const faults::Use before = faults::Now();
        int cause = CFileException::none;
        {
            CFile file(Path(L"a"), CFile::modeCreate | CFile::modeWrite);
            FailCall(call, error);
            try {
                file.Write("abcdef", 6);
                file.Flush();
                file.Close();
            } catch (CFileException* e) {
                cause = e->m_cause;
                EXPECT_EQ(error, e->m_lOsError);
                EXPECT_STREQ(Path(L"a"), e->m_strFileName);
                e->Delete();
            }
            EXPECT_TRUE(faults::Disarm());
            if (file.m_hFile != CFile::hFileNull) {
                EXPECT_EQ(wantedPosition, file.GetPosition());
            }
        }
        EXPECT_EQ(wanted, cause);
        EXPECT_EQ(wantedPosition, Text(Path(L"a")).size());
        EXPECT_EQ(before, faults::Now());
    }
}

TEST_F(FaultsOfFiles, LinesThatTheDiskDoesNotTakeAreReported) {
    constexpr UINT kMode = CFile::modeCreate | CFile::modeWrite;
    CStdioFile file;
    CFileException error;
    const auto write = [&](CStdioFile& target) {
        EXPECT_TRUE(target.Open(Path(L"a"), kMode));
        target.WriteString(L"x");
        FailCall("write", ENOSPC);
    };
    for (CFileException* const pError : {&error, static_cast<CFileException*>(nullptr)}) {
        const long before = faults::Now().blocks;
        write(file);
        EXPECT_FALSE(file.Open(Path(L"b"), kMode, pError));
        EXPECT_EQ(before + (pError != nullptr ? 1 : 0), faults::Now().blocks) << "the name alone";
        EXPECT_FALSE(std::filesystem::exists(m_folder / "b"));
    }
    EXPECT_EQ(CFileException::diskFull, error.m_cause);
    EXPECT_EQ(ENOSPC, error.m_lOsError);
    EXPECT_STREQ(Path(L"a"), error.m_strFileName);
    EXPECT_TRUE(file.Open(Path(L"a"), kMode));
    FailCall("fsync", EIO);
    EXPECT_EQ(CFileException::hardIO, CauseOf([&] { file.Flush(); }));
    write(file);
    EXPECT_EQ(CFileException::diskFull, CauseOf([&] { file.Close(); }));
    EXPECT_EQ(CFile::hFileNull, file.m_hFile);
    const faults::Use before = faults::Now();
    EXPECT_NO_THROW({
        CStdioFile last;
        write(last);
    });
    EXPECT_TRUE(faults::Disarm());
    EXPECT_EQ(before, faults::Now());
}

TEST_F(FaultsOfFiles, FlagsReachTheSystem) {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    for (const auto& [flags, descriptor, status] : Rows<UINT, int, int>{
             {0, 0, 0}, {CFile::modeNoInherit | CFile::osWriteThrough, FD_CLOEXEC, O_SYNC}}) {
        CFile file(Path(L"a"), kCreate | flags);
        const int fd = static_cast<int>(reinterpret_cast<std::intptr_t>(file.m_hFile));
        EXPECT_EQ(descriptor, ::fcntl(fd, F_GETFD));
        EXPECT_EQ(status, ::fcntl(fd, F_GETFL) & O_SYNC);
        struct stat made {};
        ::fstat(fd, &made);
        EXPECT_EQ(0666U & ~mask, made.st_mode & 0777U);
    }
}

TEST_F(FaultsOfFiles, WhatTheSystemCannotDoChangesNothing) {
    CFile file(Path(L"a"), kCreate);
    file.Write("abc", 3);
    constexpr ULONGLONG kFar = ~0ULL;
    const Rows<int, std::function<void()>> rows = {
        {CFileException::badSeek, [&] { file.Seek(0, 3); }},
        {CFileException::badSeek, [&] { file.Seek(INT64_MAX, CFile::current); }},
        {CFileException::diskFull, [&] { file.SetLength(kFar); }},
        {CFileException::badSeek, [&] { file.LockRange(kFar, 1); }},
        {CFileException::badSeek, [&] { file.LockRange(2, kFar); }},
        {CFileException::lockViolation, [&] { FailCall("fcntl", EWOULDBLOCK), file.LockRange(0, 1); }},
        {CFileException::diskFull, [&] { FailCall("write", 0), file.Write("x", 1); }}, // takes nothing
    };
    for (const auto& [wanted, use] : rows) {
        EXPECT_EQ(wanted, CauseOf(use));
        EXPECT_EQ(3U, file.GetPosition());
        EXPECT_EQ(3U, file.GetLength());
    }
    FailCall("write", 0);
    try {
        file.Write("x", 1);
    } catch (CFileException* e) {
        EXPECT_EQ(-1, e->m_lOsError) << "the system told of no error";
        e->Delete();
    }
    FailCall("close", EIO);
    EXPECT_NO_THROW(file.Abort());
    EXPECT_TRUE(faults::Disarm());
    EXPECT_THROW(CFile::Rename(nullptr, Path(L"b")), CInvalidArgException*);
    EXPECT_THROW(CFile::Rename(Path(L"a"), nullptr), CInvalidArgException*);
}

TEST_F(FaultsOfFiles, OnlyFilesOnDiskAreOpened) {
    ASSERT_EQ(0, ::mkfifo((m_folder / "pipe").c_str(), 0600));
    for (const auto& [path, wanted] : Rows<CString, int>{{L"/dev/null", CFileException::badPath},
                                                         {L"/dev/full", CFileException::badPath},
                                                         {L"/dev/tty", CFileException::badPath},
                                                         {Path(L"pipe"), CFileException::badPath},
                                                         {Path(L""), CFileException::accessDenied}}) {
        for (const UINT mode :
             {UINT{CFile::modeRead}, UINT{CFile::modeWrite}, UINT{CFile::modeReadWrite}, kCreate}) {
            const faults::Use before = faults::Now();
            CFileException error;
            EXPECT_FALSE(CFile().Open(path, mode, &error));
            EXPECT_EQ(wanted, error.m_cause) << std::filesystem::path(path.GetString()) << " " << mode;
            error.m_strFileName.Empty();
            EXPECT_EQ(before, faults::Now());
        }
    }
    CStdioFile stream(std::fopen("/dev/full", "w")); // its buffer takes the text, the disk does not
    EXPECT_EQ(CFileException::diskFull, CauseOf([&] { stream.WriteString(L"x"), stream.Flush(); }));
    stream.Abort();
}

TEST(SystemErrors, EachHasItsCause) {
    for (const auto& [wanted, errors] : Rows<int, std::vector<int>>{
             {CFileException::none, {0}},
             {CFileException::badPath, {ENOTDIR, ENAMETOOLONG, ELOOP}},
             {CFileException::tooManyOpenFiles, {EMFILE, ENFILE}},
             {CFileException::accessDenied, {EPERM, EROFS, EISDIR}},
             {CFileException::badSeek, {ESPIPE}},
             {CFileException::hardIO, {ENODEV, ENOMEDIUM, EREMOTEIO}},
             {CFileException::lockViolation, {ENOLCK}},
             {CFileException::diskFull, {EDQUOT}},
             {CFileException::genericException, {ENOMEM}},
         })
        for (const int error : errors)
            EXPECT_EQ(wanted, CFileException::OsErrorToException(error)) << error;
}

TEST_F(FaultsOfFiles, WhatIsNoCharacterIsReplaced) {
    const CString wrong(static_cast<TCHAR>(0x110000));
    EXPECT_EQ("ff fe ff 01 fd ff", ToHex(Stored([&](CArchive& ar) { ar << wrong; })));
    Make(wrong, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder / u8"\uFFFD"));
}

} // namespace
