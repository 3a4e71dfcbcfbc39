#pragma once

#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/VynData.h"
#include "nastran/NasFile.h"
#include "platform/text/HostPath.h"
#include "platform/ui/RecordingHost.h"
#include "support/NasDeck.h"
#include "support/TempFolder.h"

namespace Tevra {

/// Writes models and reads what was written.
class NasFixture : public ::testing::Test {
protected:
    NasFixture() {
        std::tm clock{};
        clock.tm_year = 126;
        clock.tm_mon = 10;
        clock.tm_mday = 21;
        clock.tm_wday = 6;
        clock.tm_hour = 9;
        host.clock = clock;
    }

    TestSupport::NasDeck Write(CVynData& model) {
        const ScopedHost scope(host);
        writer.SetData(&model);
        written = writer.OpenWrite(Text::FromPath(folder.Path() / "deck.dat"));
        text = TestSupport::ReadFile(folder.Path() / "deck.dat");
        return TestSupport::ReadNasDeck(text);
    }

    bool HasNote(const std::wstring& part) const {
        return writer.ErrorLog().find(part) != std::wstring::npos;
    }

    RecordingHost host;
    TestSupport::TempFolder folder;
    CNasFile writer;
    bool written = false;
    std::string text;
};

inline Data::MaterialChoice Generic(int number) {
    return {MatType::Generic, 0, number};
}

/// Nodes at these positions, from 1, and an elastic material 1.
inline CVynData ModelOf(const std::vector<Vec3<double>>& positions) {
    CVynData model;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        model.SetNode(static_cast<int>(i) + 1, Data::CNode(positions[i]));
    }
    model.SetMatAnal(1, Data::CMatAnal(L"Steel", 200e9, 0.25, 7850.0, 1e-5));
    return model;
}

/// A beam of 4 m along X with a rectangle 400 x 200.
inline CVynData BeamModel() {
    CVynData model = ModelOf({{0, 0, 0}, {4, 0, 0}});
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

}  // namespace Tevra
