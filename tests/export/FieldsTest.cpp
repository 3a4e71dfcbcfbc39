#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>
#include <string>

#include "export/ExportAccess.h"
#include "support/CommaLocale.h"
#include "support/TempFolder.h"

namespace Tevra::Export {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(SqlFieldText, IsTheTypeInSql) {
    EXPECT_EQ(SqlField(SqlType::Integer, 9).String(), "INTEGER");
    EXPECT_EQ(SqlField(SqlType::Real, 0).String(), "REAL");
    EXPECT_EQ(SqlField(SqlType::Text, 80).String(), "VARCHAR(80)");
    EXPECT_EQ(SqlField(SqlType::Boolean, 0).String(), "BOOLEAN");
    EXPECT_EQ(static_cast<int>(SqlType::Integer), 0);
    EXPECT_EQ(static_cast<int>(SqlType::Boolean), 3);
}

TEST(SqlFieldText, RefusesATypeThatIsNone) {
    try {
        (void)SqlField(static_cast<SqlType>(4), 0).String();
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "invalid field type");
    }
}

/// What a value writer makes of a record that already has the value 7.
std::string ValuesOf(const std::function<void(CVynExport&)>& write) {
    SqlInMemory out;
    out.CreateTableStart("t");
    out.Take();
    out.WriteRecordStart();
    out.WriteInt(7);
    write(out);
    out.WriteRecordEnd();
    std::string text = out.Take();
    const std::string begin = "INSERT INTO t VALUES(7";
    EXPECT_EQ(text.substr(0, begin.size()), begin);
    EXPECT_EQ(text.substr(text.size() - 3), ");\n");
    return text.substr(begin.size(), text.size() - begin.size() - 3);
}

