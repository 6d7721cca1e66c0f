#pragma once

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
    /// The live change is announced through the model's notices.
    explicit FrmBgOffset(ProjectModel& model, QWidget* parent = nullptr);

    QSpinBox* txtOffsetX() const { return m_x; }
    QSpinBox* txtOffsetY() const { return m_y; }

public slots:
    void accept() override;
    void reject() override;

private:
    void preview();
    void announce();

    ProjectModel& m_model;
    std::int16_t m_oldX;
    std::int16_t m_oldY;
    QSpinBox* m_x = nullptr;
    QSpinBox* m_y = nullptr;
};

} // namespace orvelin
