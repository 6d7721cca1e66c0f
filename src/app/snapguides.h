#pragma once

#include "buttonlist.h"
#include "layouttools.h"
#include "manipulation.h"
#include "projectmodel.h"

#include <QObject>
#include <QPointer>
#include <vector>

class QAction;

namespace orvelin {

class FrmDesign;
class GuideOverlay;
class Settings;

/**
 * Snapping of the design surface: after each drag step or handle move the selection
 * (or the moving edge) is pulled to the nearest edge or centre of another button or of
 * the applet area, or to the grid, and thin guide lines show what it holds to. Holding
 * Alt suspends it; "SnapToButtons" and "GridSize" turn it off or set the grid.
 */
class SnapGuides : public QObject {
    Q_OBJECT

public:
    SnapGuides(FrmDesign& design, ProjectModel& model, const ButtonList& list, Settings& settings,
               QObject* parent = nullptr);
    ~SnapGuides() override;

    /// After a drag step: moves the selection on to where it snaps; `moved` grows by it.
    void afterDrag(MoveOutcome& moved, bool suspended);
    /// After a handle moved the current button's edge: that edge snaps. True when the
    /// record changed.
    bool afterResize(int handle, bool suspended);
    /// The gesture ended: the guides go.
    void finish();

    /// `mnuSnapToButtons`: a check mark that stores "SnapToButtons".
    QAction* snapAction() const { return m_snapAction; }

    /// The guides shown now, in applet pixels.
    const std::vector<SnapGuide>& guides() const;

private:
    SnapOptions options(bool suspended) const;
    std::vector<PixelRect> others(bool skipSelected) const;
    PixelRect area() const;
    void show(const std::vector<SnapGuide>& guides);

    FrmDesign& m_design;
    ProjectModel& m_model;
    const ButtonList& m_list;
    Settings& m_settings;
    QPointer<GuideOverlay> m_overlay;
    QAction* m_snapAction = nullptr;
};

} // namespace orvelin
