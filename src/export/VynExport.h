#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "export/CaseFigures.h"
#include "export/Param.h"
#include "export/ResultFlags.h"
#include "export/ResultSets.h"
#include "export/SqlField.h"
#include "model/VynData.h"

namespace Tevra::Util {
class CAssemblyCalc;
}

namespace Tevra::Export {

struct AssemblyWork;
struct LineWork;
struct VynExportAccess;
template <class Row>
class Column;

/// Exports the model and its results as relational tables. Everything but the statements
/// themselves is done here; a dialect supplies those.
///
/// Made with defaults, given a model, a path and parameters in any order, and run by `WriteTables`,
/// which may be called again and then writes the same files anew. Errors of the file system while
/// folders are made leave as std::filesystem::filesystem_error.
class CVynExport {
public:
    CVynExport(const CVynExport&) = delete;
    CVynExport& operator=(const CVynExport&) = delete;

    /// The model, not owned. It is left as it is but for a record in its history.
    void SetData(CVynData* model) {
        m_model = model;
        ForgetPreparations();
    }
    /// The target file (UTF-8; "/" or "\" between folders). What is written goes into the folder
    /// of that name without its extension.
    void SetPath(const std::string& file);
    void SetParam(const Param& param) {
        m_param = param;
        ForgetPreparations();
    }
    void SetNumBeamPosition(int number) {
        m_param.numBeamPosition = number;
        ForgetPreparations();
    }
    void SetIncludeInteresting(bool include) {
        m_param.includeInteresting = include;
        ForgetPreparations();
    }
    void SetOneFilePerModule(bool one) { m_oneFilePerModule = one; }
    int NumBeamPosition() const { return m_param.numBeamPosition; }
    bool IncludeInteresting() const { return m_param.includeInteresting; }
    bool IncludeCombinations() const { return true; }

    /// Whether a result table is chosen by its letter.
    bool FindOption(char letter) const;
    // Whether a result table is chosen and there is something to write in it.
    bool IncludeNode() const;
    bool IncludeSpring() const;
    bool Include1DElement() const;
    bool Include2DElement() const;
    bool Include3DElement() const;
    bool IncludeAssembly() const;

    /// The folder, with the separators of the path that was set.
    std::string Path() const;
    const std::string& Extension() const { return m_extension; }

    /// "A" and the number of an analysis case, the name of a combination; empty for others.
    std::string CaseId(const SCaseRef& ref) const;
    /// The name of an analysis case, the description of a combination.
    std::string CaseDescription(const SCaseRef& ref) const;
    /// What the "Revit" tag of a record says.
    std::string RevitId(const Data::BaseEntity& entity) const;

    // The selected entities with their numbers, ascending. Dummy elements are not among them.
    std::vector<std::pair<int, const Data::CNode*>> GetNodes() const;
    /// Springs at nodes (kind node), then spring elements (kind element).
    std::vector<std::pair<int, SelType>> GetSpringElements() const;
    std::vector<std::pair<int, const Data::CElement*>> Get1DElements() const;
    std::vector<std::pair<int, const Data::CElement*>> Get2DElements() const;
    std::vector<std::pair<int, const Data::CElement*>> Get3DElements() const;
    std::vector<std::pair<int, const Data::CAssembly*>> GetAssemblies() const;

    /// Makes the regular positions along 1D elements ready, when their table is chosen.
    void Precalc1DIntermediateResults();
    /// Regular positions along a 1D element, millionths of its length.
    std::vector<int> Get1DIntermediatePositions() const;
    /// Works out what the flags ask for along a 1D element in a case, at the positions of the set.
    void Calc1DIntermediateResults(int element, const SCaseRef& ref, const ElementFlags& flags,
                                   const Elem1DSet& set);

    /// Prints how long the table of `module` took for a case, or (null reference) altogether.
    void ReportTime(const std::string& module, const SCaseRef& ref, int milliseconds) const;

