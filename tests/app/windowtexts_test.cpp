// Every text a window shows comes from the catalogue: a language file whose every line
// is marked with « » is read the way the program reads one, and a walk over each window
// fails on any text without the mark, and on any control that takes the focus without
// a name a screen reader can speak.
#include "designer.h"
#include "desktopdialogs.h"
#include "fakeui.h"
#include "frmabout.h"
#include "frmadvanced.h"
#include "frmbgoffset.h"
#include "frmbrowsersetup.h"
#include "frmdesign.h"
#include "frmeditbrowser.h"
#include "frmmain.h"
#include "frmmessage.h"
#include "frmmultilineeditor.h"
#include "frmsetaction.h"
#include "languagefiles.h"
#include "programbuffer.h"
#include "programfolder.h"
#include "projectmodel.h"
#include "qsettingsbackend.h"
#include "qtuserinterface.h"
#include "settings.h"
#include "soundconvwindow.h"
#include "tempfolder.h"
#include "testapplication.h"
#include "testdoubles.h"
#include "textcatalogue.h"
#include "texthelpers.h"
#include "undohistory.h"
#include "windowtexts.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>
#include <filesystem>
#include <gtest/gtest.h>

namespace orvelin {
namespace {

using testing::FakeUserInterface;
using testing::TempFolder;
using testing::TestApplication;
using testing::WriteBytes;

constexpr char kMarkedCode[] = "mrk";

// Every position of every part, its English text inside « ».
std::string MarkedLanguageFile() {
    std::string out;
    for (const SectionInfo& info : textSections()) {
        if (!info.header.empty())
            out += std::string(info.header) + "\r\n";
        for (const TextEntry& entry : info.entries)
            out += "«" + ReplaceAll(std::string(englishText(entry)), "\r\n", "\\n") + "»\r\n";
    }
    return out;
}

bool HasLetter(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

bool Marked(const QString& text) {
    // A text with no letter ("...", "100%", "|") is not language.
    return !HasLetter(text) || text.contains(QStringLiteral("«"));
}

/**
 * The texts of `window` a person can read that did not come from the catalogue: captions,
 * titles, tool tips, menu entries, list entries and headers. What the user typed or
 * chose (fields, spin boxes, the combos in `dataCombos`) is theirs, not the program's.
 */
QStringList UnmarkedTexts(QWidget& window, const QStringList& dataCombos = {}) {
    QStringList out;
    auto check = [&](const QObject* where, const QString& what, const QString& text) {
        if (!text.isEmpty() && !Marked(text))
            out << window.objectName() + QLatin1Char('/') + where->objectName() + QLatin1Char(' ') +
                       what + QStringLiteral(": ") + text;
    };
    // The main editor's caption is the program's name, its version and the project's.
    if (!window.windowTitle().startsWith(QStringLiteral("Orvelin ")))
        check(&window, QStringLiteral("caption"), window.windowTitle());
    QList<QWidget*> widgets = window.findChildren<QWidget*>();
    widgets << &window;
    for (QWidget* w : widgets) {
        check(w, QStringLiteral("tool tip"), w->toolTip());
        if (auto* label = qobject_cast<QLabel*>(w))
            check(w, QStringLiteral("text"), label->text());
        else if (auto* button = qobject_cast<QAbstractButton*>(w))
            check(w, QStringLiteral("text"), button->text());
        else if (auto* group = qobject_cast<QGroupBox*>(w))
            check(w, QStringLiteral("title"), group->title());
        else if (auto* edit = qobject_cast<QLineEdit*>(w))
            check(w, QStringLiteral("placeholder"), edit->placeholderText());
        else if (auto* menu = qobject_cast<QMenu*>(w))
            check(w, QStringLiteral("title"), menu->title());
        if (auto* combo = qobject_cast<QComboBox*>(w);
            combo && !combo->isEditable() && !dataCombos.contains(combo->objectName()))
            for (int i = 0; i < combo->count(); ++i)
                check(w, QStringLiteral("item"), combo->itemText(i));
        if (auto* tabs = qobject_cast<QTabWidget*>(w))
            for (int i = 0; i < tabs->count(); ++i)
                check(w, QStringLiteral("tab"), tabs->tabText(i));
        if (auto* header = qobject_cast<QHeaderView*>(w); header && header->model())
            for (int i = 0; i < header->count(); ++i)
                check(w, QStringLiteral("header"),
                      header->model()->headerData(i, header->orientation()).toString());
        for (QAction* action : w->actions()) {
            check(action, QStringLiteral("menu entry"), action->text());
            check(action, QStringLiteral("tool tip"), action->toolTip());
        }
    }
    out.removeDuplicates();
    return out;
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

/**
 * A program folder whose "mrk_lng" is the marked file, with `Current` set to it: the
 * designer made afterwards reads it at start-up, and each window its section as it is
 * shown.
 */
class WindowTexts : public ::testing::Test {
protected:
    void SetUp() override {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(m_config.dir().string()));
        qputenv("ORVELIN_PROGRAM_DIR", QByteArray::fromStdString(m_program.dir().string()));
        TestApplication();
        namespace fs = std::filesystem;
        for (const auto& entry : fs::directory_iterator(findProgramFolder()))
            fs::create_symlink(entry.path(), m_program.dir() / entry.path().filename());
        WriteBytes(languageFilePath(m_program.dir().string(), kMarkedCode), MarkedLanguageFile());
        QSettingsBackend backend;
        Settings(backend).setValue(SettingKey::LanguageCurrent, kMarkedCode);
    }
    void TearDown() override { qunsetenv("ORVELIN_PROGRAM_DIR"); }

    /// Every control entry of `window` names a control it has, and it shows no text
    /// of its own.
    static void ExpectAllFromCatalogue(QWidget& window, const QStringList& dataCombos = {}) {
        const QStringList missing = applyWindowTexts(window);
        EXPECT_TRUE(missing.isEmpty()) << window.objectName().toStdString() << " has no "
                                       << missing.join(QStringLiteral(", ")).toStdString();
        const QStringList unmarked = UnmarkedTexts(window, dataCombos);
        EXPECT_TRUE(unmarked.isEmpty()) << unmarked.join(QLatin1Char('\n')).toStdString();
        const QStringList unnamed = Unnamed(window);
        EXPECT_TRUE(unnamed.isEmpty()) << unnamed.join(QLatin1Char('\n')).toStdString();
    }

    TempFolder m_config;
    TempFolder m_program;
    FakeUserInterface m_ui;
};

TEST_F(WindowTexts, TheMainEditorShowsOnlyCatalogueTexts) {
    Designer designer(&m_ui);
    designer.start({});
    FrmMain& main = designer.mainWindow();
    main.editor().addButton();
    main.history().capture();
    // The texts put together at run time: list entries, the undo command, the caption.
    auto* list = main.findChild<QListWidget*>(QStringLiteral("lstButtons"));
    ASSERT_EQ(list->count(), 2);
    for (int i = 0; i < list->count(); ++i)
        EXPECT_TRUE(Marked(list->item(i)->text())) << list->item(i)->text().toStdString();
    const QString undo = main.history().undoAction()->text();
    EXPECT_TRUE(undo.startsWith(QStringLiteral("«")) && undo.count(QStringLiteral("«")) == 2)
        << undo.toStdString();
    ExpectAllFromCatalogue(main);

    // The main editor tabs from the button list to the states, then to the properties.
    QStringList chain;
    QWidget* w = main.findChild<QWidget*>(QStringLiteral("lstButtons"));
    for (int i = 0; i < 500 && chain.size() < 9 && w != nullptr; ++i, w = w->nextInFocusChain())
        if (w->focusPolicy() & Qt::TabFocus && !w->objectName().isEmpty())
            chain << w->objectName();
    EXPECT_EQ(chain.join(QLatin1Char(' ')).toStdString(),
              "lstButtons btnAdd btnDuplicate btnRemove btnBuild btnUP btnOVER btnDOWN txtX");
}

TEST_F(WindowTexts, TheProgressWindowShowsOnlyCatalogueTexts) {
    QtUserInterface ui;
    ui.setProgressDelay(std::chrono::milliseconds(0));
    Designer designer(&ui);
    designer.start(QStringLiteral(ORVELIN_SOURCE_DIR "/examples/navbar.orv"));
    FrmMessage& progress = ui.progressWindow();
    ASSERT_FALSE(progress.text().isEmpty());
    ExpectAllFromCatalogue(progress);
}

TEST_F(WindowTexts, TheDesignHtmlAboutAndSettingsWindowsShowOnlyCatalogueTexts) {
    Designer designer(&m_ui);
    designer.start({});
    FrmDesign& design = designer.designWindow();
    EXPECT_TRUE(applyWindowTexts(design).isEmpty());
    // The main editor's commands, whose keys work on the design window too, are checked
    // with the main editor.
    QStringList unmarked = UnmarkedTexts(design);
    unmarked.removeIf([&](const QString& line) {
        const QString name = line.section(QLatin1Char('/'), 1).section(QLatin1Char(' '), 0, 0);
        return designer.mainWindow().findChild<QAction*>(name) != nullptr;
    });
    EXPECT_TRUE(unmarked.isEmpty()) << unmarked.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(Unnamed(design).isEmpty()) << Unnamed(design).join(QLatin1Char('\n')).toStdString();
    // The HTML window as View HTML opens it; its browsers beyond the first are the user's.
    design.findChild<QAbstractButton*>(QStringLiteral("btnViewHtml"))->click();
    QWidget* html = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == QStringLiteral("frmHTML"))
            html = top;
    ASSERT_NE(html, nullptr);
    EXPECT_TRUE(html->findChild<QComboBox*>()->itemText(0).contains(QStringLiteral("«")));
    ExpectAllFromCatalogue(*html, {QStringLiteral("cmbBrowser")});
    html->close();

    FrmAbout about;
    ExpectAllFromCatalogue(about);
    testing::MemorySettingsBackend backend;
    Settings settings(backend);
    FrmAdvanced advanced(settings, m_ui);
    ExpectAllFromCatalogue(advanced);
    FrmBrowserSetup browsers({{kDefaultBrowserName, ""}}, {});
    ExpectAllFromCatalogue(browsers);
    FrmEditBrowser browser({});
    ExpectAllFromCatalogue(browser);
}

TEST_F(WindowTexts, TheActionEditorAndTheSmallDialogsShowOnlyCatalogueTexts) {
    QSettingsBackend backend;
    Settings settings(backend);
    TextCatalogue catalogue;
    LanguageFiles languages(catalogue, settings, m_program.dir().string());
    const LanguageInForce inForce(catalogue, languages);
    // The button list's entries begin with a message, which start-up reads.
    ASSERT_TRUE(languages.applyMain(kMarkedCode, m_ui, {TextSection::Messages}));

    ProjectModel model;
    model.ButtonCount = 1;
    model.CurrentButton = 1;
    model.button(1).ProgramUP = "1 1;";
    ProgramBuffer buffer;
    FrmSetAction action(model, m_ui, buffer, {true});
    // The caption and the state list are the main editor's texts, which it hands over.
    action.load(ProgramKind::ProgramUP, QStringLiteral("«Set Action»"));
    for (int command = 0; command < 7; ++command) {
        action.findChild<QComboBox*>(QStringLiteral("cmbAction"))->setCurrentIndex(command);
        ExpectAllFromCatalogue(action, {QStringLiteral("cmbStateSelector")});
    }

    QLineEdit label;
    FrmMultiLineEditor labelEditor(&label);
    FrmBgOffset offset(model);
    FrmAskToAssociate ask;
    FrmShortCut shortCut;
    SoundConvWindow soundConverter;
    for (QWidget* window :
         std::initializer_list<QWidget*>{&labelEditor, &offset, &ask, &shortCut, &soundConverter})
        ExpectAllFromCatalogue(*window);
    EXPECT_TRUE(offset.findChild<QSpinBox*>()->suffix().contains(QStringLiteral("«")));
}

} // namespace
} // namespace orvelin
