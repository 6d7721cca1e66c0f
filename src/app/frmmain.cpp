#include "frmmain.h"

#include "accessiblenames.h"
#include "appletpanel.h"
#include "buttonlistbinding.h"
#include "frmabout.h"
#include "frmadvanced.h"
#include "frmbgoffset.h"
#include "frmmultilineeditor.h"
#include "frmsetaction.h"
#include "imagefile.h"
#include "mainmenus.h"
#include "propertypanel.h"
#include "textcatalogue.h"
#include "undohistory.h"
#include "windowgeometry.h"
#include "windowtexts.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

const QString kFormName = QStringLiteral("frmMain");

QToolButton* listCommand(const QString& name, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

} // namespace

FrmMain::FrmMain(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
                 DesignView& design, Shell& shell, std::string programFolder, QWidget* parent)
    : QMainWindow(parent), m_model(model), m_list(list), m_ui(ui), m_settings(settings),
      m_editor(model, list, ui, settings, design, shell, *this, std::move(programFolder)) {
    setObjectName(kFormName);
    m_menus = new MainMenus(*this, m_editor);
    m_history = new UndoHistory(m_model, m_list, this);
    m_menus->addUndoActions(m_history->undoAction(), m_history->redoAction());

    auto* central = new QWidget(this);
    auto* columns = new QHBoxLayout(central);
    columns->setContentsMargins(8, 8, 8, 8);
    columns->setSpacing(10);
    columns->addWidget(buildButtonColumn());
    m_properties = new PropertyPanel(m_editor, central);
    columns->addWidget(m_properties, 1);
    m_applet = new AppletPanel(m_editor.properties(), central);
    m_applet->setFixedWidth(250);
    columns->addWidget(m_applet);
    setCentralWidget(central);

    connect(m_menus, &MainMenus::designWindowRequested, this, &FrmMain::designWindowRequested);
    connect(m_menus, &MainMenus::htmlViewRequested, this, &FrmMain::htmlViewRequested);
    connect(m_menus, &MainMenus::aboutRequested, this, &FrmMain::showAbout);
    connect(m_properties, &PropertyPanel::actionRequested, this,
            [this] { openActionEditor(m_editor.actionProgramKind()); });
    connect(m_applet, &AppletPanel::actionRequested, this, [this](const QString& kind) {
        if (const auto known = programKindFromName(kind.toStdString()))
            openActionEditor(*known);
    });
    connect(m_applet, &AppletPanel::offsetRequested, this, &FrmMain::openOffset);
    connect(m_properties, &PropertyPanel::labelEditorRequested, this, &FrmMain::openLabelEditor);
    connect(m_menus, &MainMenus::advancedRequested, this, &FrmMain::openAdvanced);
    connect(m_properties, &PropertyPanel::refreshRequested, this,
            [this] { m_editor.ShowProp(m_model.CurrentButton); });
    // Every change of the project clears Saved; the title's marker follows once each
    // event has been handled, before the program waits for the next one.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] {
                m_history->capture();
                if (isWindowModified() == m_model.Saved)
                    setWindowModified(!m_model.Saved);
            });
    // The captions are in place before the screen-reader names pair them with their fields.
    showWindowTexts(*this, {TextSection::MainMore});
    nameControls(*this);
}

FrmMain::~FrmMain() {
    // A field that still has focus ends its edit when the window goes, and that edit
    // writes back through this window: let it happen while the window is still whole.
    if (QWidget* field = focusWidget())
        field->clearFocus();
}

QWidget* FrmMain::buildButtonColumn() {
    auto* column = new QWidget(this);
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    m_buttons = new QListWidget(column);
    m_buttons->setObjectName(QStringLiteral("lstButtons"));
    m_buttons->setFixedWidth(120);
    m_binding = new ButtonListBinding(*m_buttons, m_list, m_editor, this);
    layout->addWidget(m_buttons, 1);

    auto* commands = new QHBoxLayout();
    commands->setSpacing(2);
    Editor& e = m_editor;
    QToolButton* add = listCommand(QStringLiteral("btnAdd"), column);
    QToolButton* duplicate = listCommand(QStringLiteral("btnDuplicate"), column);
    QToolButton* remove = listCommand(QStringLiteral("btnRemove"), column);
    connect(add, &QToolButton::clicked, this, [&e] { e.addButton(); });
    connect(duplicate, &QToolButton::clicked, this, [&e] { e.duplicateButton(); });
    connect(remove, &QToolButton::clicked, this, [&e] { e.removeButton(); });
    commands->addWidget(add);
    commands->addWidget(remove);
    layout->addWidget(duplicate);
    layout->addLayout(commands);
    auto* build = new QPushButton(column);
    build->setObjectName(QStringLiteral("btnBuild"));
    // The same request as View > Build HTML (F5), so both open the one HTML window.
    connect(build, &QPushButton::clicked, this, &FrmMain::htmlViewRequested);
    layout->addWidget(build);
    column->setFixedWidth(120);
    return column;
}

