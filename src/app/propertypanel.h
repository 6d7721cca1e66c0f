#pragma once

#include "buttonrecord.h"

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace orvelin {

class ColorButton;
class Editor;
class FontFamilyBox;
class PropertyEditor;

/**
 * The button half of the main editor's property panel: the state switch, every
 * per-button control and the action command. Each control hands its change to the
 * editor core, which writes the selected buttons and ignores changes made while it
 * fills the controls (the model's Updating flag).
 */
class PropertyPanel : public QWidget {
    Q_OBJECT

public:
    PropertyPanel(Editor& editor, QWidget* parent = nullptr);

    /// Fills every control from `record` for `state`; the caller has set Updating.
    void showButton(const ButtonRecord& record, ButtonState state, const QString& caption);
    /// Checks the toggle of `state`.
    void showState(ButtonState state);
    void setActionTitle(const QString& title);
    /// Without buttons the controls have nothing to edit, and show nothing; with buttons,
    /// showing one makes them editable again.
    void setHasButton(bool hasButton);
    /// The panel shows a button that edits would not reach (the current button taken out
    /// of the selection): the controls are read-only and `note` says why.
    void setEditable(bool editable, const QString& note);
    /// A short note under the controls about what a field did with its input; empty
    /// clears it.
    void showNote(const QString& note);
    /// The label field, which the multi-line label editor writes through.
    QLineEdit* labelField() const { return m_label; }

signals:
    /// The action command: edit the program of the current state.
    void actionRequested();
    /// The "..." beside the label: the multi-line label editor.
    void labelEditorRequested();
    /// A field was left holding what it could not take: show the button's values again.
    void refreshRequested();

private:
    QWidget* buildStateSwitch();
    QWidget* buildGeometry();
    QWidget* buildLabel();
    QWidget* buildImageAndSound();
    QWidget* buildLink();
    QWidget* buildFlags();
    using TextSetter = void (PropertyEditor::*)(const std::string&);
    void bindText(QLineEdit* edit, TextSetter setter);
    void bindTexts();
    void bindChoices();
    void bindFontSize();
    void clearControls();

    Editor& m_editor;
    PropertyEditor& m_properties;

    QLabel* m_caption = nullptr;
    QButtonGroup* m_states = nullptr;
    QLineEdit* m_x = nullptr;
    QLineEdit* m_y = nullptr;
    QLineEdit* m_width = nullptr;
    QLineEdit* m_height = nullptr;
    QLineEdit* m_label = nullptr;
    QToolButton* m_labelEditor = nullptr;
    QCheckBox* m_centerText = nullptr;
    QCheckBox* m_positionText = nullptr;
    QLineEdit* m_labelPosX = nullptr;
    QLineEdit* m_labelPosY = nullptr;
    FontFamilyBox* m_font = nullptr;
    QComboBox* m_fontSize = nullptr;
    QToolButton* m_bold = nullptr;
    QToolButton* m_italic = nullptr;
    ColorButton* m_fontColor = nullptr;
    ColorButton* m_backColor = nullptr;
    QLineEdit* m_image = nullptr;
    QToolButton* m_browseImage = nullptr;
    QComboBox* m_imgStyle = nullptr;
    QLineEdit* m_sound = nullptr;
    QToolButton* m_browseSound = nullptr;
    QLineEdit* m_url = nullptr;
    QLineEdit* m_status = nullptr;
    QComboBox* m_target = nullptr;
    QCheckBox* m_border = nullptr;
    QCheckBox* m_transparent = nullptr;
    QCheckBox* m_showHand = nullptr;
    QCheckBox* m_hidden = nullptr;
    QPushButton* m_setAction = nullptr;
    QWidget* m_body = nullptr;
    QLabel* m_note = nullptr;
};

} // namespace orvelin
