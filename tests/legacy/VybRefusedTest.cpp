#include <algorithm>
#include <cmath>
#include <functional>
#include <future>
#include <thread>

#include "legacy/VybFixture.h"

// Files that are damaged, missing or of another kind, and models that are held.

namespace Tevra {
namespace {

using VybRefusedTest = VybFileTest;

/// Whether nothing but zeros follows up to the end of the block.
bool IsPadding(const std::string& bytes, std::size_t i) {
    constexpr std::size_t kBlock = 512;
    const std::size_t end = std::min(bytes.size(), (i / kBlock + 1) * kBlock);
    return bytes.find_first_not_of('\0', i) >= end;
}

TEST_F(VybRefusedTest, ByteOrder) {
    ASSERT_TRUE(Read(SmallVyb()));
    const CVynData expected = m_model;
    m_model = CVynData();
    EXPECT_TRUE(ReadBytes(SmallVyb().Bytes(true), true));
    EXPECT_TRUE(m_model == expected);
    EXPECT_FALSE(ReadBytes(SmallVyb().Bytes(true), false));
    EXPECT_EQ(m_host.Messages(), kDamaged);
    EXPECT_TRUE(m_model == CVynData());
    EXPECT_FALSE(ReadBytes(SmallVyb().Bytes(false), true));
}

/// Every way in which a file is refused: the box that it gives, and an empty model.
TEST_F(VybRefusedTest, Refused) {
    using Change = std::function<void(VybWriter&)>;
    struct Case {
        const char* what;
        Change change;
        Texts messages = kDamaged;
    };
    static constexpr int kMost = 0x7FFFFFFF;
    const Case cases[] = {
        {"version", [](VybWriter& f) { f.version = "00005"; }, kNotVersion6},
        {"no directory", [](VybWriter& f) { f.numDirectory = 0; }},
        {"long directory", [](VybWriter& f) { f.numDirectory = kMost; }},
        {"cases", [](VybWriter& f) { f.numLoadCase = kMost; }},
        {"negative cases", [](VybWriter& f) { f.numLoadCase = -1; }},
        {"mass direction", [](VybWriter& f) { f.massDirection = 4; }},
        {"mass case", [](VybWriter& f) { f.massCase = -4; }},
        {"count", [](VybWriter& f) { f.counts[9] = kMost; }},
        {"negative count", [](VybWriter& f) { f.counts[9] = -1; }},
        {"length", [](VybWriter& f) { f.lengths[9] = kMost; }},
        {"short record", [](VybWriter& f) { f.lengths[9] = 28; }},
        {"no length", [](VybWriter& f) { f.lengths[10] = 0; }},
        {"place outside", [](VybWriter& f) { f.entries[5] = 999'999; }},
        {"titles outside", [](VybWriter& f) { f.entries[17] = 500; }},
        {"solution", [](VybWriter& f) { f.entries[21] = 6'000'004; }},
        {"number", [](VybWriter& f) { f.Add(9, VybFields{0}.PadTo(32)); }},
        {"not finite", [](VybWriter& f) { f.Add(9, VybFields{1}.Reals({INFINITY}).PadTo(32)); }},
        {"element kind",
         [](VybWriter& f) {
             f.Add(10, VybFields{1, 13}.PadTo(88));
         }},
        {"node count",
         [](VybWriter& f) {
             f.Add(10, VybFields{1, 1}.PadTo(88));
         }},
        {"list items",
         [](VybWriter& f) {
             f.Add(1, VybFields{1, 1, 11, 10}.PadTo(176));
         }},
        {"list prefix",
         [](VybWriter& f) {
             f.Add(1, VybFields{1, 1, 1, 0, 3, 1}.PadTo(176));
         }},
        {"mixed list",
         [](VybWriter& f) {
             f.Add(1, VybFields{1, 2, 0, 2, 0, 1, 1, 2}.PadTo(176));
         }},
        {"direction",
         [](VybWriter& f) {
             f.Add(12, VybFields{1, 7, 0, 7, 1.0F});
         }},
        {"load case",
         [](VybWriter& f) {
             f.Add(12, VybFields{0, 7, 0, 1, 1.0F});
         }},
        {"spring number", [](VybWriter& f) {
             f.Add(5, VybFields{kMost, 0}.Reals({1, 0, 0, 1, 0, 0}));
         }}};
    for (const Case& c : cases) {
        VybWriter file = SmallVyb();
        c.change(file);
        m_model.SetStructType(4);
        EXPECT_FALSE(Read(file)) << c.what;
        EXPECT_EQ(m_host.Messages(), c.messages) << c.what;
        EXPECT_TRUE(m_model == CVynData()) << c.what;
        EXPECT_TRUE(m_messages.empty());
    }
}

TEST_F(VybRefusedTest, ResultsBeyondTheFileEndTheCases) {
    ASSERT_TRUE(Read(SmallVyb()));
    const int whole = m_model.NumAnalysisCase();
    m_model = CVynData();
    VybWriter file = SmallVyb();
    file.entries[21] = 1'000'500;
    EXPECT_TRUE(Read(file));
    EXPECT_LT(m_model.NumAnalysisCase(), whole);
    EXPECT_GT(m_model.NumNode(), 0);
}

TEST_F(VybRefusedTest, ScatteredNumbersAreRefused) {
    VybWriter file;
    for (int i = 0; i < 600; ++i) {
        file.Add(9, VybFields{1 + i * 100'000}.PadTo(32));
    }
    EXPECT_FALSE(Read(file));
    EXPECT_EQ(m_host.Messages(), kDamaged);
}

TEST_F(VybRefusedTest, Truncated) {
    const std::string bytes = SmallVyb().Bytes();
    constexpr std::size_t kTexts = 50;
    constexpr std::size_t kHeader = 1099;
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        if (IsPadding(bytes, size)) {
            continue;  // as the last size that cut something off
        }
        const bool read = ReadBytes(bytes.substr(0, size));
        const Texts expected = size < kTexts ? Texts() : size < kHeader ? kNotVyn : kDamaged;
        EXPECT_EQ(m_host.Messages(), read ? Texts() : expected) << size;
        EXPECT_TRUE(read || m_model == CVynData()) << size;
        EXPECT_FALSE(read && size < bytes.size() - 2 * 512) << size;
    }
}

TEST_F(VybRefusedTest, EveryByteChanged) {
    constexpr char kChanges[] = {'\x01', '\x80', '\xFF'};
    const std::string bytes = SmallVyb().Bytes();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (IsPadding(bytes, i)) {
            continue;
        }
        std::string damaged = bytes;
        damaged[i] = static_cast<char>(damaged[i] ^ kChanges[i % std::size(kChanges)]);
        const bool read = ReadBytes(damaged);
        EXPECT_EQ(m_host.events.size(), read ? 0U : 1U) << i;
        EXPECT_TRUE(read || m_model == CVynData()) << i;
        m_model = CVynData();
    }
}

TEST_F(VybRefusedTest, AMissingFileLeavesTheModelAlone) {
    m_model.SetNode(1, Data::CNode());
    const CVynData before = m_model;
    CVybFile reader(m_model);
    const std::wstring line = L"<red>Error:          </red>Error\n\nNo such file or directory";
    EXPECT_FALSE(reader.OpenRead(Path(), m_messages));
    EXPECT_EQ(m_messages, line);
    EXPECT_FALSE(reader.OpenRead(Path(), m_messages));
    EXPECT_EQ(m_messages, line + L'\n' + line);
    EXPECT_TRUE(m_model == before);
    EXPECT_TRUE(m_host.events.empty());
}

TEST_F(VybRefusedTest, AHeldModelIsLeftAlone) {
    m_model.SetNode(1, Data::CNode());
    const CVynData before = m_model;
    for (SyncObject* const held : {&m_model.ShareModelBusy(), &m_model.ShareResultsBusy()}) {
        std::promise<void> isHeld;
        std::promise<void> isDone;
        std::thread holder([&] {
            held->Lock();
            isHeld.set_value();
            isDone.get_future().wait();
            held->Unlock();
        });
        isHeld.get_future().wait();
        EXPECT_FALSE(Read(SmallVyb()));
        EXPECT_TRUE(m_model == before);
        EXPECT_TRUE(m_host.events.empty() && m_messages.empty());
        isDone.set_value();
        holder.join();
        EXPECT_TRUE(ProbeLock(m_model.ShareModelBusy(), 0));
        EXPECT_TRUE(ProbeLock(m_model.ShareResultsBusy(), 0));
    }
    EXPECT_FALSE(ReadBytes("00006"));
    EXPECT_TRUE(ProbeLock(m_model.ShareModelBusy(), 0));
    EXPECT_TRUE(m_model == CVynData());
}

}  // namespace
}  // namespace Tevra
