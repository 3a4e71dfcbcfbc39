#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "model/VynData.h"
#include "output/engine/Line.h"
#include "output/engine/Quantity.h"

namespace Tevra::Output {

/// Takes each line as it is made; the line is only valid for the call.
using LineSink = std::function<void(const CLine&)>;

/// A column: its heading and what its figures are.
struct Column {
    std::wstring heading;
    Quantity quantity = Quantity::None;
};

/// The rows of one data item while they are made, cell by cell in the order of the columns.
/// Figures are handed over in SI and appear in the units of the model.
class CRows {
public:
    CRows(const CVynData& model, const Data::COpView& view, const std::vector<Column>& columns,
          const LineSink& sink);

    const CVynData& Model() const { return m_model; }
    const Data::COpView& View() const { return m_view; }
    /// The analysis and combination cases of the view that have results; combinations of several
    /// permutations by their largest and smallest figures.
    const std::vector<SCaseRef>& Cases() const { return m_cases; }

    CRows& Text(std::wstring_view text) {
        m_line.Text(text);
        return *this;
    }
    CRows& Int(int value) {
        m_line.Int(value);
        return *this;
    }
    CRows& Ints(std::span<const int> values) {
        m_line.Ints(values);
        return *this;
    }
    CRows& Real(double value);
    CRows& Reals(const Vec3<double>& v) { return Real(v.x).Real(v.y).Real(v.z); }
    CRows& CaseName(const SCaseRef& ref);
    /// Hands over the row and begins the next one.
    void EndRow();

private:
    void FindCases();
    void AddCombination(int number);

    const CVynData& m_model;
    const Data::COpView& m_view;
    const LineSink& m_sink;
    std::vector<double> m_factors;  ///< by column
    std::vector<SCaseRef> m_cases;
    SCaseRef m_named;  ///< the case whose name was written last, and that name
    std::wstring m_name;
    CLine m_line;
};

/// What makes the lines of a kind of data.
struct DataProvider {
    std::vector<Column> columns;
    std::function<void(CRows&)> makeRows;
};

/// Registers the provider of a kind of data by its name, over one that had the name. Not to be
/// called while output is made.
void RegisterProvider(const std::wstring& name, DataProvider provider);

/// The provider of a name; null when there is none. Those of the library are always there.
const DataProvider* FindProvider(const std::wstring& name);

/// The names of all providers, in alphabetical order.
std::vector<std::wstring> ProviderNames();

}  // namespace Tevra::Output
