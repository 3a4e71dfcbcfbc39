#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "document/ModelDocument.h"
#include "model/References.h"
#include "model/VynData.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

std::vector<std::string> Examples() {
    std::vector<std::string> names;
    for (const auto& entry :
         std::filesystem::directory_iterator(TestSupport::SourceDir() / "examples")) {
        if (entry.path().extension() == ".json") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class Example : public ::testing::TestWithParam<std::string> {
protected:
    void SetUp() override {
        std::string error;
        ASSERT_TRUE(Document::ReadDocument(
            TestSupport::SourceDir() / "examples" / (GetParam() + ".json"), m_model, error))
            << error;
    }
    CVynData m_model;
};

TEST_P(Example, RefersToNothingThatDoesNotExist) {
    const Util::ReferenceReport report = Util::FindDanglingReferences(m_model);
    EXPECT_EQ(report.total, 0) << (report.findings.empty() ? 0 : report.findings.front().size());
    EXPECT_EQ(report.findings, std::vector<std::wstring>{});
}

TEST_P(Example, IsTheSameModelWhenWrittenAndReadAgain) {
    std::stringstream text;
    std::string error;
    ASSERT_TRUE(Document::WriteDocument(m_model, text, error)) << error;
    CVynData again;
    ASSERT_TRUE(Document::ReadDocument(text, again, error)) << error;
    EXPECT_TRUE(again == m_model);
}

// The totals that the document states, and the sum over the nodes that the model holds.
TEST_P(Example, ReactionsOfStaticCasesBalanceTheLoads) {
    int looked = 0;
    for (const int number : m_model.AnalysisCaseTable().Numbers()) {
        const SCaseRef ref = AnalysisRef(number);
        const Vec3<double> load = m_model.TotalForce(ref);
        if (std::isnan(load.x)) {
            continue;
        }
        ++looked;
        Vec3<double> sum;
        double largest = Length(load);
        for (const int node : m_model.NodeTable().Numbers()) {
            for (const Vec3<double>& force :
                 {m_model.ReactForce(node, ref), m_model.ConsForce(node, ref),
                  m_model.ForceSpring({SelType::Node, node}, ref, 0)}) {
                if (!std::isnan(force.x)) {
                    sum = sum + force;
                    largest = std::max(largest, Length(force));
                }
            }
        }
        const Vec3<double> rest = sum + load;
        EXPECT_LT(Length(rest), 1e-6 * largest + 1e-6) << "case " << number;
        const Vec3<double> stated = m_model.TotalReactForce(ref) + load;
        EXPECT_LT(Length(stated), 1e-6 * largest + 1e-6) << "case " << number;
    }
    // The solver knows no soil.
    if (GetParam() != "piledraft") {
        EXPECT_GT(looked, 0);
    }
}

INSTANTIATE_TEST_SUITE_P(All, Example, ::testing::ValuesIn(Examples()),
                         [](const auto& example) { return example.param; });

TEST(Examples, FootbridgeHasTwelveModesOfRisingFrequency) {
    CVynData model;
    std::string error;
    ASSERT_TRUE(
        Document::ReadDocument(TestSupport::SourceDir() / "examples/footbridge.json", model, error))
        << error;
    int modes = 0;
    double last = 0.0;
    for (const int number : model.AnalysisCaseTable().Numbers()) {
        const SCaseRef ref = AnalysisRef(number);
        if (model.Mode(ref) > 0) {
            EXPECT_EQ(model.Mode(ref), ++modes);
            EXPECT_GE(model.Frequency(ref), last);
            last = model.Frequency(ref);
            // k = (2 pi f)^2 m of a mode.
            const double omega = 2.0 * M_PI * last;
            EXPECT_NEAR(model.ModalStiff(ref) / (omega * omega * model.ModalMass(ref)), 1.0, 1e-9);
        }
    }
    EXPECT_EQ(modes, 12);
}

}  // namespace
}  // namespace Tevra
