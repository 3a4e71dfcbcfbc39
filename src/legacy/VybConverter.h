#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "legacy/NumberSpread.h"
#include "legacy/VybDirectory.h"
#include "legacy/VybHeader.h"
#include "legacy/VybRecord.h"
#include "model/AnalysisTask.h"
#include "model/EntList.h"
#include "model/Property.h"
#include "model/Types.h"
#include "model/Unit.h"

namespace Tevra {

class CModelData;
class CVybStream;
class CVynData;

namespace Data {
class CElement;
class CLoadBase;
class CNodeLoad;
}  // namespace Data

/// Turns the records of a legacy file into records of the model. Every function returns false for
/// damaged records; those above them are in the model then.
class CVybConverter {
public:
    CVybConverter(CVybStream& stream, const VybHeader& header, const CVybDirectory& directory,
                  CVynData& model);

    /// Units, then the sixteen kinds of records in the order of the directory.
    bool Records(const CUnit& units);
    bool LoadCaseTitles();
    bool Combinations();
    /// Analysis cases with results and their masses, which the file holds in `units`. A record that
    /// ends too early ends the results, without being a failure.
    bool Results(const CUnit& units);

private:
    /// How the records of a kind are read: the bytes of a record that are known, the function that
    /// takes one, and what is done after the last one.
    struct Kind {
        int entry;
        std::size_t length;
        void (CVybConverter::*take)(CVybRecord&);
        bool (CVybConverter::*finish)() = nullptr;
    };
    bool Convert(const Kind& kind);
    bool ReadTableHeader(const Kind& kind, std::uint32_t& count, std::uint32_t& length);
    /// A record's own number; scattered numbers are refused.
    int TakeNumber(CVybRecord& record, int entry);

    // One record each, in the order of the directory.
    void TakeList(CVybRecord& record);
    void TakeAxis(CVybRecord& record);
    void TakeMaterial(CVybRecord& record);
    void TakeSection(CVybRecord& record);
    void TakeSpring(CVybRecord& record);
    void TakeMass(CVybRecord& record);
    void TakeProp2D(CVybRecord& record);
    void TakeRigid(CVybRecord& record);
    void TakeNode(CVybRecord& record);
    void TakeElement(CVybRecord& record);
    void TakeGravityLoad(CVybRecord& record);
    void TakeNodeLoad(CVybRecord& record);
    void TakeSettlement(CVybRecord& record);
    void TakeBeamLoad(CVybRecord& record);
    void TakeFaceLoad(CVybRecord& record);
    void TakeThermalLoad(CVybRecord& record);
    void TakeCombination(CVybRecord& record);

    bool FinishSprings();
    bool FinishElements();

    /// A saved list of the file, of nodes or elements; 0 is all of them. A list that the file does
    /// not have keeps its number as the reference that it is.
    CEntList ListOf(int number, SelType kind) const;
    void TakeTopo(CVybRecord& record, Data::CElement& element);
    void TakeLoadBase(CVybRecord& record, Data::CLoadBase& load, SelType kind);
    void TakeNodeLoadFields(CVybRecord& record, Data::CNodeLoad& load);
    /// Adds a load, which has no number of its own, behind the highest one of its kind.
    template <class Load>
    void Append(CVybRecord& record, int highest, bool (CModelData::*set)(int, Load), Load load);

    bool AddCase(int number, CVybRecord& record, const CUnit& units);
    void AddTask(int number, SolutionType solution, const std::wstring& name);

    CVybStream& m_stream;
    const VybHeader& m_header;
    const CVybDirectory& m_directory;
    CVynData& m_model;
    CNumberSpread m_spread;
    std::unordered_map<int, CEntList> m_lists;
    std::vector<int> m_topo;  ///< of the element that is read; kept for its storage

    /// Springs of the file that resist translation and rotation: the second property that each
    /// becomes, and where that stands.
    std::map<int, Data::CSpringProp> m_splitSprings;
    std::unordered_map<int, int> m_rotationProps;
    std::vector<int> m_splitElements;  ///< elements with such springs, as they come
    std::vector<int> m_splitNodes;     ///< and nodes
};

}  // namespace Tevra
