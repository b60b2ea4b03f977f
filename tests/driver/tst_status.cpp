#include "driver/sk_status.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

std::string nameOf(std::uint32_t status, std::uint32_t size = 64, int *result = nullptr)
{
    char out[80];
    std::memset(out, '#', sizeof out);
    const int r = SK_GetStatusName(status, out, size);
    if (result)
        *result = r;
    return std::string(out, strnlen(out, size));
}

struct NameCase
{
    std::uint32_t status;
    const char *name;
    int result;
};

class StatusNames : public ::testing::TestWithParam<NameCase>
{
};

TEST_P(StatusNames, nameAndResultFollowTheTable)
{
    int result = -1;
    EXPECT_EQ(nameOf(GetParam().status, 64, &result), GetParam().name);
    EXPECT_EQ(result, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Table, StatusNames,
    ::testing::Values(NameCase{0, "SK_STS_UNKNOWN", 1}, NameCase{1, "SK_STS_SUCCESS", 1},
                      NameCase{6, "SKTL_STS_INVALID_BUFFER", 1},
                      NameCase{11, "SK_STS_PHYSICAL_DEVICE_NOT_FOUND", 1},
                      NameCase{14, "SK_STS_UNKNOWN", 1}, NameCase{19, "SK_STS_UNKNOWN", 1},
                      NameCase{20, "SK_STS_BAD_FUNCTION", 1},
                      NameCase{38, "SK_STS_INVALID_GENERATION_NUMBER", 1},
                      NameCase{77, "SK_STS_LOGICAL_DEVICE_IN_USE", 1},
                      NameCase{82, "SK_STS_LAST_ERROR", 1}, NameCase{83, "SK_STS_UNKNOWN", 0},
                      NameCase{0xFFFFFFFFu, "SK_STS_UNKNOWN", 0}));

TEST(StatusTable, codeColumnKeepsItsHistoricalExceptions)
{
    for (std::uint32_t row = 0; row < SK_STATUS_TABLE_ROWS; ++row) {
        std::uint32_t expected = row;
        if (row == 0 || (row >= 12 && row <= 19) || row == 81)
            expected = 82;
        else if (row == 6)
            expected = 21;
        else if (row == 82)
            expected = 83;
        EXPECT_EQ(SK_StatusTable[row].Code, expected) << "row " << row;
    }
}

TEST(StatusTable, enumValuesMatchTheirRows)
{
    EXPECT_STREQ(SK_StatusTable[SK_STS_DEVICE_IS_BUSY].Name, "SK_STS_DEVICE_IS_BUSY");
    EXPECT_STREQ(SK_StatusTable[SK_STS_NO_SPACE_AVAILABLE].Name, "SK_STS_NO_SPACE_AVAILABLE");
    EXPECT_STREQ(SK_StatusTable[SK_STS_DEVICE_SMART_ERROR].Name, "SK_STS_DEVICE_SMART_ERROR");
    EXPECT_STREQ(SK_StatusTable[SK_STS_UNSUPPORT_FEATURE_SET].Name, "SK_STS_UNSUPPORT_FEATURE_SET");
}

TEST(StatusName, copyIsCutToTheGivenSizeAndNotTerminated)
{
    char out[16];
    std::memset(out, '#', sizeof out);
    EXPECT_EQ(SK_GetStatusName(SK_STS_SUCCESS, out, 6), 1);
    EXPECT_EQ(std::string(out, 7), "SK_STS#");
}

TEST(StatusName, largeSizesCopyAtMostSixtyFourBytes)
{
    char out[128];
    std::memset(out, '#', sizeof out);
    EXPECT_EQ(SK_GetStatusName(SK_STS_SUCCESS, out, 128), 1);
    EXPECT_STREQ(out, "SK_STS_SUCCESS");
    EXPECT_EQ(out[64], '#');
}

} // namespace
