// Each allocation and each system call fails once.
#include "support/ArchiveBytes.h"
#include "support/NativeFaults.h"

#include "afxcoll.h"
#include "afxtempl.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <tuple>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using faults::FailCall;
using faults::FailMemory;

// Longer than what a string keeps without asking for memory.
constexpr LPCTSTR kLong = L"a text that is longer than any small string";

template <class Object>
struct Change {
    const char* what;
    std::function<void(Object&)> run;
};

template <class Object, class Make, class Look, std::size_t N>
void ExpectAllOrNothing(Make make, Look look, const Change<Object> (&changes)[N]) {
    for (const Change<Object>& change : changes) {
        SCOPED_TRACE(change.what);
        EXPECT_GT(faults::FailEachChange(make, change.run, look), 0) << "nothing that can fail";
    }
}

std::vector<CString> TextsOf(const CStringList& list) {
    std::vector<CString> texts;
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        texts.push_back(list.GetNext(pos));
    return texts;
}

using Map = CMap<CString, LPCTSTR, CString, LPCTSTR>;

CString TextOf(const Map& map, LPCTSTR key) {
    CString text = L"none";
    map.Lookup(key, text);
    return text;
}

TEST(Faults, StringsChangeWhollyOrNotAtAll) {
    const CString other = CString(kLong) + kLong;
    const Change<CString> changes[] = {
        {"own copy",
         [](CString& s) {
             const CString twin = s;
             s.SetAt(0, L'A');
         }},
        {"= narrow",
         [](CString& s) { s = "a narrow text that is longer than any small string, much longer"; }},
        {"+=", [&](CString& s) { s += other; }},
        {"Insert", [](CString& s) { s.Insert(3, kLong); }},
        {"Replace", [](CString& s) { s.Replace(L"a", kLong); }},
        {"Tokenize",
         [](CString& s) {
             int n = 0;
             s = s.Tokenize(L"x", n) + s.Tokenize(L"x", n);
         }},
        {"Format", [](CString& s) { s.Format(L"%s %d %hs %#40.3f %c", kLong, 5, "narrow", 1.5, L'x'); }},
        {"AppendFormat", [](CString& s) { s.AppendFormat(L"%-100d|%p", 5, nullptr); }}};
    ExpectAllOrNothing([] { return std::make_unique<CString>(kLong); }, [](const CString& s) { return s; },
                       changes);
}

// Strings of the framework share their text, so that copying one cannot fail.
using Texts = CArray<std::string, const std::string&>;
} // namespace

template <>
void SerializeElements(CArchive&, std::string*, INT_PTR) {}

