#include "mainmenus.h"

#include "editor.h"

#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace orvelin {

MainMenus::MainMenus(QMainWindow& window, Editor& editor)
    : QObject(&window), m_window(window), m_editor(editor) {
    // Menus and commands are made without text: the main editor's catalogue texts reach
    // them by their names.
    QMenuBar* bar = m_window.menuBar();
    buildFile(bar->addMenu(QString()));
    buildEdit(bar->addMenu(QString()));
    buildView(bar->addMenu(QString()));
    buildOptions(bar->addMenu(QString()));
    buildTools(bar->addMenu(QString()));
    buildHelp(bar->addMenu(QString()));
}

QAction* MainMenus::add(QMenu* menu, const char* name) {
    QAction* action = menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

void MainMenus::buildFile(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuFile"));
    Editor& e = m_editor;
    QAction* newProject = add(menu, "mnuNew");
    newProject->setShortcut(QKeySequence::New);
    connect(newProject, &QAction::triggered, this, [&e] { e.newProject(); });
    QAction* open = add(menu, "mnuOpen");
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, this, [&e] { e.open(); });
    QAction* save = add(menu, "mnuSave");
    save->setShortcut(QKeySequence::Save);
    connect(save, &QAction::triggered, this, [&e] { e.save(); });
    QAction* saveAs = add(menu, "mnuSaveAs");
    saveAs->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    connect(saveAs, &QAction::triggered, this, [&e] { e.saveAs(); });
    menu->addSeparator();
    QAction* import = add(menu, "mnuImport");
    connect(import, &QAction::triggered, this, [&e] { e.importLegacy(); });
    menu->addSeparator();
    for (int slot = 1; slot <= 4; ++slot) {
        QAction* recent = menu->addAction(QString());
        recent->setObjectName(QStringLiteral("mnuFile%1").arg(slot));
        recent->setVisible(false);
        connect(recent, &QAction::triggered, this, [&e, slot] { e.openRecent(slot); });
        m_recent[static_cast<std::size_t>(slot - 1)] = recent;
    }
    menu->addSeparator();
    QAction* exit = add(menu, "mnuExit");
    exit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    exit->setMenuRole(QAction::QuitRole);
    connect(exit, &QAction::triggered, &m_window, &QWidget::close);
    m_shared << newProject << open << save << saveAs << exit;
}

void MainMenus::buildEdit(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuEdit"));
    m_edit = menu;
    Editor& e = m_editor;
    QAction* addButton = add(menu, "mnuAdd");
    addButton->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    connect(addButton, &QAction::triggered, this, [&e] { e.addButton(); });
    QAction* duplicate = add(menu, "mnuDuplicate");
    duplicate->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    connect(duplicate, &QAction::triggered, this, [&e] { e.duplicateButton(); });
    m_remove = add(menu, "mnuRemove");
    m_remove->setShortcut(QKeySequence::Delete);
    connect(m_remove, &QAction::triggered, this, [&e] { e.removeButton(); });
    menu->addSeparator();
    // The selected buttons as text, so that they paste into another running designer.
    const auto toClipboard = [](const std::string& text) {
        if (!text.empty())
            QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    };
    QAction* cut = add(menu, "mnuCut");
    cut->setShortcut(QKeySequence::Cut);
    connect(cut, &QAction::triggered, this, [&e, toClipboard] { toClipboard(e.cutButtons()); });
    QAction* copy = add(menu, "mnuCopy");
    copy->setShortcut(QKeySequence::Copy);
    connect(copy, &QAction::triggered, this, [&e, toClipboard] { toClipboard(e.copyButtons()); });
    QAction* paste = add(menu, "mnuPaste");
    paste->setShortcut(QKeySequence::Paste);
    connect(paste, &QAction::triggered, this,
            [&e] { e.pasteButtons(QGuiApplication::clipboard()->text().toStdString()); });
    menu->addSeparator();
    QAction* makeDefault = add(menu, "mnuMakeDefault");
    connect(makeDefault, &QAction::triggered, this, [&e] { e.makeDefault(); });
    m_shared << addButton << duplicate << m_remove << cut << copy << paste;
}

