#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "model/VynData.h"

namespace Vynx {

/// A regular grid of nodes, numbered from 1 along x, then y, then z.
class NodeGrid {
public:
    NodeGrid(int alongX, int alongY, int alongZ, const Tevra::Vec3<double>& spacing)
        : m_count{alongX, alongY, alongZ}, m_spacing(spacing) {}

    int Count(int axis) const { return m_count[static_cast<std::size_t>(axis)]; }
    int Number(int i, int j, int k) const { return 1 + i + m_count[0] * (j + m_count[1] * k); }
    Tevra::Vec3<double> Position(int i, int j, int k) const {
        return {i * m_spacing.x, j * m_spacing.y, k * m_spacing.z};
    }
    /// True at either end of an axis.
    bool IsEdge(int axis, int index) const { return index == 0 || index == Count(axis) - 1; }

    /// Calls visit(number, i, j, k) for each node, in the order of the numbers.
    template <class Visit>
    void ForEach(Visit&& visit) const {
        for (int k = 0; k < m_count[2]; ++k) {
            for (int j = 0; j < m_count[1]; ++j) {
                for (int i = 0; i < m_count[0]; ++i) {
                    visit(Number(i, j, k), i, j, k);
                }
            }
        }
    }

private:
    std::array<int, 3> m_count;
    Tevra::Vec3<double> m_spacing;
};

/// Titles, steel as analysis material 1, load cases, the static analysis case A1 of the first load
/// case and a task of explicit dynamics, of a model that has nothing yet.
void BeginSample(Tevra::CVynData& model, const std::wstring& title,
                 std::initializer_list<std::wstring> loadCases);

/// Adds records under the next free number.
void AddNodeLoad(Tevra::CVynData& model, int loadCase, const std::wstring& nodes,
                 Tevra::Direction direction, double value);
void AddElement(Tevra::CVynData& model, Tevra::ElementType type, const std::vector<int>& topology,
                int property);
void AddGravity(Tevra::CVynData& model, int loadCase);

/// Numbers as a list of entities has them: "first to last step step".
std::wstring Range(int first, int last, int step = 1);

/// Steel of the samples, Pa.
inline constexpr double kSampleYoung = 210e9;
inline constexpr double kSamplePoisson = 0.3;

}  // namespace Vynx
