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

/// What a program may have in its hands when its memory runs out.
struct Things {
    Things() {
        list.AddTail(kLong);
        list.AddTail(L"b");
        map[L"old"] = L"value";
        array.InsertAt(0, std::string(50, 'x'), 3);
    }
    Bytes Look() {
        return Stored([&](CArchive& ar) {
            ar << str;
            list.Serialize(ar);
            map.Serialize(ar);
            for (INT_PTR i = 0; i < array.GetSize(); ++i)
                ar << CString(array[i].c_str());
        });
    }

    CString str = kLong;
    CStringList list;
    CMap<CString, LPCTSTR, CString, LPCTSTR> map;
    // Strings of the framework share their text, so that copying one cannot fail.
    CArray<std::string, const std::string&> array;
};

TEST(Faults, WhatRunsOutOfMemoryIsDoneWhollyOrNotAtAll) {
    static const std::string text(60, 'y');
    const Rows<const char*, void (*)(Things&)> changes = {
        {"own copy",
         [](Things& t) {
             const CString twin = t.str;
             t.str.SetAt(0, L'A');
         }},
        {"= narrow", [](Things& t) { t.str = text.c_str(); }},
        {"+=", [](Things& t) { t.str += kLong; }},
        {"Insert", [](Things& t) { t.str.Insert(3, kLong); }},
        {"Replace", [](Things& t) { t.str.Replace(L"a", kLong); }},
        {"Format", [](Things& t) { t.str.Format(L"%s %hs %#40.3f", kLong, "narrow", 1.5); }},
        {"AppendFormat", [](Things& t) { t.str.AppendFormat(L"%-100d|%p", 5, nullptr); }},
        {"AddTail", [](Things& t) { t.list.AddTail(kLong); }},
        {"AddTail itself", [](Things& t) { t.list.AddTail(&t.list); }},
        {"AddHead itself", [](Things& t) { t.list.AddHead(&t.list); }},
        {"InsertAfter", [](Things& t) { t.list.InsertAfter(t.list.GetHeadPosition(), kLong); }},
        {"SetAt in the list", [](Things& t) { t.list.SetAt(t.list.GetTailPosition(), kLong); }},
        {"SetAt a new key", [](Things& t) { t.map.SetAt(L"new", kLong); }},
        {"SetAt a key", [](Things& t) { t.map.SetAt(L"old", kLong); }},
        {"SetSize", [](Things& t) { t.array.SetSize(100); }},
        {"SetAtGrow", [](Things& t) { t.array.SetAtGrow(9, text); }},
        {"InsertAt", [](Things& t) { t.array.InsertAt(1, text, 4); }},
        {"InsertAt behind", [](Things& t) { t.array.InsertAt(7, text, 2); }},
        {"Append itself", [](Things& t) { t.array.Append(t.array); }},
        {"Copy",
         [](Things& t) {
             CArray<std::string, const std::string&> a;
             a.Add(text);
             t.array.Copy(a);
         }},
    };
    for (const auto& [what, change] : changes) {
        SCOPED_TRACE(what);
        bool bFailed = true;
        long nth = 0;
        while (bFailed) {
            Things things;
            const Bytes before = things.Look();
            FailMemory(++nth);
            const faults::End end = faults::EndOf([&] { change(things); });
            bFailed = faults::Disarm();
            EXPECT_EQ(bFailed, end != faults::End::Done);
            EXPECT_EQ(bFailed, before == things.Look()) << nth;
        }
        EXPECT_GT(nth, 1) << "nothing that can fail";
    }
    Things things;
    FailMemory(1);
    EXPECT_THROW(things.array.SetSize(100), CMemoryException*);
    faults::Disarm();
}

// The archive itself is of no use after a failure; nothing may be left, and the next one works.
TEST(Faults, ArchivesLeaveNothing) {
    CStringList list;
    list.AddTail(kLong);
    CMapStringToString map;
    map[kLong] = kLong;
    const auto store = [&] {
        map[kLong].Format(L"%#40.3f", 1.5);
        return Stored([&](CArchive& ar) { ar << 1.5 << &list << &map << &map; });
    };
    EXPECT_GT(faults::FailEach(FailMemory, store), 5);
    const Bytes bytes = store();
    const auto load = [](CArchive& ar) {
        double number = 0;
        ar >> number;
        delete ar.ReadObject(nullptr);
        const std::unique_ptr<CObject> owner(ar.ReadObject(nullptr));
        EXPECT_EQ(owner.get(), ar.ReadObject(nullptr));
    };
    EXPECT_GT(faults::FailEach(FailMemory, [&] { Loaded(bytes, load); }), 5);
}

// With any bit turned, those of counts included, an archive gives its content or an exception.
TEST(Faults, DamagedArchivesComeToAnEnd) {
    CArray<double, double> numbers;
    numbers.Add(1.5);
    CMapStringToString map;
    map[L"a"] = kLong;
    const auto serialize = [&](CArchive& ar) { numbers.Serialize(ar), map.Serialize(ar); };
    const Bytes sound = Stored(serialize);
    faults::TakeLargest();
    for (std::size_t bit = 0; bit < 8 * sound.size(); ++bit) {
        Bytes damaged = sound;
        damaged[bit / 8] = static_cast<BYTE>(damaged[bit / 8] ^ (1 << bit % 8));
        Loaded(damaged, serialize);
        EXPECT_LT(faults::TakeLargest(), 100'000U) << "memory of the order of its bytes, whatever it says";
    }
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
        {
            CFile file(Path(L"a"), CFile::modeCreate | CFile::modeWrite);
            FailCall(call, error);
            EXPECT_EQ(wanted, CauseOf([&] { file.Write("abcdef", 6), file.Flush(), file.Close(); }));
            EXPECT_TRUE(faults::Disarm());
            if (file.m_hFile != CFile::hFileNull) {
                EXPECT_EQ(wantedPosition, file.GetPosition());
            }
        }
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
        {CFileException::diskFull, [&] { file.SetLength(kFar); }},
        {CFileException::badSeek, [&] { file.LockRange(kFar, 1); }},
        {CFileException::badSeek, [&] { file.LockRange(2, kFar); }},
        {CFileException::lockViolation, [&] { FailCall("fcntl", EWOULDBLOCK), file.LockRange(0, 1); }},
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
}

TEST_F(FaultsOfFiles, DevicesAreNoFilesAndMayBeFull) {
    EXPECT_EQ(CFileException::badPath, CauseOf([] { CFile(L"/dev/null", CFile::modeWrite); }));
    CStdioFile stream(std::fopen("/dev/full", "w")); // its buffer takes the text, the disk does not
    EXPECT_EQ(CFileException::diskFull, CauseOf([&] { stream.WriteString(L"x"), stream.Flush(); }));
    stream.Abort();
}

TEST_F(FaultsOfFiles, WhatIsNoCharacterIsReplaced) {
    const CString wrong(static_cast<TCHAR>(0x110000));
    EXPECT_EQ("ff fe ff 01 fd ff", ToHex(Stored([&](CArchive& ar) { ar << wrong; })));
    Make(wrong, "");
    EXPECT_TRUE(std::filesystem::exists(m_folder / u8"\uFFFD"));
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

} // namespace
