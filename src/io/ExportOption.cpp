#include "io/ExportOption.h"

namespace Tevra {

// The commands are the host's own; it handles the first row itself and starts OpenSees otherwise.
CExportOption::CExportOption()
    : m_options{{L"VYN 6.x (VYI file)", L".vyi", 33102},
                {L"LS-&DYNA (Keyword file)", L".key", 33103},
                {L"&SAP2000 (S2K file)", L".s2k", 33106},
                {L"&NASTRAN (Bulk data file)", L".dat", 33104},
                {L"&OpenSees (Tcl file)", L".txt", 0}} {}

}  // namespace Tevra