TEST(ValueWriters, MakeOneFieldPerColumn) {
    constexpr double kNan = kMissing;
    const Pair a{1.5, 2};
    const Pair b{-0.25, 0};
    const Pair none{kNan, 0};
    const Pair spoiled{kNan, 4};
    struct Case {
        const char* expected;
        std::function<void(CVynExport&)> write;
    };
    const Case cases[] = {
        {", 'it's'", [](CVynExport& e) { e.WriteString("it's"); }},
        {", ''", [](CVynExport& e) { e.WriteString(""); }},
        {", 'Stütze\n2'", [](CVynExport& e) { e.WriteWide(L"St\u00fctze\n2"); }},
        {", '\xef\xbf\xbd'", [](CVynExport& e) { e.WriteWide(std::wstring(1, wchar_t(0xD800))); }},
        {", TRUE", [](CVynExport& e) { e.WriteBool(true); }},
        {", FALSE", [](CVynExport& e) { e.WriteBool(false); }},
        {", -2147483648", [](CVynExport& e) { e.WriteInt(std::numeric_limits<int>::min()); }},
        {", 1.000000", [](CVynExport& e) { e.WriteDouble(1.0); }},
        {", 0.500000", [](CVynExport& e) { e.WriteDouble(0.5); }},
        {", -0.000000", [](CVynExport& e) { e.WriteDouble(-1e-9); }},
        {", 100000000000000000000.000000", [](CVynExport& e) { e.WriteDouble(1e20); }},
        {", 1234567.890125", [](CVynExport& e) { e.WriteDouble(1234567.890125); }},
        {", NULL", [](CVynExport& e) { e.WriteDouble(kNan); }},
        {", NULL", [](CVynExport& e) { e.WriteDouble(-kNan); }},
        {", inf", [](CVynExport& e) { e.WriteDouble(kInfinity); }},
        {", 2.500000, NULL",
         [](CVynExport& e) {
             e.WritePair({2.5, 0});
         }},
        {", 2.500000, NULL",
         [](CVynExport& e) {
             e.WritePair({2.5, -1});
         }},
        {", 2.500000, 3",
         [](CVynExport& e) {
             e.WritePair({2.5, 3});
         }},
        {", NULL, 4", [=](CVynExport& e) { e.WritePair(spoiled); }},
        {", 12", [](CVynExport& e) { e.WritePermutation(12); }},
        {", NULL", [](CVynExport& e) { e.WritePermutation(-2); }},
        {", '#0080FF'", [](CVynExport& e) { e.WriteColour(0x00FF8000); }},
        {", '#FF0000'", [](CVynExport& e) { e.WriteColour(0x0000FF); }},
        {", '#0A1B2C'", [](CVynExport& e) { e.WriteColour(0xFF2C1B0A); }},
        {", 'Analysis', 3", [](CVynExport& e) { e.WriteCase(AnalysisRef(3)); }},
        {", 'Combination', 4",
         [](CVynExport& e) {
             e.WriteCase({4, 4, -1});
         }},
        {", '', 5",
         [](CVynExport& e) {
             e.WriteCase({3, 5, 0});
         }},
        {", 1.500000, 2, -0.250000, NULL",
         [=](CVynExport& e) {
             e.WriteVector2(Vector2{a, b});
         }},
        {", 1.000000, 2.000000",
         [](CVynExport& e) {
             e.WriteVector2(Vec2<double>{1, 2});
         }},
        {", NULL, NULL, 1.500000, 2, -0.250000, NULL",
         [=](CVynExport& e) {
             e.WriteVector3(Vector3{none, a, b});
         }},
        {", 1.000000, 2.000000, NULL",
         [](CVynExport& e) {
             e.WriteVector3(Vec3<double>{1, 2, kNan});
         }},
        {", 1.500000, 2, NULL, NULL, -0.250000, NULL",
         [=](CVynExport& e) { e.WriteTensor2(Tensor2{.xx = a, .yy = none, .xy = b}); }},
        {", 1.000000, 2.000000, 3.000000",
         [](CVynExport& e) { e.WriteTensor2(Tens2<double>{.xx = 1, .yy = 2, .xy = 3}); }},
        {", 1.000000, NULL, 2.000000, NULL, 3.000000, NULL, 4.000000, 1, 5.000000, NULL, 6.000000, "
         "NULL",
         [](CVynExport& e) {
             e.WriteTensor3(
                 Tensor3{.xx{1, 0}, .yy{2, 0}, .zz{3, 0}, .xy{4, 1}, .yz{5, 0}, .zx{6, 0}});
         }},
        {", 1.000000, 2.000000, 3.000000, 4.000000, 5.000000, 6.000000",
         [](CVynExport& e) {
             e.WriteTensor3(TensSym3<double>{.xx = 1, .yy = 2, .zz = 3, .xy = 4, .yz = 5, .zx = 6});
         }},
        {", NULL, NULL, NULL", [](CVynExport& e) { e.WriteNull(3); }},
        {"", [](CVynExport& e) { e.WriteNull(0); }},
        {"-raw;",
         [](CVynExport& e) {
             e.WriteText("-raw");
             e.WriteText(';');
         }},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ValuesOf(c.write), c.expected);
    }
}

TEST(ValueWriters, DoNotAskTheLocale) {
    const TestSupport::ScopedCommaLocale comma;
    EXPECT_EQ(ValuesOf([](CVynExport& e) { e.WriteDouble(1234.5); }), ", 1234.500000");
    EXPECT_EQ(ValuesOf([](CVynExport& e) { e.WriteInt(1234567); }), ", 1234567");
}

// A missing value neither looks at the count of values nor adds to it.
TEST(ValueWriters, MissingValuesCarryTheirSeparatorEvenInFront) {
    SqlInMemory out;
    out.CreateTableStart("t");
    out.Take();
    out.WriteRecordStart();
    out.WriteNull(1);
    out.WriteInt(1);
    out.WriteInt(2);
    EXPECT_EQ(out.Take(), "INSERT INTO t VALUES(, NULL1, 2");
}

/// The columns that a declaration makes in a table of their own, one a line.
std::string Declared(const std::function<void(CVynExport&)>& declare) {
    SqlInMemory out;
    out.CreateTableStart("t");
    declare(out);
    out.CreateTableEnd();
    const std::string text = out.Take();
    const std::string begin = "CREATE TABLE 't'\n(";
    EXPECT_EQ(text.substr(0, begin.size()), begin);
    EXPECT_EQ(text.substr(text.size() - 4), "\n);\n");
    return text.substr(begin.size(), text.size() - begin.size() - 4);
}