    /// Writes everything. True when every table was written; see also `FailedFiles`.
    bool WriteTables();
    /// Files of the last run that are complete, and those that could not be opened (or not for a
    /// busy model), written or closed.
    const std::vector<std::filesystem::path>& WrittenFiles() const { return m_writtenFiles; }
    const std::vector<std::filesystem::path>& FailedFiles() const { return m_failedFiles; }

    // One table each. False when the model is busy, or missing.
    bool Model();
    bool Location();
    bool History();
    bool Axis();
    bool GridPlane();
    bool Node();
    bool Element();
    bool Member();
    bool Assembly();
    bool Section();
    bool Property2D();
    bool Property3D();
    bool List();
    bool Case();
    bool Permutation();
    bool ResultGlobal();
    bool ResultNode();
    bool ResultSpring();
    bool ResultElement1D();
    bool ResultElement2D();
    bool ResultElement3D();
    bool ResultAssembly();

    // The virtual operations, in the order that hosts rely on.
private:
    /// Empties the folder of earlier delimited files, or makes it.
    virtual void SetFolder();

public:
    /// Opens the file of a table, unless all go to one. False when the model is busy.
    virtual bool OpenFile(const std::string& module);
    virtual bool CloseFile();

    // Text of the statement, as it is.
    virtual void WriteText(const std::string& text);
    virtual void WriteText(char c);
    // A value of a record, which takes one column or, as said, more.
    virtual void WriteString(const std::string& text);
    virtual void WriteBool(bool value);
    virtual void WriteInt(int value);
    virtual void WriteDouble(double value);
    virtual void WriteVector2(const Vector2& value);
    virtual void WriteVector2(const Vec2<double>& value);
    virtual void WriteVector3(const Vector3& value);
    virtual void WriteVector3(const Vec3<double>& value);
    virtual void WriteTensor2(const Tensor2& value);
    virtual void WriteTensor2(const Tens2<double>& value);
    virtual void WriteTensor3(const Tensor3& value);
    virtual void WriteTensor3(const TensSym3<double>& value);
    /// Two columns: the value, and the permutation when there is one.
    virtual void WritePair(const Pair& value);
    virtual void WriteColour(unsigned long colour);
    /// Two columns: the kind of case and its number.
    virtual void WriteCase(const SCaseRef& ref);
    virtual void WritePermutation(int permutation);
    virtual void CreateTableStart(const std::string& name) = 0;
    virtual void CreateTableEnd() = 0;
    /// A column that refers to a field of another table.
    virtual void CreateField(const std::string& name, const SqlField& field,
                             const std::string& table, const std::string& tableField) = 0;
    virtual void CreateField(const std::string& name, const SqlField& field, const char* table,
                             const char* tableField) = 0;
    virtual void CreateField(const std::string& name, const SqlField& field, bool notNull,
                             bool primaryKey) = 0;
    /// Two columns: a value and its permutation.
    virtual void CreateFieldPair(const std::string& name);
    virtual void CreateVector2Fields(const std::string& name);
    virtual void CreateVector3Fields(const std::string& name, bool rotations);
    virtual void CreateTensor2Fields(const std::string& name);
    virtual void CreateTensor3Fields(const std::string& name);
    virtual void WriteRecordStart() = 0;
    virtual void WriteRecordEnd() = 0;
    virtual void WriteField(const std::string& text) = 0;
    virtual void WriteNull(int count) = 0;

    virtual ~CVynExport();

    /// Host text as a value.
    void WriteWide(std::wstring_view text);
    /// The model; null when there is none.
    const CVynData* Data() const { return m_model; }

protected:
    CVynExport();
    void SetExtension(const std::string& extension) { m_extension = extension; }
    /// Hands the statement to the file and empties it.
    void FlushStatement();

    // What kind of analysis a case comes from.
    bool IsDynamic(const SCaseRef& ref) const;
    bool IsBuckling(const SCaseRef& ref) const;
    bool IsModal(const SCaseRef& ref) const;
    int Stress2DNumLayer(int element) const { return m_model->Stress2DNumLayer(element); }
    /// The references of the rows of a case: itself, or the minimum and the maximum of a
    /// combination with several permutations.
    std::vector<SCaseRef> ExpandCases(const SCaseRef& ref) const;

