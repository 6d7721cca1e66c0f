#pragma once

#include "designview.h"
#include "projectmodel.h"

#include <QDialog>
#include <cstdint>

class QSpinBox;

namespace orvelin {

/**
 * The background offset dialog `frmBgOffset`: X and Y of the background image's shift.
 * Every change is shown on the design surface at once; OK keeps it (and marks the
 * project changed when it differs), Cancel or closing puts the old offset back.
 */
class FrmBgOffset : public QDialog {
    Q_OBJECT

public:
    /// `preview` is the surface shown the live change (may be null).
    FrmBgOffset(ProjectModel& model, DesignView* preview, QWidget* parent = nullptr);

    QSpinBox* txtOffsetX() const { return m_x; }
    QSpinBox* txtOffsetY() const { return m_y; }

public slots:
    void accept() override;
    void reject() override;

private:
    void preview();

    ProjectModel& m_model;
    DesignView* m_preview;
    std::int16_t m_oldX;
    std::int16_t m_oldY;
    QSpinBox* m_x = nullptr;
    QSpinBox* m_y = nullptr;
};

} // namespace orvelin