TEST(Declarations, NameEveryColumn) {
    struct Case {
        const char* expected;
        std::function<void(CVynExport&)> declare;
    };
    const Case cases[] = {
        {"\n  a INTEGER", [](CVynExport& e) { e.CreateField("a", kIntegerField, false, false); }},
        {"\n  a REAL NOT NULL", [](CVynExport& e) { e.CreateField("a", kRealField, true, false); }},
        {"\n  a REAL PRIMARY KEY",
         [](CVynExport& e) { e.CreateField("a", kRealField, false, true); }},
        {"\n  n INTEGER REFERENCES node(node)",
         [](CVynExport& e) { e.CreateField("n", kIntegerField, "node", "node"); }},
        {"\n  n INTEGER REFERENCES a(b),\n  m VARCHAR(3) REFERENCES c(d)",
         [](CVynExport& e) {
             e.CreateField("n", kIntegerField, std::string("a"), std::string("b"));
             e.CreateField("m", TextField(3), "c", "d");
         }},
        {"\n  v REAL,\n  v_perm INTEGER", [](CVynExport& e) { e.CreateFieldPair("v"); }},
        {"\n  v_x REAL,\n  v_x_perm INTEGER,\n  v_y REAL,\n  v_y_perm INTEGER",
         [](CVynExport& e) { e.CreateVector2Fields("v"); }},
        {"\n  v_x REAL,\n  v_x_perm INTEGER,\n  v_y REAL,\n  v_y_perm INTEGER,\n  v_z REAL,\n"
         "  v_z_perm INTEGER",
         [](CVynExport& e) { e.CreateVector3Fields("v", false); }},
        {"\n  disp_x REAL,\n  disp_x_perm INTEGER,\n  disp_y REAL,\n  disp_y_perm INTEGER,\n"
         "  disp_z REAL,\n  disp_z_perm INTEGER,\n  disp_xx REAL,\n  disp_xx_perm INTEGER,\n"
         "  disp_yy REAL,\n  disp_yy_perm INTEGER,\n  disp_zz REAL,\n  disp_zz_perm INTEGER",
         [](CVynExport& e) { e.CreateVector3Fields("disp", true); }},
        {"\n  t_xx REAL,\n  t_xx_perm INTEGER,\n  t_yy REAL,\n  t_yy_perm INTEGER,\n  t_xy REAL,\n"
         "  t_xy_perm INTEGER",
         [](CVynExport& e) { e.CreateTensor2Fields("t"); }},
        {"\n  t_xx REAL,\n  t_xx_perm INTEGER,\n  t_yy REAL,\n  t_yy_perm INTEGER,\n  t_zz REAL,\n"
         "  t_zz_perm INTEGER,\n  t_xy REAL,\n  t_xy_perm INTEGER,\n  t_yz REAL,\n"
         "  t_yz_perm INTEGER,\n  t_zx REAL,\n  t_zx_perm INTEGER",
         [](CVynExport& e) { e.CreateTensor3Fields("t"); }},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Declared(c.declare), c.expected);
    }
}

// A table of a host's own, through the operations that dialects are called by.
TEST(Declarations, ATableIsWrittenInTheOrderOfTheCalls) {
    const TestSupport::TempFolder folder;
    CSqlExport out;
    out.SetPath((folder.Path() / "job.sql").string());
    ASSERT_TRUE(out.OpenFile("axis"));
    out.CreateTableStart("axis");
    out.CreateField("axis", kIntegerField, true, true);
    out.CreateField("name", TextField(32), true, false);
    out.CreateTableEnd();
    out.WriteRecordStart();
    out.WriteInt(1);
    out.WriteString("Global");
    out.WriteRecordEnd();
    EXPECT_TRUE(out.CloseFile());
    EXPECT_EQ(TestSupport::ReadFile(folder.Path() / "job" / "axis" / "axis.sql"),
              "CREATE TABLE 'axis'\n(\n  axis INTEGER NOT NULL PRIMARY KEY,\n"
              "  name VARCHAR(32) NOT NULL\n);\nINSERT INTO axis VALUES(1, 'Global');\n");
}

}  // namespace
}  // namespace Tevra::Export
