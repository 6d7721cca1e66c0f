#include "accessiblenames.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QString>
#include <QWidget>

namespace orvelin {

namespace {

struct ControlName {
    const char* window;
    const char* control;
    const char* name;
};

// Fields whose caption is a group box or a value, and buttons that show only "..." or
// an icon, need a name of their own.
constexpr ControlName kNames[] = {
    {"frmMain", "lstButtons", "Buttons"},
    {"frmMain", "txtX", "X"},
    {"frmMain", "txtY", "Y"},
    {"frmMain", "txtWidth", "Width"},
    {"frmMain", "txtHeight", "Height"},
    {"frmMain", "txtLabel", "Label"},
    {"frmMain", "btnMultiLine", "Edit the label on several lines"},
    {"frmMain", "chkPositionText", "Label position at"},
    {"frmMain", "txtLabelPosX", "Label position X"},
    {"frmMain", "txtLabelPosY", "Label position Y"},
    {"frmMain", "lsFont", "Font"},
    {"frmMain", "lsFontSize", "Font size"},
    {"frmMain", "btnBold", "Bold"},
    {"frmMain", "btnItalic", "Italic"},
    {"frmMain", "picFontColor", "Font colour"},
    {"frmMain", "picBackColor", "Label background colour"},
    {"frmMain", "txtImage", "Image"},
    {"frmMain", "btnBrowseImage", "Choose the image file"},
    {"frmMain", "cmbImgStyle", "Image placement"},
    {"frmMain", "txtSound", "Sound"},
    {"frmMain", "btnBrowseSound", "Choose the sound file"},
    {"frmMain", "txtURL", "URL"},
    {"frmMain", "txtStatus", "Status"},
    {"frmMain", "lsTarget", "Target"},
    {"frmMain", "txtAppletWidth", "Applet width"},
    {"frmMain", "txtAppletHeight", "Applet height"},
    {"frmMain", "picBackGround", "Applet background colour"},
    {"frmMain", "txtBackImg", "Background image"},
    {"frmMain", "btnBrowseBackImg", "Choose the background image file"},
    {"frmMain", "cmbBackImgStyle", "Background image placement"},
    {"frmMain", "picAppletProgramStart", "On Applet Start program"},
    {"frmMain", "picAppletProgramOVER", "On Mouse Moving above the Applet program"},
    {"frmMain", "picAppletProgramDOWN", "On Mouse Clicking the Applet program"},
    {"frmMain", "picAppletProgramOUT", "On Mouse Exiting the Applet program"},
    {"frmDesign", "btnRemove", "Remove the current button"},
    {"frmDesign", "scrSurface", "Design surface"},
    {"frmBrowserSetup", "lstBrowsers", "Browsers"},
    {"frmEditBrowser", "txtName", "Name"},
    {"frmEditBrowser", "txtProgram", "Program"},
    {"frmEditBrowser", "btnBrowse", "Choose the program file"},
    {"frmHTML", "txtAppletName", "Applet name"},
    {"frmHTML", "txtHTML", "Applet code"},
    {"frmHTML", "cmbBrowser", "Browser"},
    {"frmHTML", "btnBrowsers", "Set up browsers"},
    {"frmMultiLineEditor", "txtEditor", "Label lines"},
    {"frmSetAction", "lstActions", "Program"},
    {"frmSetAction", "btnUP", "Move the command up"},
    {"frmSetAction", "btnDown", "Move the command down"},
    {"frmSetAction", "cmbAction", "Command"},
    {"frmSetAction", "cmbButtonNumber", "Button number"},
    {"frmSetAction", "txtJavaScript", "JavaScript"},
    {"frmSetAction", "lsMiliseconds", "Milliseconds"},
    {"frmSetAction", "cmbStateSelector", "State"},
    {"frmSetAction", "txtLabel", "Label"},
    {"frmSetAction", "btnGetHexColor", "Choose a colour"},
    {"frmSetAction", "txtX", "X"},
    {"frmSetAction", "txtY", "Y"},
    {"frmSetAction", "txtWidth", "Width"},
    {"frmSetAction", "txtHeight", "Height"},
    {"frmBgOffset", "txtOffsetX", "Offset X"},
    {"frmBgOffset", "txtOffsetY", "Offset Y"},
    {"frmAdvanced", "txtGridSize", "Design grid"},
    {"frmAbout", "lblWebAddress", "Web site"},
    {"frmSoundConv", "txtFolder", "Folder for the converted files"},
    {"frmSoundConv", "txtLog", "Conversion log"},
};

/// The widget of `item`, or the first one of its layout, when it takes the focus.
QWidget* firstControl(QLayoutItem* item) {
    if (item == nullptr)
        return nullptr;
    if (QWidget* w = item->widget())
        return w->focusPolicy() != Qt::NoFocus ? w : nullptr;
    if (QLayout* inner = item->layout())
        return inner->count() > 0 ? firstControl(inner->itemAt(0)) : nullptr;
    return nullptr;
}

/// Tab sequences that differ from the order the controls were made in: in the main
/// editor the state buttons above the properties come before them.
constexpr const char* kMainTabs[] = {"btnBuild", "btnUP", "btnOVER", "btnDOWN", "txtX"};

} // namespace

void nameControls(QWidget& window) {
    const QString windowName = window.objectName();
    for (const ControlName& entry : kNames) {
        if (windowName != QLatin1String(entry.window))
            continue;
        const QString control = QString::fromLatin1(entry.control);
        for (QWidget* w : window.findChildren<QWidget*>(control))
            if (w->accessibleName().isEmpty())
                w->setAccessibleName(QString::fromLatin1(entry.name));
    }
    if (windowName == QLatin1String("frmMain")) {
        QWidget* previous = nullptr;
        for (const char* name : kMainTabs) {
            QWidget* next = window.findChild<QWidget*>(QString::fromLatin1(name));
            if (previous != nullptr && next != nullptr)
                QWidget::setTabOrder(previous, next);
            previous = next;
        }
    }
    // A caption ("URL:") is the buddy of the control right of it in its layout.
    for (QLayout* layout : window.findChildren<QLayout*>()) {
        auto* grid = qobject_cast<QGridLayout*>(layout);
        for (int i = 0; i < layout->count(); ++i) {
            auto* label = qobject_cast<QLabel*>(layout->itemAt(i)->widget());
            if (label == nullptr || label->buddy() != nullptr ||
                !label->text().trimmed().endsWith(QLatin1Char(':')))
                continue;
            QLayoutItem* next = nullptr;
            if (grid != nullptr) {
                int row = 0, column = 0, rows = 0, columns = 0;
                grid->getItemPosition(i, &row, &column, &rows, &columns);
                next = grid->itemAtPosition(row, column + columns);
            } else if (qobject_cast<QBoxLayout*>(layout) != nullptr) {
                next = layout->itemAt(i + 1);
            }
            if (QWidget* field = firstControl(next))
                label->setBuddy(field);
        }
    }
}

} // namespace orvelin
