#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

#include "io/RecordText.h"

namespace Tevra {
namespace {

TEST(RecordText, RecordsAreWrittenWholeOrNotAtAll) {
    std::ostringstream stream;
    TextOut out(stream);
    RecordText record(out);
    record.Append("A=").Int(7, 3).Append(' ').General(0.1).Append(',').Cut(',');
    EXPECT_TRUE(record.Cut(',').End());
    for (const double bad :
         {std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()}) {
        EXPECT_FALSE(record.Append("B=").General(1.0).Append('\n').Padded(bad).End());
        EXPECT_FALSE(record.General(bad).Padded(2.0).End());
    }
    EXPECT_TRUE(record.Padded(-0.0).Append(' ').General(-0.0).End());
    EXPECT_TRUE(out.Flush());
    EXPECT_EQ(stream.str(), "A=007 0.1\n0.00000 0\n");
}

TEST(RecordText, GeneralNumbersAreThoseOfPrintf) {
    std::ostringstream stream;
    TextOut out(stream);
    RecordText record(out);
    const double values[] = {0.0,      1.0,   -7.0,         999999.0, -999999.0, 999999.5,
                             1e6,      -1e6,  1234567.0,    0.5,      -2.5e-7,   123456.0,
                             123456.5, 1e300, 2147483648.0, 100.25};
    std::string expected;
    for (const double value : values) {
        char text[64];
        const int length = std::snprintf(text, sizeof text, "%g\n", value);
        ASSERT_GT(length, 0);
        expected += text;
        record.General(value).End();
    }
    EXPECT_TRUE(out.Flush());
    EXPECT_EQ(stream.str(), expected);
}

}  // namespace
}  // namespace Tevra
