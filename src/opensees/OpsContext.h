#pragma once

#include <string>

#include "io/RecordText.h"
#include "model/BitSet.h"
#include "model/MaterialMap.h"
#include "model/NumberedTable.h"
#include "model/VynData.h"

namespace Tevra {

/// A section as elements use it.
struct OpsSection {
    bool isFibre = false;
    int material = 0;  ///< tag
    double e = 0.0;    ///< Pa
    double g = 0.0;    ///< Pa
    SectionProperties properties;
    std::string beam;  ///< A E G J Iy Iz, as elastic beams have them
    bool operator==(const OpsSection&) const = default;
};

/// Which command an element becomes.
enum class OpsKind { None, Beam, Truss, Quad, Shell };
OpsKind KindOf(const CVynData& model, const Data::CElement& element);

/// What one run of the writer works with.
struct OpsContext {
    OpsContext(const CVynData& from, TextOut& target) : model(from), out(target), line(target) {}
    /// False when the numbers of the model can't be kept apart in the script.
    bool Make();

    /// What an element is in the script; None for those that are not in it.
    OpsKind WrittenAs(int element) const {
        return written.Test(element) ? KindOf(model, model.Elem(element)) : OpsKind::None;
    }

    const CVynData& model;
    TextOut& out;
    RecordText line;
    CMaterialMap materials;
    NumberedTable<OpsSection> sections;  ///< those whose material exists
    CBitSet written;                     ///< the elements of the script
    int firstShell = 0;                  ///< what is added to the number of a 2D property

private:
    void AddSection(int number);
    bool IsWhole(int element) const;
};

}  // namespace Tevra
