#pragma once

#include "io/TextOut.h"

namespace Tevra {

/// Writes items, `inLine` to a line, ending a last line that is not full.
template <class Items, class WriteItem>
void WriteRows(TextOut& out, const Items& items, int inLine, WriteItem writeItem) {
    int column = 0;
    for (const auto& item : items) {
        writeItem(item);
        if (++column == inLine) {
            out.EndLine();
            column = 0;
        }
    }
    if (column != 0) {
        out.EndLine();
    }
}

}  // namespace Tevra
