#pragma once

#include "document/Fields.h"
#include "model/ModelData.h"
#include "model/Results.h"

namespace Tevra::Document {

/// A direction of a 1D element's end that a spring holds.
struct EndSpring {
    Direction direction = Direction::X;
    double stiffness = 0.0;
    bool operator==(const EndSpring&) const = default;
};

/// Settings of a model that no record carries.
struct Settings {
    int structureType = 0;
    Vbool6 globalRestraint;
    MassOptions mass;
    Data::RaftSettings raft;
    bool lockedByResults = false;
    bool operator==(const Settings&) const = default;
};

template <class R>
Colour ColourOf(const R& record) {
    return {record.Colour()};
}
template <class R>
void SetColourOf(R& record, Colour colour) {
    record.SetColour(colour.value);
}

/// The keys that every named record has.
template <class R>
constexpr std::array<Field, 3> NamedFields() {
    return {Key<R, &R::Name, &R::SetName>("name", "Name"),
            Key<R, &ColourOf<R>, &SetColourOf<R>>("colour", "Colour, \"#rrggbb\""),
            Key<R, &R::Sid, &R::SetSid>(
                "sid", "Identifiers in other programs, \"tag=value\" items separated by \";\"")};
}

// Record types with a table of fields; the tables stand in Fields*.cpp.
// NOLINTBEGIN(bugprone-macro-parentheses): a type
#define VYN_DECLARE_FIELDS(Kind, R) \
    template <>                     \
    Fields FieldsOf<R>();
// NOLINTEND(bugprone-macro-parentheses)
VYN_RECORD_KINDS(VYN_DECLARE_FIELDS)
VYN_DECLARE_FIELDS(, Data::CElemConnect)
VYN_DECLARE_FIELDS(, Data::COffset)
VYN_DECLARE_FIELDS(, Data::CSecComp)
VYN_DECLARE_FIELDS(, Data::SectionModifiers)
VYN_DECLARE_FIELDS(, Data::MaterialChoice)
VYN_DECLARE_FIELDS(, Data::ParamGroup)
VYN_DECLARE_FIELDS(, Data::PropLayer)
VYN_DECLARE_FIELDS(, Data::ConstraintTerm)
VYN_DECLARE_FIELDS(, Data::LoadPoint)
VYN_DECLARE_FIELDS(, Data::StageReplacement)
VYN_DECLARE_FIELDS(, Data::StageRestraint)
VYN_DECLARE_FIELDS(, Data::SoilLayer)
VYN_DECLARE_FIELDS(, Data::RaftSettings)
VYN_DECLARE_FIELDS(, CDynaTask)
VYN_DECLARE_FIELDS(, MassSpecification)
VYN_DECLARE_FIELDS(, RayleighDamping)
VYN_DECLARE_FIELDS(, MassOptions)
VYN_DECLARE_FIELDS(, CTitles)
VYN_DECLARE_FIELDS(, CProgTitles)
VYN_DECLARE_FIELDS(, CLocation)
VYN_DECLARE_FIELDS(, CHistoryRec)
VYN_DECLARE_FIELDS(, DesignOptions)
VYN_DECLARE_FIELDS(, CUnit)
VYN_DECLARE_FIELDS(, GlobalResults)
VYN_DECLARE_FIELDS(, EndSpring)
VYN_DECLARE_FIELDS(, Settings)
#undef VYN_DECLARE_FIELDS

}  // namespace Tevra::Document

/// Gives a record type its table of fields.
#define VYN_FIELDS(R, ...)                           \
    template <>                                      \
    Fields FieldsOf<R>() {                           \
        static constexpr auto kFields = __VA_ARGS__; \
        return kFields;                              \
    }
