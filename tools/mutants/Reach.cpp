// Part of each test program of the mutants' build: writes down which faults a test reaches.
#include "Mutant.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <vector>

namespace {

class CReach : public testing::EmptyTestEventListener {
    // What the start reaches concerns every test.
    void OnTestProgramStart(const testing::UnitTest&) override { m_start.assign(m_pReached, m_pReached + SIZE); }
    void OnTestStart(const testing::TestInfo&) override { std::memcpy(m_pReached, m_start.data(), SIZE); }
    void OnTestEnd(const testing::TestInfo& test) override {
        m_file << test.test_suite_name() << '.' << test.name() << ' ' << test.result()->elapsed_time();
        for (int i = 0; i < SIZE; ++i)
            if (m_pReached[i] != 0)
                m_file << ' ' << i;
        m_file << std::endl;
    }

    static constexpr int SIZE = 1 << 16;
    unsigned char* m_pReached = fkmutant::Map();
    std::vector<unsigned char> m_start;
    // A test may run this program once more, which writes here as well.
    std::ofstream m_file{std::string(std::getenv("MUTANT_REACH")) + ".txt", std::ios::app};
};

const bool g_bListening = [] {
    if (std::getenv("MUTANT_REACH") != nullptr)
        testing::UnitTest::GetInstance()->listeners().Append(new CReach);
    return true;
}();

} // namespace
