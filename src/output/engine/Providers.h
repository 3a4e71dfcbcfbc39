#pragma once

#include "output/engine/DataProvider.h"

namespace Tevra::Output {

// The providers of the library.
DataProvider NodesProvider();
DataProvider ElementsProvider();
DataProvider MembersProvider();
DataProvider SectionsProvider();
DataProvider MaterialsProvider();
DataProvider LoadsProvider();
DataProvider CasesProvider();
DataProvider DisplacementsProvider();
DataProvider ReactionsProvider();
DataProvider ForcesProvider();
DataProvider StressesProvider();

}  // namespace Tevra::Output
