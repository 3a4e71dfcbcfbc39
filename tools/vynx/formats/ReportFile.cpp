#include <fstream>

#include "platform/text/Utf8.h"
#include "vynx/OutputFile.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

bool WriteReport(const std::string& path, const std::wstring& report) {
    if (path.empty()) {
        return true;
    }
    OutputFile file(path, "report.html");
    std::ofstream stream(file.WorkPath(), std::ios::binary | std::ios::trunc);
    stream << Tevra::Text::ToUtf8(report);
    stream.close();
    if (!stream.good()) {
        return false;
    }
    file.Commit();
    return true;
}

}  // namespace Vynx
