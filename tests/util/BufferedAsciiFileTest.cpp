#include "util/BufferedAsciiFile.h"

#include "support/TempFolder.h"

namespace {

constexpr UINT kBlock = 65536;

using Random = std::minstd_rand;

UINT AnySize(Random& random) {
    constexpr UINT kSizes[] = {0, 1, 2, 3, 40, 511, 513, 9000, kBlock - 1, kBlock, kBlock + 1};
    return kSizes[static_cast<std::size_t>(random() % std::size(kSizes))];
}

std::string AnyBytes(Random& random) {
    std::string bytes(AnySize(random), '\0');
    for (char& ch : bytes)
        ch = "0123456789 abcdefghij\r\n"[static_cast<std::size_t>(random() % 23)];
    return bytes;
}

/// Does one operation, chosen by the seed, and tells everything that can be seen of it.
std::string Step(CAsciiFile& file, unsigned seed) try {
    Random random(seed);
    std::string seen;
    switch (random() % 8) {
    case 0:
    case 1:
        for (unsigned n = random() % 8 == 0 ? 9 : 1; n > 0; --n) { // from block to block
            std::string part(AnySize(random), '\0');
            part.resize(file.Read(part.data(), static_cast<UINT>(part.size())));
            seen += part;
        }
        break;
    case 2:
    case 3: {
        const std::string bytes = AnyBytes(random);
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
        break;
    }
    case 4:
        for (CString line; seen.size() < 40 && file.ReadString(line) != 0;)
            seen += std::to_string(line.GetLength()) + ' ';
        break;
    case 5:
        file.WriteString(L"a line");
        break;
    case 6:
        if (random() % 4 == 0)
            file.Seek(static_cast<LONGLONG>(AnySize(random)) - 100, static_cast<UINT>(random() % 3));
        else
            file.Seek(static_cast<LONGLONG>(random() % (file.GetLength() + 1)), CFile::begin);
        break;
    case 7:
        random() % 3 == 0 ? file.SetLength(AnySize(random)) : file.Flush();
        break;
    }
    return seen + "; " + std::to_string(file.GetPosition()) + " of " + std::to_string(file.GetLength());
} catch (CFileException* e) {
    const int nCause = e->m_cause;
    e->Delete();
    return "cause " + std::to_string(nCause) + " at " + std::to_string(file.GetPosition());
}

std::string LongText() {
    std::string text;
    for (unsigned i = 0; i < 3 * kBlock; ++i)
        text += static_cast<char>('0' + i * i % 71);
    return text;
}

struct BufferedAsciiFile : TempFolder {};

TEST_F(BufferedAsciiFile, ReadsOnBehindTheBlockWithoutAnother) {
    const std::string text = LongText();
    CBufferedAsciiFile file;
    ASSERT_TRUE(file.Open(Make(L"a", text), CFile::modeRead));
    std::string read(2 * kBlock + 1, '\0');
    EXPECT_EQ(1U, file.Read(read.data(), 1));
    EXPECT_EQ(2 * kBlock, file.Read(read.data() + 1, 2 * kBlock));
    EXPECT_EQ(2 * kBlock + 1, file.GetPosition());
    EXPECT_EQ(text.substr(0, 2 * kBlock + 1), read);
}

TEST_F(BufferedAsciiFile, GivesInAnyOrderOfCallsWhatAnAsciiFileGives) {
    const std::string start = LongText();
    const CString plainPath = Path(L"plain"), bufferedPath = Path(L"buffered");
    for (unsigned nRun = 0; nRun < 20; ++nRun) {
        {
            CAsciiFile plain;
            CBufferedAsciiFile buffered;
            for (auto [pFile, path] :
                 {std::pair<CAsciiFile*, CString>(&plain, plainPath), {&buffered, bufferedPath}}) {
                ASSERT_TRUE(pFile->Open(path, kCreate));
                pFile->Write(start.data(), static_cast<UINT>(start.size()));
            }
            for (unsigned nStep = 0; nStep < 60; ++nStep)
                ASSERT_EQ(Step(plain, 1000 * nRun + nStep), Step(buffered, 1000 * nRun + nStep))
                    << nRun << ", " << nStep;
            if (nRun % 2 == 0)
                buffered.Close();
        }
        EXPECT_EQ(Text(plainPath), Text(bufferedPath)) << nRun;
    }
}

} // namespace
