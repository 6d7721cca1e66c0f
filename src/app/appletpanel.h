#pragma once

#include "appleticons.h"

#include <QWidget>
#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;

namespace orvelin {

class ColorButton;
class PropertyEditor;
struct ProjectModel;

/**
 * The applet half of the main editor's property panel: size, behaviour, background
 * and the " Set Action:" frame with the four applet moments. Changes go to the
 * editor core, which writes the project directly.
 */
class AppletPanel : public QWidget {
    Q_OBJECT

public:
    explicit AppletPanel(PropertyEditor& properties, QWidget* parent = nullptr);

    /// Fills the controls and the program marks from the model; the caller has set
    /// Updating.
    void showApplet(const ProjectModel& model);

signals:
    /// A moment's icon was clicked: edit the program of the kind named `kind`.
    void actionRequested(const QString& kind);
    /// The offset command.
    void offsetRequested();

private:
    QWidget* buildSize();
    QWidget* buildBackground();
    QWidget* buildActions();

    PropertyEditor& m_properties;
    QLineEdit* m_width = nullptr;
    QLineEdit* m_height = nullptr;
    QLabel* m_sizeNote = nullptr;
    QRadioButton* m_pushButtons = nullptr;
    QRadioButton* m_radioButtons = nullptr;
    QCheckBox* m_downButton = nullptr;
    ColorButton* m_background = nullptr;
    QLineEdit* m_backImg = nullptr;
    QToolButton* m_browseBackImg = nullptr;
    QComboBox* m_backImgStyle = nullptr;
    QPushButton* m_offset = nullptr;
    std::array<QToolButton*, 4> m_moments{};
    std::array<bool, 4> m_hasProgram{};
};

} // namespace orvelin
