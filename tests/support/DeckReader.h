#pragma once

#include <sstream>
#include <string>

#include "dyna/DynaImport.h"
#include "model/VynData.h"
#include "platform/text/LineReader.h"

namespace Tevra::TestSupport {

/// Reads keyword decks from texts, each reader one of them into a model of its own.
class DeckReader : public CDynaImport {
public:
    DeckReader() { SetData(&m_model); }
    DeckReader(const DeckReader&) = delete;
    DeckReader& operator=(const DeckReader&) = delete;

    bool ReadText(const std::string& text) {
        std::istringstream stream(text);
        CLineReader lines(stream);
        return Read(lines);
    }
    CVynData& Model() { return m_model; }

private:
    CVynData m_model;
};

}  // namespace Tevra::TestSupport