namespace {

TEST(Faults, ArraysChangeWhollyOrNotAtAll) {
    const std::string text = "a text that is longer than any small string";
    Texts three;
    for (int i = 0; i < 3; ++i)
        three.Add(text);
    Texts five;
    five.SetSize(5);
    five[4] = text;
    const auto make = [&] {
        auto pArray = std::make_unique<Texts>();
        pArray->Append(three);
        return pArray;
    };
    const Change<Texts> changes[] = {{"Add", [&](Texts& a) { a.Add(text); }},
                                     {"SetSize", [](Texts& a) { a.SetSize(100); }},
                                     {"SetAt", [&](Texts& a) { a.SetAt(1, text + text); }},
                                     {"SetAtGrow", [&](Texts& a) { a.SetAtGrow(9, text); }},
                                     {"InsertAt", [&](Texts& a) { a.InsertAt(1, text, 4); }},
                                     {"InsertAt behind", [&](Texts& a) { a.InsertAt(7, text, 2); }},
                                     {"InsertAt array", [&](Texts& a) { a.InsertAt(1, &three); }},
                                     {"Append", [&](Texts& a) { a.Append(three); }},
                                     {"Append itself", [](Texts& a) { a.Append(a); }},
                                     {"Copy", [&](Texts& a) { a.Copy(five); }}};
    ExpectAllOrNothing(
        make, [](const Texts& a) { return std::vector(a.GetData(), a.GetData() + a.GetSize()); }, changes);
}

TEST(Faults, ListsAndMapsChangeWhollyOrNotAtAll) {
    CStringList two;
    two.AddTail(kLong);
    two.AddTail(L"b");
    const Change<CStringList> ofLists[] = {
        {"AddHead", [](CStringList& l) { l.AddHead(kLong); }},
        {"AddTail", [](CStringList& l) { l.AddTail(l.GetHead()); }},
        {"AddHead list", [&](CStringList& l) { l.AddHead(&two); }},
        {"AddTail itself", [](CStringList& l) { l.AddTail(&l); }},
        {"InsertBefore", [](CStringList& l) { l.InsertBefore(l.GetTailPosition(), kLong); }},
        {"InsertAfter", [](CStringList& l) { l.InsertAfter(l.GetHeadPosition(), kLong); }},
        {"SetAt", [](CStringList& l) { l.SetAt(l.GetTailPosition(), kLong); }}};
    ExpectAllOrNothing(
        [&] {
            auto pList = std::make_unique<CStringList>();
            pList->AddTail(&two);
            return pList;
        },
        [](const CStringList& l) { return TextsOf(l); }, ofLists);

    const Change<Map> ofMaps[] = {{"SetAt a new key", [](Map& m) { m.SetAt(L"new", kLong); }},
                                  {"SetAt", [](Map& m) { m.SetAt(L"old", kLong); }},
                                  {"[]", [](Map& m) { m[L"a key that is longer than any small string"]; }},
                                  {"InitHashTable", [](Map& m) { m.InitHashTable(1000); }}};
    ExpectAllOrNothing(
        [] {
            auto pMap = std::make_unique<Map>();
            pMap->SetAt(L"old", L"value");
            return pMap;
        },
        [](const Map& m) { return std::tuple(m.GetCount(), TextOf(m, L"old"), TextOf(m, L"new")); }, ofMaps);
}

TEST(Faults, MemoryFilesKeepWhatTheyHave) {
    const Change<CMemFile> changes[] = {
        {"Write", [](CMemFile& file) { file.Write(kLong, 100); }},
        {"SetLength", [](CMemFile& file) { file.SetLength(100); }},
        {"Write behind the end", [](CMemFile& file) { file.Seek(500, CFile::begin), file.Write("x", 1); }}};
    ExpectAllOrNothing(
        [] {
            auto pFile = std::make_unique<CMemFile>(16);
            pFile->Write("abc", 3);
            return pFile;
        },
        [](CMemFile& file) { return ContentOf(file); }, changes);
    EXPECT_GT(faults::FailEach(FailMemory, [] { CMemFile(16).Write("abc", 3); }), 0) << "the first memory";
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
    EXPECT_GT(faults::FailEach(FailMemory,
                               [&] {
                                   CMemFile file;
                                   file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
                                   file.SeekToBegin();
                                   CArchive ar(&file, CArchive::load);
                                   double number = 0;
                                   CString text = L"old";
                                   ar >> number >> text;
                                   const std::unique_ptr<CObject> owner(ar.ReadObject(nullptr));
                                   EXPECT_EQ(owner.get(), ar.ReadObject(nullptr));
                               }),
              5);
}

struct FaultsOfFiles : testing::Test {
    FaultsOfFiles() {
        m_folder =
            std::filesystem::temp_directory_path() / ("fieldkit-" + std::to_string(std::random_device{}()));
        std::filesystem::create_directories(m_folder);
    }
    ~FaultsOfFiles() override { std::filesystem::remove_all(m_folder); }

    CString Path(const char* name) const { return CString((m_folder / name).c_str()); }
    std::uintmax_t Length(const char* name) const { return std::filesystem::file_size(m_folder / name); }

    void WriteAndRead() const {
        constexpr UINT kMode = CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive;
        std::filesystem::remove(m_folder / "b");
        CFile file(Path("a"), kMode);
        file.Write("abcdef", 6);
        file.Flush();
        file.SetLength(4);
        file.LockRange(0, 1);
        file.UnlockRange(0, 1);
        file.SeekToBegin();
        char buffer[8] = {};
        EXPECT_EQ(4U, file.Read(buffer, 8));
        EXPECT_EQ(4U, file.GetLength());
        const std::unique_ptr<CFile> twin(file.Duplicate());
        twin->Close();
        file.Close();
        CFile::Rename(Path("a"), Path("b"));
        CFile::Remove(Path("b"));
        CStdioFile lines(Path("a"), kMode);
        lines.WriteString(L"one\ntwo\n");
        lines.SeekToBegin();
        CString line;
        EXPECT_TRUE(lines.ReadString(line) && line == L"one");
        lines.Write("2", 1);
        lines.Close();
    }

