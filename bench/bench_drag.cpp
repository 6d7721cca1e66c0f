// One drag step on the design surface with 101 selected buttons, against the floor
// set by the toolkit: moving 101 plain widgets by the same offset.

#include "benchapplication.h"
#include "buttonpicture.h"
#include "designinteraction.h"
#include "frmdesign.h"
#include "surfaceeditorlink.h"

#include <QApplication>
#include <QMouseEvent>
#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

using namespace orvelin;

namespace {

constexpr int kButtons = 101;

/// The main editor's part is left out: it fills the same fields whatever the count.
struct NoEditor : SurfaceEditorLink {
    void showGeometry(int) override {}
};

/// Where button `i` of 101 stands: ten to a row, small enough to fit the applet.
QRect Place(int i) {
    return {5 + ((i - 1) % 10) * 50, 5 + ((i - 1) / 10) * 15, 45, 12};
}

/// The pointer moves one pixel right and back, relative to the pressed picture.
QMouseEvent MoveEvent(QPointF local) {
    return QMouseEvent(QEvent::MouseMove, local, local, Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
}

void BM_DragStepWith101SelectedButtons(benchmark::State& state) {
    BenchApplication();
    ProjectModel model;
    ButtonList list;
    NoEditor editor;
    FrmDesign design(model, list);
    DesignInteraction interaction(design, model, list, editor);
    for (int i = 1; i <= kButtons; ++i) {
        model.addButton(kFactoryDefaultButton);
        const QRect r = Place(i);
        ButtonRecord& b = model.button(i);
        b.x = static_cast<std::int16_t>(r.x());
        b.y = static_cast<std::int16_t>(r.y());
        b.Width = static_cast<std::int16_t>(r.width());
        b.Height = static_cast<std::int16_t>(r.height());
        list.append();
        design.LoadButton(i);
    }
    for (int i = 1; i <= kButtons; ++i)
        list.addSelection(i);
    model.CurrentButton = 1;
    design.show();
    QApplication::processEvents();

    const QPointF grab(5, 5);
    QMouseEvent press(QEvent::MouseButtonPress, grab, grab, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    interaction.pButtons_MouseDown(1, &press);
    QMouseEvent right = MoveEvent(grab + QPointF(1, 0));
    QMouseEvent left = MoveEvent(grab - QPointF(1, 0));
    bool forth = true;
    for (auto _ : state) {
        interaction.pButtons_MouseMove(1, forth ? &right : &left);
        forth = !forth;
    }
    if (model.button(kButtons).x != Place(kButtons).x() &&
        model.button(kButtons).x != Place(kButtons).x() + 1)
        state.SkipWithError("the group did not move as one");
}
BENCHMARK(BM_DragStepWith101SelectedButtons);

void BM_Move101PlainWidgets(benchmark::State& state) {
    BenchApplication();
    QWidget window;
    auto* area = new QWidget(&window);
    area->setGeometry(12, 12, 510, 170);
    std::vector<QWidget*> widgets;
    for (int i = 1; i <= kButtons; ++i) {
        auto* w = new QWidget(area);
        w->setGeometry(Place(i));
        widgets.push_back(w);
    }
    window.resize(540, 200);
    window.show();
    QApplication::processEvents();

    int dx = 1;
    for (auto _ : state) {
        for (QWidget* w : widgets)
            w->move(w->x() + dx, w->y());
        dx = -dx;
    }
}
BENCHMARK(BM_Move101PlainWidgets);

} // namespace
