#include "whole/Others.h"

#include <cstdlib>
#include <fstream>
#include <string>

#include "whole/Measure.h"

namespace WholeBench {

namespace {

using namespace Tevra;

bool IsInstalled(const std::string& program) {
    return MeasureCommand("command -v " + program + " >/dev/null") >= 0.0;
}

/// The mesh as the mesh generator reads it.
void WriteMesh(const CVynData& model, const std::filesystem::path& path) {
    constexpr int kHexahedron = 5;
    std::ofstream out(path);
    out.precision(17);
    out << "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n" << model.NumNode() << '\n';
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& at = model.Node(number).Position();
        out << number << ' ' << at.x << ' ' << at.y << ' ' << at.z << '\n';
    }
    out << "$EndNodes\n$Elements\n" << model.NumElem() << '\n';
    for (const int number : model.ElemTable().Numbers()) {
        out << number << ' ' << kHexahedron << " 2 1 1";
        for (const int node : model.Elem(number).Topo()) {
            out << ' ' << node;
        }
        out << '\n';
    }
    out << "$EndElements\n";
}

}  // namespace

std::vector<Comparison> BesideMeshGenerator(const CVynData& model,
                                            const std::filesystem::path& folder,
                                            double nastranSeconds, double dynaSeconds) {
    if (!IsInstalled("gmsh")) {
        return {};
    }
    WriteMesh(model, folder / "mesh.msh");
    std::ofstream(folder / "mesh.geo") << "Mesh.SaveAll = 1;\nMerge \"mesh.msh\";\n"
                                          "t = Cpu; Save \"mesh.bdf\"; Printf(\"bdf %g\", Cpu - t) "
                                          "> \"bdf.txt\";\n"
                                          "t = Cpu; Save \"mesh.key\"; Printf(\"key %g\", Cpu - t) "
                                          "> \"key.txt\";\n";
    if (MeasureCommand("cd " + folder.string() + " && gmsh -v 0 mesh.geo - >/dev/null 2>&1") <
        0.0) {
        return {};
    }
    std::vector<Comparison> comparisons;
    const auto add = [&](const char* kind, double ours) {
        std::ifstream told(folder / (std::string(kind) + ".txt"));
        std::string word;
        double seconds = 0.0;
        if (told >> word >> seconds && ours > 0.0) {
            comparisons.push_back(
                {"mesh generator, ." + std::string(kind) + " of the same mesh", seconds / ours});
        }
    };
    add("bdf", nastranSeconds);
    add("key", dynaSeconds);
    return comparisons;
}

std::vector<Comparison> BesideDump(const std::filesystem::path& tables,
                                   const std::filesystem::path& folder, double seconds) {
    if (!IsInstalled("sqlite3")) {
        return {};
    }
    const std::string database = (folder / "rows.db").string();
    // "case" is a word of the language, which has to stand in quotes.
    const double loaded =
        MeasureCommand("(echo 'BEGIN;'; sed 's/^INSERT INTO case /INSERT INTO \"case\" /' " +
                       tables.string() + "; echo 'COMMIT;') | sqlite3 " + database);
    const double dump =
        MeasureCommand("sqlite3 " + database + " .dump > " + (folder / "dump.sql").string());
    return loaded < 0.0 || dump < 0.0
               ? std::vector<Comparison>{}
               : std::vector<Comparison>{{"SQLite's .dump of the same rows", dump / seconds}};
}

}  // namespace WholeBench
