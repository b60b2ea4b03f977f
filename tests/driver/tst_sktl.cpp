#include "driver/sktl.h"

#include "driver/sk_status.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

TEST(TrackedAllocation, freeReturnsFiveForUnknownBlocksAndMovesTheLastEntry)
{
    const std::uint32_t before = SKTL_AllocationCount();
    void *a = SKTL_Alloc(100, "a");
    void *b = SKTL_Alloc(200, "b");
    void *c = SKTL_Alloc(300, "c");
    ASSERT_TRUE(a && b && c);
    EXPECT_EQ(SKTL_AllocationCount(), before + 3);

    EXPECT_EQ(SKTL_Free(a), SK_STS_SUCCESS);
    EXPECT_EQ(SKTL_Free(a), SK_STS_SPACE_NOT_ALLOCATED);
    int local = 0;
    EXPECT_EQ(SKTL_Free(&local), SK_STS_SPACE_NOT_ALLOCATED);
    // b and c are still tracked after the table was compacted.
    EXPECT_EQ(SKTL_CheckRange(b, 200), 1u);
    EXPECT_EQ(SKTL_CheckRange(c, 300), 1u);
    EXPECT_EQ(SKTL_Free(b), SK_STS_SUCCESS);
    EXPECT_EQ(SKTL_Free(c), SK_STS_SUCCESS);
    EXPECT_EQ(SKTL_AllocationCount(), before);
}

TEST(TrackedAllocation, checkRangeAcceptsOnlyRangesInsideOneBlock)
{
    auto *block = static_cast<std::uint8_t *>(SKTL_Alloc(4096, "range"));
    ASSERT_TRUE(block);
    EXPECT_EQ(SKTL_CheckRange(block, 4096), 1u);
    EXPECT_EQ(SKTL_CheckRange(block + 4000, 96), 1u);
    EXPECT_EQ(SKTL_CheckRange(block + 4096, 0), 1u);
    EXPECT_EQ(SKTL_CheckRange(block + 4000, 97), 0u);
    EXPECT_EQ(SKTL_CheckRange(block, 4097), 0u);
    EXPECT_EQ(SKTL_CheckRange(block - 1, 2), 0u);
    std::vector<std::uint8_t> untracked(64);
    EXPECT_EQ(SKTL_CheckRange(untracked.data(), 1), 0u);
    SKTL_Free(block);
}

TEST(TrackedAllocation, reportListsEveryBlockWithItsTag)
{
    void *block = SKTL_Alloc(512, "SK_Core::SK_GetConfig");
    std::FILE *out = std::tmpfile();
    ASSERT_TRUE(out);
    SKTL_ReportAllocations(out);
    std::rewind(out);
    std::string report;
    char chunk[4096];
    for (std::size_t n; (n = std::fread(chunk, 1, sizeof chunk, out)) > 0;)
        report.append(chunk, n);
    std::fclose(out);
    EXPECT_EQ(report.rfind("\n\n***** SKTL_Alloc() allocations\n", 0), 0u);
    char line[128];
    std::snprintf(line, sizeof line, "%p:512 from SK_Core::SK_GetConfig\n", block);
    EXPECT_NE(report.find(line), std::string::npos) << report;
    SKTL_Free(block);
}

TEST(TrackedAllocationDeathTest, theBlockPastTheTableIsFatal)
{
    EXPECT_DEATH(
        {
            for (std::uint32_t i = 0; i <= SKTL_MAX_ALLOCATIONS; ++i)
                SKTL_Alloc(1, "flood");
        },
        "allocation table full");
}

TEST(AlignedBuffer, isAlignedClearedAndInsideItsBlock)
{
    SKTL_AlignedBuffer buffer(1024, "aligned");
    ASSERT_TRUE(buffer.ok());
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(buffer.data()) % 4096, 0u);
    EXPECT_EQ(SKTL_CheckRange(buffer.data(), 1024), 1u);
    for (std::size_t i = 0; i < 1024; ++i)
        ASSERT_EQ(buffer.data()[i], 0) << i;
}

struct PathCase
{
    const char *path;
    bool opens;
    const char *osName;
};

class PathGrammar : public ::testing::TestWithParam<PathCase>
{
};

TEST_P(PathGrammar, translatesToTheOperatingSystemName)
{
    std::string osName;
    EXPECT_EQ(SKTL_TranslatePath(GetParam().path, osName), GetParam().opens);
    EXPECT_EQ(osName, GetParam().osName);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, PathGrammar,
    ::testing::Values(PathCase{"//./Core1/Route2/Device5", true, "\\\\.\\Device2_5"},
                      PathCase{"//./Core1/Route2/Device0", true, "\\\\.\\SKConfig0"},
                      PathCase{"//./Core0/Route0/Device0", false, ""},
                      PathCase{"//./Core2/Route0/Device0", true, "\\\\.\\SKConfig1"},
                      PathCase{"//.,Core1,Route3,Device12", true, "\\\\.\\Device3_12"},
                      PathCase{"//./CORE1/R4/D0", true, "\\\\.\\SKConfig0"},
                      PathCase{"//./Core1", true, "\\\\.\\SKConfig0"},
                      PathCase{"//./Core/Route0/Device0", false, ""}, PathCase{"////", false, ""},
                      PathCase{"\\\\.\\BKConfig0", true, "\\\\.\\BKConfig0"},
                      PathCase{"C:/file.bin", true, "C:/file.bin"}));

} // namespace
