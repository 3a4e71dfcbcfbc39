#pragma once

#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "dyna/DynaAnalysis.h"
#include "model/VynData.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/KeywordDeck.h"
#include "support/TempFolder.h"
#include "support/TestPaths.h"

namespace Tevra {

/// Writes models as keyword files and reads what was written.
class DynaFixture : public ::testing::Test {
protected:
    DynaFixture() {
        std::tm clock{};
        clock.tm_year = 126;
        clock.tm_mon = 10;
        clock.tm_mday = 21;
        clock.tm_hour = 9;
        host.clock = clock;
    }

    /// Writes the first explicit dynamics task.
    TestSupport::KeywordDeck Write(CVynData& model) {
        writer.SetTask(CDynaAnalysis::FirstTask(model));
        return WriteTask(model);
    }

    TestSupport::KeywordDeck WriteTask(CVynData& model) {
        const ScopedHost scope(host);
        writer.SetData(&model);
        const std::size_t before = writer.ErrorLog().size();
        written = writer.OpenWrite(Text::FromPath(folder.Path() / "deck.key"));
        text = TestSupport::ReadFile(folder.Path() / "deck.key");
        log = writer.ErrorLog().substr(before);
        return TestSupport::ReadKeywordDeck(text);
    }

    bool HasNote(const std::wstring& part) const { return log.find(part) != std::wstring::npos; }

    RecordingHost host;
    TestSupport::TempFolder folder;
    CDynaAnalysis writer;
    bool written = false;
    std::string text;
    std::wstring log;  ///< of the last write
};

inline Data::MaterialChoice Generic(int number) {
    return {MatType::Generic, 0, number};
}

/// Makes `dyna` task 1 of a model.
inline void SetTask(CVynData& model, const CDynaTask& dyna) {
    CAnalysisTask task;
    task.SetDyna(dyna);
    model.SetAnalysisTask(1, task);
}

/// Nodes at these positions, from 1, an elastic material 1, and a task whose loads are all written.
inline CVynData ModelOf(const std::vector<Vec3<double>>& positions) {
    CVynData model;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        model.SetNode(static_cast<int>(i) + 1, Data::CNode(positions[i]));
    }
    model.SetMatAnal(1, Data::CMatAnal(L"Steel", 200e9, 0.25, 7850.0, 1e-5));
    CDynaTask dyna;
    dyna.SetLoadCurveDescription(L"all");
    SetTask(model, dyna);
    return model;
}

/// A beam of 4 m along Y with a rectangle 400 x 200.
inline CVynData BeamModel() {
    CVynData model = ModelOf({{1, 2, 3}, {1, 6, 3}});
    model.SetSection(1, Data::CSection(L"R", L"STD%R%400%200", Generic(1)));
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    return model;
}

/// A square plate of side 2 m, shell of 0.2 m.
inline CVynData PlateModel() {
    CVynData model = ModelOf({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}});
    Data::CProp2D property;
    property.SetThickness(0.2);
    property.SetMaterial(Generic(1));
    model.SetProp2D(1, property);
    model.SetElem(1, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, 1));
    return model;
}

/// A cube of side 1 m.
inline CVynData CubeModel() {
    CVynData model = ModelOf(
        {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}});
    Data::CProp3D property;
    property.SetMaterial(Generic(1));
    model.SetProp3D(1, property);
    model.SetElem(1, Data::CElement(ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, 1));
    return model;
}

}  // namespace Tevra
