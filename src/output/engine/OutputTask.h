#pragma once

#include "output/engine/DataProvider.h"

namespace Tevra {

/// Where an output task runs: always on the thread that calls it.
enum class OpThread { Main };

/// Makes the lines of output views.
class OutputTask {
public:
    explicit OutputTask(OpThread thread = OpThread::Main) : m_thread(thread) {}
    OpThread Thread() const { return m_thread; }

    /// Hands each line of a view to the sink as it is made. Each data item gives a line with its
    /// description, the headings, the units, its rows in the order of the records' numbers, and an
    /// empty line. False when the view names data that nothing provides: those give their
    /// description and an empty line alone.
    bool Run(const Data::COpView& view, const CVynData& model, const Output::LineSink& sink) const;

private:
    OpThread m_thread;
};

}  // namespace Tevra
