#include "vynx/Failure.h"
#include "vynx/VynxFixture.h"

namespace Vynx {
namespace {

constexpr const char* kModel = R"({"version": 1,
    "nodes": [{"number": 1, "position": [1, 2, 3]}],
    "views": [{"number": 2, "name": "All nodes", "data": ["nodes"]},
              {"number": 3, "name": "Odd", "data": ["nonsense"]},
              {"number": 7, "name": "2", "data": ["cases"]}]})";

class ViewFormat : public VynxTest {};

TEST_F(ViewFormat, ByNameByNumberOrTheFirst) {
    Write("model.json", kModel);
    struct Case {
        Names view;
        const char* title;
    };
    for (const Case& c : {Case{{}, "All nodes : Nodes"}, Case{{"--view", "All nodes"}, "All nodes"},
                          Case{{"--view", "7"}, "2 : Cases"}, Case{{"--view", "2"}, "2 : Cases"}}) {
        Names words{"export", Path("model.json"), "--to", "view", "-o", Path("t.csv")};
        words.insert(words.end(), c.view.begin(), c.view.end());
        ASSERT_EQ(Run(words), kDone) << m_err;
        EXPECT_EQ(Tevra::TestSupport::ReadFile(Path("t.csv")).find(c.title), 3U) << c.title;
    }
}

TEST_F(ViewFormat, WhatCanNotBeWritten) {
    Write("model.json", kModel);
    EXPECT_EQ(Run({"export", Path("model.json"), "--to", "view", "--view", "no", "-o", "-"}),
              kFailed);
    EXPECT_NE(m_err.find("no output view \"no\""), std::string::npos) << m_err;
    EXPECT_EQ(Run({"export", Path("model.json"), "--to", "view", "--view", "Odd", "-o", "-"}),
              kFailed);
    EXPECT_NE(m_err.find("\"nonsense\""), std::string::npos) << m_err;
    Write("none.json", R"({"version": 1})");
    EXPECT_EQ(Run({"export", Path("none.json"), "--to", "view", "-o", "-"}), kFailed);
    EXPECT_NE(m_err.find("no output views"), std::string::npos) << m_err;
}

}  // namespace
}  // namespace Vynx