void MainMenus::buildView(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuView"));
    m_onTop = add(menu, "mnuDesignOnTop");
    m_onTop->setCheckable(true);
    // The core decides the new state and reports it back through setOnTopChecked.
    connect(m_onTop, &QAction::triggered, this, [this] {
        m_onTop->setChecked(m_editor.keepOnTop());
        m_editor.toggleKeepOnTop();
    });
    m_html = add(menu, "mnuBuildHtml");
    m_html->setShortcut(QKeySequence(Qt::Key_F5));
    connect(m_html, &QAction::triggered, this, &MainMenus::htmlViewRequested);
    QAction* design = add(menu, "mnuDesignWindow");
    design->setShortcut(QKeySequence(Qt::Key_F4));
    connect(design, &QAction::triggered, this, &MainMenus::designWindowRequested);
}

void MainMenus::buildOptions(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuOptions"));
    QMenu* language = menu->addMenu(QString());
    language->setObjectName(QStringLiteral("mnuLanguage"));
    m_languages = new QActionGroup(this);
    m_languages->setExclusive(true);
    const struct {
        const char* name;
        const char* code;
    } languages[] = {{"mnuEnglish", "English"}, {"mnuRussian", "rus"}, {"mnuHebrew", "heb"}};
    for (const auto& l : languages) {
        QAction* action = add(language, l.name);
        action->setCheckable(true);
        action->setData(QString::fromLatin1(l.code));
        m_languages->addAction(action);
        const std::string code = l.code;
        connect(action, &QAction::triggered, this, [this, code] { m_editor.setLanguage(code); });
    }
    m_autoTile = add(menu, "mnuAutoTile");
    m_autoTile->setCheckable(true);
    connect(m_autoTile, &QAction::triggered, this, [this](bool on) { m_editor.setAutoTile(on); });
    menu->addSeparator();
    QAction* advanced = add(menu, "mnuAdvanced");
    connect(advanced, &QAction::triggered, this, &MainMenus::advancedRequested);
    QAction* associate = add(menu, "mnuAssociate");
    connect(associate, &QAction::triggered, this, &MainMenus::associateRequested);
}

void MainMenus::buildTools(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuTools"));
    QAction* sound = add(menu, "mnuSoundConv");
    connect(sound, &QAction::triggered, this, [this] { m_editor.soundConverter(); });
}

void MainMenus::buildHelp(QMenu* menu) {
    menu->setObjectName(QStringLiteral("mnuHelp"));
    QAction* help = add(menu, "mnuHelpContents");
    help->setShortcut(QKeySequence::HelpContents);
    connect(help, &QAction::triggered, this, [this] { m_editor.help(); });
    QAction* about = add(menu, "mnuAbout");
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainMenus::aboutRequested);
}

void MainMenus::setRecentEntry(int slot, const QString& caption, bool visible) {
    if (slot < 1 || slot > 4)
        return;
    QAction* action = m_recent[static_cast<std::size_t>(slot - 1)];
    QString text = caption;
    // The stored path is the caption; an "&" in it is a character, not a mnemonic.
    action->setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
    action->setVisible(visible);
}

void MainMenus::setOnTopChecked(bool checked) {
    m_onTop->setChecked(checked);
}

void MainMenus::setLanguageChecked(const QString& language) {
    for (QAction* action : m_languages->actions())
        if (action->data().toString() == language)
            action->setChecked(true);
}

void MainMenus::setAutoTileChecked(bool checked) {
    m_autoTile->setChecked(checked);
}

void MainMenus::addUndoActions(QAction* undo, QAction* redo) {
    QAction* first = m_edit->actions().value(0);
    m_edit->insertActions(first, {undo, redo});
    m_edit->insertSeparator(first);
    m_shared << undo << redo;
}

QList<QAction*> MainMenus::sharedActions() const {
    return m_shared;
}

} // namespace orvelin