    std::filesystem::path m_folder;
};

TEST_F(FaultsOfFiles, EachFailureIsThrownAndClosesTheFile) {
    EXPECT_GT(faults::FailEach(FailMemory, [&] { WriteAndRead(); }), 10);
    for (const int error : {EIO, EINTR}) {
        const bool retried = error == EINTR;
        const long failed =
            faults::FailEach([&](long nth) { FailCall(nullptr, error, nth); }, [&] { WriteAndRead(); });
        EXPECT_GT(failed, 15) << retried;
    }
}

TEST_F(FaultsOfFiles, CausesAndWhatIsOnDiskAfterwards) {
    // error: 0: half of it is done
    // position: after writing 6 bytes
    for (const auto& [call, error, wanted, wantedPosition] :
         Rows<const char*, int, int, ULONGLONG>{{"write", 0, CFileException::none, 6},
                                                {"write", EINTR, CFileException::none, 6},
                                                {"write", ENOSPC, CFileException::diskFull, 0},
                                                {"write", EDQUOT, CFileException::diskFull, 0},
                                                {"write", EIO, CFileException::hardIO, 0},
                                                {"write", ENODEV, CFileException::hardIO, 0},
                                                {"fsync", EINTR, CFileException::none, 6},
                                                {"fsync", EIO, CFileException::hardIO, 6},
                                                {"close", EIO, CFileException::hardIO, 6},
                                                {"close", ENOSPC, CFileException::diskFull, 6}}) {
        SCOPED_TRACE(call + std::string(" ") + std::to_string(error));
        const faults::Use before = faults::Now();
        int cause = CFileException::none;
        ULONGLONG position = 0;
        {
            CFile file(Path("a"), CFile::modeCreate | CFile::modeWrite);
            FailCall(call, error);
            try {
                file.Write("abcdef", 6);
                position = file.GetPosition();
                file.Flush();
                file.Close();
            } catch (CFileException* e) {
                cause = e->m_cause;
                EXPECT_EQ(error, e->m_lOsError);
                EXPECT_STREQ(Path("a"), e->m_strFileName);
                e->Delete();
            }
            EXPECT_TRUE(faults::Disarm());
            const bool closed = file.m_hFile == CFile::hFileNull;
            EXPECT_EQ(closed, cause == CFileException::none || std::string(call) == "close");
            if (!closed && position == 0)
                position = file.GetPosition();
        }
        EXPECT_EQ(wanted, cause);
        EXPECT_EQ(wantedPosition, position);
        EXPECT_EQ(wantedPosition, Length("a"));
        EXPECT_EQ(before, faults::Now());
    }
}

TEST_F(FaultsOfFiles, ADiskThatIsFullHalfWayKeepsTheFirstHalf) {
    CFile file(Path("a"), CFile::modeCreate | CFile::modeWrite);
    FailCall("write", 0);
    file.Write("abcdef", 6); // the second half by a second call
    EXPECT_TRUE(faults::Disarm());
    EXPECT_EQ(6U, Length("a"));
    CFile reader(Path("a"), CFile::modeRead | CFile::shareDenyNone);
    char bytes[7] = {};
    FailCall("read", 0);
    EXPECT_EQ(6U, reader.Read(bytes, 6));
    EXPECT_TRUE(faults::Disarm());
    EXPECT_STREQ("abcdef", bytes);
    FailCall("close", EIO);
    EXPECT_NO_THROW(file.Abort());
    EXPECT_TRUE(faults::Disarm() && file.m_hFile == CFile::hFileNull);
}

TEST_F(FaultsOfFiles, LinesThatTheDiskDoesNotTakeAreReported) {
    const auto written = [&](CStdioFile& file) {
        EXPECT_TRUE(file.Open(Path("a"), CFile::modeCreate | CFile::modeWrite));
        file.WriteString(L"x");
        FailCall("write", ENOSPC);
    };
    CStdioFile file;
    written(file);
    CFileException error;
    EXPECT_FALSE(file.Open(Path("b"), CFile::modeCreate | CFile::modeWrite, &error));
    EXPECT_TRUE(error.m_cause == CFileException::diskFull && error.m_lOsError == ENOSPC);
    EXPECT_STREQ(Path("a"), error.m_strFileName);
    written(file);
    EXPECT_FALSE(file.Open(Path("b"), CFile::modeCreate | CFile::modeWrite));
    EXPECT_FALSE(std::filesystem::exists(m_folder / "b"));
    written(file);
    EXPECT_TRUE(Throws<CFileException>([&] { file.Close(); }));
    EXPECT_TRUE(file.m_hFile == CFile::hFileNull);
    const faults::Use before = faults::Now();
    EXPECT_NO_THROW({
        CStdioFile last;
        written(last);
    });
    EXPECT_TRUE(faults::Disarm());
    EXPECT_EQ(before, faults::Now());
}

TEST_F(FaultsOfFiles, WhatTheSystemCannotDoChangesNothing) {
    CFile file(Path("a"),
               CFile::modeCreate | CFile::modeReadWrite | CFile::modeNoInherit | CFile::osWriteThrough);
    file.Write("abc", 3);
    const int fd = static_cast<int>(reinterpret_cast<std::intptr_t>(file.m_hFile));
    EXPECT_TRUE((::fcntl(fd, F_GETFD) & FD_CLOEXEC) != 0 && (::fcntl(fd, F_GETFL) & O_SYNC) == O_SYNC);
    CFile plain(Path("plain"), CFile::modeCreate | CFile::modeWrite);
    const int plainFd = static_cast<int>(reinterpret_cast<std::intptr_t>(plain.m_hFile));
    EXPECT_TRUE(::fcntl(plainFd, F_GETFD) == 0 && (::fcntl(plainFd, F_GETFL) & O_SYNC) == 0);
    struct stat status {};
    ::fstat(plainFd, &status);
    EXPECT_EQ(0600U, status.st_mode & 0700U);
    constexpr ULONGLONG kFar = ~0ULL;
    const Rows<int, std::function<void()>> rows = {
        {CFileException::badSeek, [&] { file.Seek(0, 3); }},
        {CFileException::badSeek, [&] { file.Seek(INT64_MAX, CFile::current); }},
        {CFileException::diskFull, [&] { file.SetLength(kFar); }},
        {CFileException::badSeek, [&] { file.LockRange(kFar, 1); }},
        {CFileException::badSeek, [&] { file.LockRange(0, kFar); }},
        {CFileException::lockViolation, [&] { FailCall("fcntl", EWOULDBLOCK), file.LockRange(0, 1); }},
        {CFileException::diskFull, [&] { FailCall("write", 0), file.Write("x", 1); }}, // takes nothing
    };
    for (const auto& [wanted, use] : rows) {
        EXPECT_EQ(wanted, CauseOf(use));
        EXPECT_EQ(3U, file.GetPosition());
        EXPECT_EQ(3U, file.GetLength());
    }
    faults::Disarm();
    EXPECT_THROW(CFile::Rename(nullptr, Path("b")), CInvalidArgException*);
    EXPECT_THROW(CFile::Rename(Path("a"), nullptr), CInvalidArgException*);
}

TEST_F(FaultsOfFiles, OnlyFilesOnDiskAreOpened) {
    ASSERT_EQ(0, ::mkfifo((m_folder / "pipe").c_str(), 0600));
    for (const auto& [path, wanted] : Rows<CString, int>{{L"/dev/null", CFileException::badPath},
                                                         {L"/dev/zero", CFileException::badPath},
                                                         {L"/dev/full", CFileException::badPath},
                                                         {L"/dev/tty", CFileException::badPath},
                                                         {Path("pipe"), CFileException::badPath},
                                                         {Path(""), CFileException::accessDenied}}) {
        for (const UINT mode : {UINT{CFile::modeRead}, UINT{CFile::modeWrite}, UINT{CFile::modeReadWrite},
                                UINT{CFile::modeCreate | CFile::modeWrite}}) {
            const faults::Use before = faults::Now();
            CFileException error;
            EXPECT_FALSE(CFile().Open(path, mode, &error));
            EXPECT_EQ(wanted, error.m_cause) << std::filesystem::path(path.GetString()) << " " << mode;
            error.m_strFileName.Empty();
            EXPECT_EQ(before, faults::Now());
        }
    }
    // A handle that the caller opened is the caller's business.
    CFile full(reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(::open("/dev/full", O_WRONLY))));
    EXPECT_EQ(CFileException::diskFull, CauseOf([&] { full.Write("x", 1); }));
    full.Close();
    CStdioFile stream(std::fopen("/dev/full", "w")); // its buffer takes the text, the disk does not
    EXPECT_EQ(CFileException::diskFull, CauseOf([&] { stream.WriteString(L"x"), stream.Flush(); }));
    stream.Abort();
}

