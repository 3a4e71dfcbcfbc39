#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dyna/DynaKeywords.h"
#include "dyna/DynaShapes.h"

namespace Tevra {

class CDynaCard;
class CLineReader;
class CVynData;

namespace Data {
class CElemConnect;
class CElement;
class CMassProp;
}  // namespace Data

/// What a keyword file had, and what of it did not become part of the model.
struct DynaReport {
    std::int64_t nodes = 0;              ///< entries read
    std::int64_t elements = 0;           ///< entries read; masses are no elements
    std::int64_t nodesReplaced = 0;      ///< nodes whose number came again, or was in the model
    std::int64_t elementsReplaced = 0;   ///< as well: kinds of elements may share numbers in a file
    CDynaKeywordCounts skipped;          ///< keywords that the reader does not read
    std::int64_t massesWithoutNode = 0;  ///< masses on nodes that the model does not have (yet)
    std::int64_t massesReplaced = 0;     ///< masses that a later one at the same node replaced
};

/// Reads nodes and elements of an explicit-dynamics keyword file into the model: *NODE,
/// *ELEMENT_BEAM, _SHELL, _SOLID, _DISCRETE, _MASS and _INERTIA, in fixed columns of standard
/// width. All other keywords are skipped and counted.
///
///     CDynaImport reader;
///     reader.SetData(&model);
///     if (!reader.OpenRead(L"deck.key")) {
///         Show(reader.Line(), reader.Error());
///     }
///
/// Numbers of the file are numbers of the model, part numbers become property numbers, and values
/// come as they stand, whatever their units. Entities go into the model while the file is read:
/// when it is refused, those above the failing line stay.
///
/// Options of a keyword (_OFFSET, _MCID ...) may put further lines behind each entry, which are
/// skipped. Keywords with options whose lines are not known, comma-separated lines and fields of
/// other widths are refused, as they can't be told from wrong data.
class CDynaImport {
public:
    /// The model that receives the entities; not owned.
    void SetData(CVynData* model) { m_model = model; }

    /// Reads a file; true when it was opened and read to its end without error. One reader may read
    /// several files in turn.
    bool OpenRead(const std::wstring& path);

    /// Lines read of the current file: after an error, the number of the failing line.
    int Line() const { return m_line; }

    /// What was wrong with that line, or with the file when Line() is 0; empty after success.
    const std::string& Error() const { return m_error; }

    const DynaReport& Report() const { return m_report; }

protected:
    /// The keyword loop: reads all lines.
    bool Read(CLineReader& lines);

    // One keyword block each: `line` is the keyword line, and afterwards the line that ended the
    // block, empty at the end of the file.
    bool Node(CLineReader& lines, std::string_view& line);
    bool Beam(CLineReader& lines, std::string_view& line);
    bool Shell(CLineReader& lines, std::string_view& line);
    bool Solid(CLineReader& lines, std::string_view& line);
    bool Spring(CLineReader& lines, std::string_view& line);
    bool Mass(CLineReader& lines, std::string_view& line);
    bool Inertia(CLineReader& lines, std::string_view& line);

    /// Sets the release flags of an element's end from the codes 0 to 7 for translations and
    /// rotations; other codes release nothing.
    static void SetConnect(Data::CElemConnect& connect, int translational, int rotational);

private:
    bool ReadKeywords(CLineReader& lines);
    bool ReadBlock(CLineReader& lines, std::string_view& line, bool& known);
    /// The next line that is no comment; false where a keyword or the end of the file comes first.
    bool NextData(CLineReader& lines, std::string_view& line);
    /// The next line that begins an entry; false at the end of the block, and with an error for
    /// lines without fixed columns.
    bool NextEntry(CLineReader& lines, std::string_view& line);
    /// The second line of an entry; false with an error when the block ends instead.
    bool NextOfEntry(CLineReader& lines, std::string_view& line);
    bool SkipHeading(CLineReader& lines, std::string_view& line);
    /// Skips what the options of the keyword put behind an entry.
    bool SkipFurther(CLineReader& lines, std::string_view& line, bool hasMidSideNodes = false);
    bool IsFurtherLine(std::string_view line, const DynaFurtherLine& further);
    bool SolidNodes(CLineReader& lines, std::string_view& line, CDynaCard card, DynaNodes& nodes);
    static Data::CElemConnect TakeConnect(CDynaCard& card);
    bool IsGood(const CDynaCard& card);
    bool Fail(std::string reason);
    bool AddElement(int number, Data::CElement element);
    bool AddMass(int node, const Data::CMassProp& mass);

    CVynData* m_model = nullptr;
    int m_line = 0;
    std::string m_error;
    DynaReport m_report;
    DynaForm m_form;  ///< of the current block
};

}  // namespace Tevra