void FrmMain::openActionEditor(ProgramKind kind) {
    std::vector<bool> selected(static_cast<std::size_t>(m_list.count()));
    for (int i = 1; i <= m_list.count(); ++i)
        selected[static_cast<std::size_t>(i - 1)] = m_list.isSelected(i);
    showActionEditor(this, m_model, selected, m_ui, m_programBuffer, kind);
}

void FrmMain::openLabelEditor() {
    if (m_labelEditor == nullptr) {
        m_labelEditor = new FrmMultiLineEditor(m_properties->labelField(), this);
        m_labelEditor->setAttribute(Qt::WA_DeleteOnClose);
    }
    keepAboveOnTopWindows(*m_labelEditor);
    m_labelEditor->show();
    m_labelEditor->raise();
    m_labelEditor->activateWindow();
}

void FrmMain::openAdvanced() {
    FrmAdvanced dialog(m_settings, m_ui, this);
    connect(&dialog, &FrmAdvanced::autoTileChanged, this,
            [this](bool on) { m_menus->setAutoTileChecked(on); });
    connect(&dialog, &FrmAdvanced::defaultsRestored, this,
            [this] { m_menus->setAutoTileChecked(m_settings.flag(SettingKey::AutoTile)); });
    keepAboveOnTopWindows(dialog);
    dialog.exec();
}

void FrmMain::openOffset() {
    FrmBgOffset dialog(m_model, this);
    keepAboveOnTopWindows(dialog);
    dialog.exec();
}

void FrmMain::ShowProp(int index, const std::string& caption) {
    if (index < 1 || index > m_model.ButtonCount)
        return;
    m_properties->showButton(m_model.button(index), m_model.CurrentState,
                             QString::fromStdString(caption));
    // Edits go to the selected buttons: a current button taken out of the selection is
    // shown, but the panel does not pretend to edit it.
    const bool editable = m_list.isSelected(index);
    m_properties->setEditable(
        editable,
        editable ? QString()
                 : QString::fromStdString(buttonEntryText(index) + texts()[Msg::NotSelectedNote]));
}

void FrmMain::SetMainParams() {
    m_applet->showApplet(m_model);
}

void FrmMain::showButtonList() {
    m_binding->show(m_model.CurrentButton);
    const bool updating = m_model.Updating;
    m_model.Updating = true; // emptied controls are not edits
    m_properties->setHasButton(m_model.ButtonCount > 0);
    m_model.Updating = updating;
}

void FrmMain::setCaption(const std::string& caption) {
    // "[*]" is where Qt shows the unsaved-changes marker.
    setWindowTitle(QString::fromStdString(caption) + QStringLiteral("[*]"));
}

void FrmMain::setRecentEntry(int slot, const std::string& caption, bool visible) {
    m_menus->setRecentEntry(slot, QString::fromStdString(caption), visible);
}

void FrmMain::setActionTitle(const std::string& title) {
    m_properties->setActionTitle(QString::fromStdString(title));
}

void FrmMain::showState(ButtonState state) {
    m_properties->showState(state);
}

void FrmMain::setOnTopChecked(bool checked) {
    m_menus->setOnTopChecked(checked);
}

void FrmMain::showTexts(const std::string& language) {
    applyWindowTexts(*this);
    // The texts put together from the catalogue's parts.
    m_binding->showTexts();
    m_history->showTexts();
    setActionTitle(programKindTitle(m_editor.actionProgramKind()));
    if (m_model.ButtonCount > 0)
        m_editor.ShowProp(m_model.CurrentButton);
    emit textsChanged(QString::fromStdString(language));
}

void FrmMain::setLanguageChecked(const std::string& language) {
    m_menus->setLanguageChecked(QString::fromStdString(language));
}

void FrmMain::setAutoTileChecked(bool checked) {
    m_menus->setAutoTileChecked(checked);
}

void FrmMain::closeLabelEditor() {
    if (m_labelEditor != nullptr)
        m_labelEditor->close();
}

void FrmMain::quitProgram() {
    // The settings were repaired and the user told to restart: no save question.
    m_quitting = true;
    close();
}

std::optional<ImageSize> FrmMain::imageSizeOf(const std::string& path) {
    const QSize size = imageFileSize(QString::fromStdString(path));
    if (!size.isValid())
        return std::nullopt;
    return ImageSize{size.width(), size.height()};
}

void FrmMain::projectReplaced() {
    m_history->clear();
}

void FrmMain::closeEvent(QCloseEvent* event) {
    if (!m_quitting && !m_editor.close()) {
        event->ignore();
        return;
    }
    saveWindowGeometry(*this, m_settings, kFormName);
    event->accept();
    emit closed();
}

void FrmMain::showAbout() {
    FrmAbout about(this);
    about.exec();
}

} // namespace orvelin