    // The results of one entity in one case, at the positions of the set. What a flag leaves out is
    // left as it is.
    void ResultAnalysis(int node, const NodeFlags& flags, const SCaseRef& ref, NodeSet& set);
    void ResultAnalysis(const SEntRef& spring, const ElementFlags& flags, const SCaseRef& ref,
                        SpringSet& set);
    void ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                        Elem1DSet& set);
    void ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                        Elem2DSet& set);
    void ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                        Elem3DSet& set);
    void ResultAnalysis(int assembly, const ElementFlags& flags, const SCaseRef& ref,
                        AssemblySet& set);
    /// Coordinates of a result position in the element.
    Vec2<double> Position2D(int element, int position) const;
    Vec3<double> Position3D(int element, int position) const;

private:
    friend struct VynExportAccess;

    int MapResults();
    void Summary() const;
    std::vector<SCaseRef> ResultCases();
    /// Short text of a case: "A1", "C2", "C2p3", "C2min".
    static std::string CaseRefString(const SCaseRef& ref);

    // Whether results of a kind exist for a case; `option` is the letter of the table.
    bool AnyExist(const SCaseRef& ref, std::initializer_list<int> codes) const;
    bool DisplacementExist(const SCaseRef& ref, char option) const;
    bool VelocityExist(const SCaseRef& ref) const;
    bool AccelerationExist(const SCaseRef& ref) const;
    bool ReactionExist(const SCaseRef& ref) const;
    bool ConstraintExist(const SCaseRef& ref) const;
    bool ForceExist(const SCaseRef& ref, char option) const;
    bool StressExist(const SCaseRef& ref, char option) const;
    bool StrainExist(const SCaseRef& /*ref*/) const { return false; }
    bool DriftExist(const SCaseRef& /*ref*/) const { return IncludeCombinations(); }

    template <class Row, std::size_t N, class ForCase>
    bool WriteResults(const char* table, const char* timed, const Column<Row> (&columns)[N],
                      ForCase forCase);
    void ReadTotals(const SCaseRef& ref, std::span<double> totals) const;
    void ForgetPreparations();
    LineWork& Line();
    /// Gives a set the positions along an element in a case.
    void SetPositions(int element, const SCaseRef& ref, Elem1DSet& set);
    /// Fractions of the length at which an assembly is looked at, and the cuts there.
    std::vector<double> PositionsOfAssembly(int assembly) const;
    const std::vector<Util::CAssemblyCalc>& CutsOf(int assembly);
    const CAnalysisTask& TaskOf(const SCaseRef& ref) const;
    CaseFigures& FiguresOf(const SCaseRef& ref);
    bool ModelIsFree() const;
    /// The model, an empty one when there is none.
    const CVynData& TheModel() const;
    void OpenStream(const std::filesystem::path& file);
    void CloseStream();
    void RecordInHistory();

    Param m_param;
    std::wstring m_stem;
    std::filesystem::path m_path;
    std::string m_extension;
    CVynData* m_model = nullptr;
    std::ofstream m_output;
    bool m_oneFilePerModule = true;

protected:
    // State of a dialect.
    std::string m_statement;  ///< being built
    std::string m_tableName;
    int m_numField = 0;  ///< declared in the table
    int m_numValue = 0;  ///< written in the record

private:
    std::vector<SCaseRef> m_resultCases;
    std::vector<int> m_beamPositions;
    std::unique_ptr<char[]> m_outputBuffer;  ///< of the stream
    char m_separator = '/';                  ///< between folders in `Path`
    std::filesystem::path m_file;
    std::vector<std::filesystem::path> m_writtenFiles;
    std::vector<std::filesystem::path> m_failedFiles;
    std::unique_ptr<LineWork> m_line;
    std::unique_ptr<AssemblyWork> m_assemblies;
    std::unique_ptr<CaseFigures> m_figures;  ///< of the last case
    std::string m_text;                      ///< of a value
    std::string m_fieldText;                 ///< of a field
};

}  // namespace Tevra::Export
