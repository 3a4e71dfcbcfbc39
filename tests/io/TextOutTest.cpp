#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "io/TextOut.h"

using namespace Tevra;

namespace {

/// Keeps what it is given and counts the pieces.
class CountingBuffer : public std::stringbuf {
public:
    int pieces = 0;

protected:
    std::streamsize xsputn(const char* text, std::streamsize count) override {
        ++pieces;
        return std::stringbuf::xsputn(text, count);
    }
};

TEST(TextOut, WritesEveryForm) {
    std::ostringstream stream;
    TextOut out(stream);
    out.Append("$ ").AppendWide(L"Ø\n").AppendCard(L"a\nb").Append(';').Fill(2).Fill(-1).EndLine();
    out.Int(5, 8).Int(7, 0, 3).Exp(1.0, 14).Fixed(2.0, 9, 1).SignedFixed(3.0).EndLine();
    out.General(0.1).Padded(12.0, 16).Append(' ').Shortest(0.3).EndLine();
    out.IntField(123, 2).RealField(-1.5, 8).RealField(1.5, 8, true);
    EXPECT_EQ(stream.str(), "") << "nothing is handed over before it must be";
    EXPECT_TRUE(out.Flush());
    EXPECT_EQ(stream.str(),
              "$ \xC3\x98\na b;  \n"
              "       5007  1.000000e+00      2.0+3.000000\n"
              "0.1         12.0000 0.3\n"
              "123**-1.50e+0 1.50e+0");
}

TEST(TextOut, LargeTextsGoInFewPiecesAndStayWhole) {
    CountingBuffer buffer;
    std::ostream stream(&buffer);
    TextOut out(stream);
    std::string expected;
    const std::string large(200000, 'x');
    for (int i = 0; i < 40000; ++i) {
        out.Int(i, 7).Fixed(i * 0.5, 15).Append("ab").EndLine();
        AppendInt(expected, i, 7);
        AppendFixed(expected, i * 0.5, 15);
        expected += "ab\n";
        if (i % 10000 == 5000) {
            out.Append(large);
            expected += large;
        }
    }
    EXPECT_TRUE(out.Flush());
    EXPECT_TRUE(buffer.str() == expected);
    EXPECT_LE(buffer.pieces, static_cast<int>(expected.size() / 65000) + 2);
}

TEST(TextOut, FlushTellsOfAFailedStream) {
    std::ofstream missing("/nowhere/at/all");
    TextOut lost(missing);
    EXPECT_FALSE(lost.Good());
    lost.Append(std::string(100000, 'x'));
    EXPECT_FALSE(lost.Flush());

    std::ofstream full("/dev/full", std::ios::binary);
    if (!full) {
        GTEST_SKIP() << "no device that is always full";
    }
    TextOut out(full);
    out.Append("small");
    EXPECT_TRUE(out.Good());
    EXPECT_FALSE(out.Flush()) << "the little that was written fails at the flush";
}

}  // namespace
