#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "document/ModelDocument.h"
#include "model/InterCalc.h"

namespace Tevra {
namespace {

/// Largest force and moment, of whatever component, at the ends.
double Scale(const CVynData& model, int element, const SCaseRef& ref) {
    double scale = 0.0;
    for (int end = 0; end < 2; ++end) {
        scale += Length(model.Force(element, ref, end)) + Length(model.Moment(element, ref, end));
    }
    return scale;
}

/// From what was solved for end 1 and the loads of the span follows what was solved for end 2.
void ExpectBalance(const CVynData& model, int element, const SCaseRef& ref, CInterCalc& calc) {
    CInterInfo info;
    const CPosOn1D nearEnd(CPosOn1D::kWhole - 1);
    info.Setup(InterKind::Force, {&nearEnd, 1});
    calc.SetData(element, ref);
    calc.Calculate(info);
    const double slack = 1e-5 * Scale(model, element, ref) + 0.05;
    const Vec3<double> force = info.Tran(0) - model.Force(element, ref, 1);
    const Vec3<double> moment = info.Rot(0) - model.Moment(element, ref, 1);
    EXPECT_LT(Length(force), slack) << "element " << element << " case " << ref.Case();
    EXPECT_LT(Length(moment), slack) << "element " << element << " case " << ref.Case();
}

TEST(InterExamples, SolvedEndsBalanceTheLoadsOfTheSpan) {
    for (const std::string name : {"portal", "footbridge"}) {
        SCOPED_TRACE(name);
        CVynData model;
        std::string error;
        ASSERT_TRUE(Document::ReadDocument("examples/" + name + ".json", model, error)) << error;
        CInterCalc calc(model);
        int checked = 0;
        for (const int number : model.AnalysisCaseTable().Numbers()) {
            const CAnalysisCase& record = model.AnalysisCase(number);
            if (!model.AnalysisTask(record.Task()).IsStatic()) {
                continue;
            }
            for (const int element : model.ElemTable().Numbers()) {
                if (std::isfinite(model.Force(element, AnalysisRef(number), 0).x)) {
                    ExpectBalance(model, element, AnalysisRef(number), calc);
                    ++checked;
                }
            }
        }
        EXPECT_GT(checked, 100);
    }
}

}  // namespace
}  // namespace Tevra
