#include "browserlist.h"
#include "designer.h"
#include "fakeui.h"
#include "frmadvanced.h"
#include "frmbgoffset.h"
#include "frmbrowsersetup.h"
#include "frmdesign.h"
#include "frmeditbrowser.h"
#include "frmhtml.h"
#include "frmmain.h"
#include "frmmessage.h"
#include "frmmultilineeditor.h"
#include "frmsetaction.h"
#include "programfolder.h"
#include "qtshell.h"
#include "tempfolder.h"
#include "testapplication.h"
#include "testdoubles.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <algorithm>
#include <gtest/gtest.h>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

bool HasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

/// Spoken names come from accessibleName, from a caption label that has the control as
/// its buddy, or, for a button, from a text with words in it ("...", an icon or a
/// group box's title around a field do not say what the control is).
bool Named(QWidget& control, const QList<QLabel*>& labels) {
    if (!control.accessibleName().trimmed().isEmpty())
        return true;
    for (const QLabel* label : labels)
        if (label->buddy() == &control && HasLetter(label->text()))
            return true;
    const auto* button = qobject_cast<QAbstractButton*>(&control);
    return button != nullptr && HasLetter(button->text());
}

/// "frmMain/txtX (QLineEdit)" for every control that takes focus but has no name.
QStringList Unnamed(QWidget& window) {
    QStringList out;
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    for (QWidget* w : window.findChildren<QWidget*>()) {
        // Popups are windows of their own; a compound control's inner line edit is
        // named by the control; a button box hands the focus on to its buttons.
        if (w->focusPolicy() == Qt::NoFocus || w->window() != &window ||
            w->focusProxy() != nullptr || qobject_cast<QDialogButtonBox*>(w) != nullptr)
            continue;
        QWidget* control = w;
        QWidget* owner = w->parentWidget();
        if ((qobject_cast<QAbstractSpinBox*>(owner) != nullptr ||
             qobject_cast<QComboBox*>(owner) != nullptr) &&
            owner->focusProxy() == w)
            control = owner;
        if (!Named(*control, labels))
            out << window.objectName() + QLatin1Char('/') + control->objectName() +
                       QStringLiteral(" (") +
                       QString::fromLatin1(control->metaObject()->className()) + QLatin1Char(')');
    }
    return out;
}

} // namespace

TEST(AccessibleNames, EveryControlThatTakesFocusSaysWhatItIsAndTheMainEditorTabsInOrder) {
    TempFolder config;
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(config.dir().string()));
    TestApplication();
    FakeUserInterface ui;
    Designer designer(&ui);
    designer.start({});
    ProjectModel& model = designer.model();
    MemorySettingsBackend backend;
    Settings settings(backend);
    QtShell shell;
    QLineEdit label;

    FrmAdvanced advanced(settings, ui);
    FrmBgOffset offset(model, nullptr);
    FrmBrowserSetup browsers({{"Firefox", "/usr/bin/firefox"}}, {});
    FrmEditBrowser browser({"Firefox", "/usr/bin/firefox"});
    FrmHTML html(model, ui, settings, shell, findProgramFolder());
    FrmMessage message;
    FrmMultiLineEditor lines(&label);
    ProgramBuffer buffer;
    FrmSetAction action(model, ui, buffer, std::vector<bool>{true});
    QStringList unnamed;
    for (QWidget* window : std::initializer_list<QWidget*>{
             &designer.mainWindow(), &designer.designWindow(), &advanced, &offset, &browsers,
             &browser, &html, &message, &lines, &action})
        unnamed << Unnamed(*window);
    EXPECT_TRUE(unnamed.isEmpty()) << unnamed.join(QLatin1Char('\n')).toStdString();

    // The main editor tabs from the button list to the states, then to the properties.
    QStringList chain;
    QWidget* w = designer.mainWindow().findChild<QWidget*>(QStringLiteral("lstButtons"));
    for (int i = 0; i < 500 && chain.size() < 9 && w != nullptr; ++i, w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus && !w->objectName().isEmpty())
            chain << w->objectName();
    EXPECT_EQ(chain.join(QLatin1Char(' ')).toStdString(),
              "lstButtons btnAdd btnDuplicate btnRemove btnBuild btnUP btnOVER btnDOWN txtX");
}
