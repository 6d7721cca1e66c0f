// Undo and redo of a group move of 101 buttons in the running designer, against one
// drag step of the same group in the same designer.

#include "benchapplication.h"
#include "buttonpicture.h"
#include "designer.h"
#include "frmdesign.h"
#include "frmmain.h"
#include "undohistory.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>
#include <chrono>

using namespace orvelin;

namespace {

constexpr int kButtons = 101;

/// The designer with 101 small buttons, all selected, the history empty.
struct Bench {
    Designer designer;

    Bench() {
        designer.start({});
        Editor& editor = designer.mainWindow().editor();
        while (designer.model().ButtonCount < kButtons)
            editor.addButton();
        for (int i = 1; i <= kButtons; ++i) {
            ButtonRecord& b = designer.model().button(i);
            b.x = static_cast<std::int16_t>(5 + ((i - 1) % 10) * 50);
            b.y = static_cast<std::int16_t>(5 + ((i - 1) / 10) * 15);
            b.Width = 45;
            b.Height = 12;
        }
        std::vector<int> all(kButtons);
        for (int i = 0; i < kButtons; ++i)
            all[static_cast<std::size_t>(i)] = i + 1;
        editor.setListSelection(all);
        designer.mainWindow().history().clear();
        QApplication::processEvents();
    }

    // Alt held: no snapping, which would hold the group in place and time a drag step
    // that moves nothing.
    void mouse(QEvent::Type type, QPointF at) {
        QMouseEvent event(type, at, at, Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::AltModifier);
        QApplication::sendEvent(designer.designWindow().pButtons(1), &event);
    }
};

void BM_DragStepOf101ButtonsInTheDesigner(benchmark::State& state) {
    BenchApplication();
    Bench bench;
    const QPointF grab(5, 5);
    bench.mouse(QEvent::MouseButtonPress, grab);
    const int before = bench.designer.model().button(kButtons).x;
    bench.mouse(QEvent::MouseMove, grab + QPointF(1, 0));
    if (bench.designer.designWindow().pButtons(kButtons)->x() != before + 1)
        state.SkipWithError("a drag step moved nothing");
    bool forth = false;
    for (auto _ : state) {
        bench.mouse(QEvent::MouseMove, grab + QPointF(forth ? 1 : -1, 0));
        forth = !forth;
    }
    bench.mouse(QEvent::MouseButtonRelease, grab);
}
BENCHMARK(BM_DragStepOf101ButtonsInTheDesigner);

void UndoRedo(benchmark::State& state, bool timeUndo) {
    BenchApplication();
    Bench bench;
    UndoHistory& history = bench.designer.mainWindow().history();
    for (int i = 1; i <= kButtons; ++i)
        bench.designer.model().button(i).x += 3;
    history.capture();
    if (history.stack().count() != 1)
        state.SkipWithError("the group move made no single step");
    if (!timeUndo)
        history.undo();
    // Only the timed half counts: the clock runs around one undo or one redo.
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        timeUndo ? history.undo() : history.redo();
        const auto end = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(end - start).count());
        timeUndo ? history.redo() : history.undo();
    }
    if (!timeUndo)
        history.redo();
    if (bench.designer.model().button(kButtons).x != 5 + 3)
        state.SkipWithError("redo did not put the move back");
}

void BM_UndoGroupMoveOf101Buttons(benchmark::State& state) {
    UndoRedo(state, true);
}
BENCHMARK(BM_UndoGroupMoveOf101Buttons)->UseManualTime();

void BM_RedoGroupMoveOf101Buttons(benchmark::State& state) {
    UndoRedo(state, false);
}
BENCHMARK(BM_RedoGroupMoveOf101Buttons)->UseManualTime();

} // namespace
