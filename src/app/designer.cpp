#include "designer.h"

#include "arrangetools.h"
#include "designinteraction.h"
#include "editorsurfacelink.h"
#include "frmdesign.h"
#include "frmhtml.h"
#include "frmmain.h"
#include "globalini.h"
#include "mainmenus.h"
#include "programfolder.h"
#include "snapguides.h"
#include "textcatalogue.h"
#include "undohistory.h"
#include "windowgeometry.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLayout>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>
#include <algorithm>

namespace orvelin {

namespace {

const QString kDesignForm = QStringLiteral("frmDesign");

// About when a wait starts to be noticed: a project that loads or saves quicker shows
// no progress window, start-up's included.
constexpr std::chrono::milliseconds kProgressDelay{300};

} // namespace

Designer::Designer(UserInterface* ui)
    : m_programFolder(findProgramFolder()), m_ui(ui != nullptr ? *ui : m_qtUi),
      m_design(std::make_unique<FrmDesign>(m_model, m_list, &m_ui)),
      m_main(std::make_unique<FrmMain>(m_model, m_list, m_ui, m_settings, *m_design, m_shell,
                                       m_programFolder)) {
    m_qtUi.setOwner(m_main.get());
    m_qtUi.setProgressDelay(kProgressDelay);
    m_qtUi.setFolderHint([this] {
        const QString project = QString::fromStdString(m_model.ProjectFileName);
        return project.isEmpty() ? std::string() : QFileInfo(project).absolutePath().toStdString();
    });
    m_design->setNoBackGround(GlobalIni::forProgram(m_programFolder).noBackGround());
    m_main->editor().setLanguageFiles(&m_languages);
    connectWindows();
}

Designer::~Designer() {
    m_model.notices.stopListening(m_listening);
}

void Designer::showTexts(const QString& language) {
    applyLayoutDirection(language.toStdString());
    m_design->retranslate();
    if (m_html)
        m_html->retranslate();
}

void Designer::connectWindows() {
    Editor& editor = m_main->editor();
    m_surfaceLink = std::make_unique<EditorSurfaceLink>(editor);
    m_interaction = std::make_unique<DesignInteraction>(*m_design, m_model, m_list, *m_surfaceLink);
    m_arrange = std::make_unique<ArrangeTools>(*m_design, m_model, m_list, m_main->history());
    m_snap = std::make_unique<SnapGuides>(*m_design, m_model, m_list, m_settings);
    m_interaction->setSnapping(m_snap.get());
    m_arrange->menu()->addSeparator();
    m_arrange->menu()->addAction(m_snap->snapAction());
    connect(m_design.get(), &FrmDesign::btnAddBtnClicked, this, [&editor] { editor.addButton(); });
    connect(m_design.get(), &FrmDesign::btnDuplicateClicked, this,
            [&editor] { editor.duplicateButton(); });
    connect(m_design.get(), &FrmDesign::btnRemoveClicked, this,
            [&editor] { editor.removeButton(); });
    connect(m_design.get(), &FrmDesign::btnViewHtmlClicked, this, [this] { showHtml(); });
    connect(m_main.get(), &FrmMain::htmlViewRequested, this, [this] { showHtml(); });
    connect(m_main.get(), &FrmMain::textsChanged, this, &Designer::showTexts);
    // An open HTML window shows the code of the document as it changes, once for all
    // the notices of one event.
    m_listening = m_model.notices.listen([this](const DocumentChange& change) {
        if (!change.document() || m_htmlPending || !m_html || !m_html->isVisible())
            return;
        m_htmlPending = true;
        QTimer::singleShot(0, this, [this] {
            m_htmlPending = false;
            if (m_html && m_html->isVisible())
                m_html->MakeHTML();
        });
    });
    connect(m_design.get(), &FrmDesign::noBackGroundClicked, this, [this](bool on) {
        TextFileError error;
        if (!GlobalIni::forProgram(m_programFolder).setNoBackGround(on, &error))
            m_ui.showWarning(withSystemCause(texts()[Msg::IniWriteFailed], error));
    });
    connect(m_design.get(), &FrmDesign::unloading, this,
            [this] { saveWindowGeometry(*m_design, m_settings, kDesignForm); });

    connect(m_main.get(), &FrmMain::designWindowRequested, this, [this] {
        m_design->show();
        m_design->raise();
        m_design->activateWindow();
    });
    connect(m_main.get(), &FrmMain::closed, this, [this] {
        m_design->setForceUnload(true);
        m_design->close();
        if (m_html)
            m_html->close();
        QCoreApplication::quit();
    });
    // The file keys and the button commands work in the design window too.
    m_design->addActions(m_main->menus().sharedActions());
}

void Designer::showHtml() {
    // Made on first use: most sessions never look at the code.
    if (!m_html)
        m_html = std::make_unique<FrmHTML>(m_model, m_ui, m_settings, m_shell, m_programFolder);
    m_html->showAndGenerate();
}

void Designer::placeWindows() {
    // Designed places: the editor at the top left; the design window is placed beside it
    // once it has its size (placeDesignWindow).
    m_main->adjustSize();
    const QRect screen = m_main->screen()->availableGeometry();
    m_main->move(screen.topLeft() + QPoint(16, 16));
    restoreWindowGeometry(*m_main, m_settings, QStringLiteral("frmMain"));
    restoreWindowGeometry(*m_design, m_settings, kDesignForm);
}

void Designer::placeDesignWindow() {
    const QRect screen = m_design->screen()->availableGeometry();
    // Until the window manager has framed the windows, allow for a title bar.
    constexpr int kTitleBar = 30;
    const auto frameOf = [](const QWidget& window) {
        const QRect frame = window.frameGeometry();
        return frame != window.geometry() ? frame : window.geometry().adjusted(0, -kTitleBar, 0, 0);
    };
    const QRect design = frameOf(*m_design);
    const QSize decoration = design.size() - m_design->size();
    const QRect place = orvelin::placeDesignWindow(screen, frameOf(*m_main), design.size(),
                                                   m_design->minimumSizeHint() + decoration);
    m_design->move(place.topLeft());
    m_design->resize(place.size() - decoration);
}

void Designer::fitDesignWindow() {
    auto* scroll = m_design->findChild<QScrollArea*>();
    if (scroll == nullptr || m_design->layout() == nullptr)
        return;
    m_design->layout()->activate();
    const QSize missing = m_design->surface()->size() - scroll->viewport()->size();
    const QRect screen = m_design->screen()->availableGeometry();
    const int width =
        std::min(m_design->width() + std::max(0, missing.width()), screen.width() - 80);
    const int height = std::min(m_design->height() + missing.height(), screen.height() / 2);
    m_design->resize(width, std::max(height, m_design->minimumSizeHint().height()));
}

StartupResult Designer::start(const QString& commandLine) {
    placeWindows();
    m_main->show();
    m_design->show();
    const StartupResult result = m_main->editor().startup(commandLine.toStdString());
    // The first button is where the history starts (a project named on the command line
    // has started it already; doing it again is harmless).
    m_main->history().clear();
    // Until the user sizes it, the design window is as large as the applet it shows.
    if (m_settings.storedGeometry(kDesignForm.toStdString()).width == 0) {
        fitDesignWindow();
        placeDesignWindow();
    }
    return result;
}

} // namespace orvelin
