#include "model/VynData.h"

namespace Tevra {

SectionProperties CVynData::SectionProp(int section, int part, double /*position*/,
                                        bool modified) const {
    const Data::CSection& record = Section(section);
    if (!SectionExist(section)) {
        return {};
    }
    return modified ? record.ModifiedProperties(part) : record.Properties(part);
}

}  // namespace Tevra
