#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Tevra {

/// One export format as the host's menu offers it.
struct FileSpec {
    std::wstring description;  ///< menu text; "&" marks the accelerator letter
    std::wstring extension;    ///< default file extension with its leading dot
    int command = 0;           ///< the host's command that starts the export; 0 = none
};

/// The export formats that the system offers to the host's user interface, in menu order.
class CExportOption {
public:
    CExportOption();

    int NumOption() const { return static_cast<int>(m_options.size()); }

    /// A copy of row `index`, which must lie in 0 .. NumOption() - 1.
    FileSpec Option(int index) const { return m_options[static_cast<std::size_t>(index)]; }

private:
    std::vector<FileSpec> m_options;
};

}  // namespace Tevra
