#include "support/TestPaths.h"

#ifndef VYN_VYNX
#define VYN_VYNX ""
#endif

namespace Tevra::TestSupport {

std::filesystem::path SourceDir() {
    return VYN_SOURCE_DIR;
}

std::filesystem::path VynxPath() {
    return VYN_VYNX;
}

}  // namespace Tevra::TestSupport