TEST(SystemErrors, EachHasItsCause) {
    for (const auto& [error, wanted] : Rows<int, int>{{0, CFileException::none},
                                                      {ENOTDIR, CFileException::badPath},
                                                      {ENAMETOOLONG, CFileException::badPath},
                                                      {ELOOP, CFileException::badPath},
                                                      {EMFILE, CFileException::tooManyOpenFiles},
                                                      {ENFILE, CFileException::tooManyOpenFiles},
                                                      {EPERM, CFileException::accessDenied},
                                                      {EROFS, CFileException::accessDenied},
                                                      {ESPIPE, CFileException::badSeek},
                                                      {ENOMEDIUM, CFileException::hardIO},
                                                      {EREMOTEIO, CFileException::hardIO},
                                                      {ENOLCK, CFileException::lockViolation},
                                                      {ENOMEM, CFileException::genericException}})
        EXPECT_EQ(wanted, CFileException::OsErrorToException(error)) << error;
}

TEST_F(FaultsOfFiles, WhatIsNoCharacterIsReplaced) {
    const CString wrong(static_cast<TCHAR>(0x110000));
    EXPECT_EQ("ff fe ff 01 fd ff", ToHex(Stored([&](CArchive& ar) { ar << wrong; })));
    CFile(Path("") + wrong, CFile::modeCreate | CFile::modeWrite);
    EXPECT_TRUE(std::filesystem::exists(m_folder / u8"\uFFFD"));
}

} // namespace
