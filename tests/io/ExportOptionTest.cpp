#include <gtest/gtest.h>

#include "io/ExportOption.h"

using namespace Tevra;

namespace {

TEST(ExportOption, HostTable) {
    struct Row {
        const wchar_t* description;
        const wchar_t* extension;
        int command;
    };
    constexpr Row kRows[] = {{L"VYN 6.x (VYI file)", L".vyi", 33102},
                             {L"LS-&DYNA (Keyword file)", L".key", 33103},
                             {L"&SAP2000 (S2K file)", L".s2k", 33106},
                             {L"&NASTRAN (Bulk data file)", L".dat", 33104},
                             {L"&OpenSees (Tcl file)", L".txt", 0}};
    const CExportOption options;
    ASSERT_EQ(options.NumOption(), 5);
    for (int i = 0; i < 5; ++i) {
        const FileSpec row = options.Option(i);
        EXPECT_EQ(row.description, kRows[i].description);
        EXPECT_EQ(row.extension, kRows[i].extension);
        EXPECT_EQ(row.command, kRows[i].command);
    }
}

}  // namespace
