#include "qtuserinterface.h"

#include "frmmessage.h"
#include "windowgeometry.h"
#include "windowtexts.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileInfo>

namespace orvelin {

QtUserInterface::QtUserInterface(QWidget* owner) : m_owner(owner) {}

QtUserInterface::~QtUserInterface() {
    delete m_progress.data();
}

void QtUserInterface::setOwner(QWidget* owner) {
    m_owner = owner;
}

QString QtUserInterface::messageTitle(const std::string& title) {
    return title.empty() ? QStringLiteral("Orvelin") : QString::fromStdString(title);
}

QString QtUserInterface::displayText(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

int QtUserInterface::ask(QMessageBox::Icon icon, const std::string& text, const std::string& title,
                         QMessageBox::StandardButtons buttons,
                         QMessageBox::StandardButton defaultButton) {
    QMessageBox box(icon, messageTitle(title), displayText(text), buttons, m_owner);
    box.setDefaultButton(defaultButton);
    // The answers in the language in force.
    const std::pair<QMessageBox::StandardButton, std::string_view> answers[] = {
        {QMessageBox::Yes, "#answerYes"},
        {QMessageBox::No, "#answerNo"},
        {QMessageBox::Ok, "#answerOk"},
        {QMessageBox::Cancel, "#answerCancel"}};
    for (const auto& [id, name] : answers)
        if (QAbstractButton* button = box.button(id))
            button->setText(uiText("frmMain", name));
    // A short text under a long title: the box is made wide enough to show the title.
    box.setStyleSheet(QStringLiteral("QLabel { min-width: %1px; }")
                          .arg(box.fontMetrics().horizontalAdvance(box.windowTitle()) + 40));
    keepAboveOnTopWindows(box);
    return box.exec();
}

void QtUserInterface::showMessage(const std::string& text, const std::string& title) {
    ask(QMessageBox::Information, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

void QtUserInterface::showWarning(const std::string& text, const std::string& title) {
    ask(QMessageBox::Warning, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

UserInterface::Answer QtUserInterface::askYesNoCancel(const std::string& text,
                                                      const std::string& title) {
    const int button =
        ask(QMessageBox::Question, text, title,
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    if (button == QMessageBox::No)
        return Answer::No;
    return Answer::Cancel;
}

UserInterface::Answer QtUserInterface::askOkCancel(const std::string& text,
                                                   const std::string& title) {
    const int button = ask(QMessageBox::Warning, text, title, QMessageBox::Ok | QMessageBox::Cancel,
                           QMessageBox::Ok);
    return button == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}

void QtUserInterface::setFolderHint(std::function<std::string()> hint) {
    m_folderHint = std::move(hint);
}

QString QtUserInterface::startFolder() const {
    // The project's own folder first, then wherever the user last chose a file, and
    // never the working directory the program happened to start in.
    if (m_folderHint) {
        const QString project = QString::fromStdString(m_folderHint());
        if (!project.isEmpty() && QFileInfo(project).isDir())
            return project;
    }
    if (!m_lastFolder.isEmpty() && QFileInfo(m_lastFolder).isDir())
        return m_lastFolder;
    return QDir::homePath();
}

std::optional<std::string> QtUserInterface::chooseFile(QFileDialog::AcceptMode mode,
                                                       const std::string& filter,
                                                       const std::string& proposed,
                                                       std::string* chosenFilter) {
    QFileDialog dialog(m_owner, QString(), startFolder(), QString::fromStdString(filter));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    if (!proposed.empty()) {
        const QFileInfo file(QString::fromStdString(proposed));
        if (file.isAbsolute() && file.dir().exists())
            dialog.setDirectory(file.dir());
        dialog.selectFile(file.fileName());
    }
    keepAboveOnTopWindows(dialog);
    const bool chosen = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
    if (chosenFilter != nullptr)
        *chosenFilter = dialog.selectedNameFilter().toStdString();
    if (!chosen)
        return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    m_lastFolder = QFileInfo(path).absolutePath();
    return path.toStdString();
}

std::optional<std::string> QtUserInterface::chooseOpenFile(const std::string& filter) {
    return chooseFile(QFileDialog::AcceptOpen, filter, {});
}

std::optional<std::string> QtUserInterface::chooseSaveFile(const std::string& filter,
                                                           const std::string& proposed) {
    std::string chosenFilter;
    return chooseSaveFileAndFilter(filter, proposed, chosenFilter);
}

std::optional<std::string> QtUserInterface::chooseSaveFileAndFilter(const std::string& filter,
                                                                    const std::string& proposed,
                                                                    std::string& chosenFilter) {
    return chooseFile(QFileDialog::AcceptSave, filter, proposed, &chosenFilter);
}

FrmMessage& QtUserInterface::progressWindow() {
    if (!m_progress)
        m_progress = new FrmMessage(m_owner);
    return *m_progress;
}

void QtUserInterface::setProgressDelay(std::chrono::milliseconds delay) {
    m_progressDelay = delay;
}

void QtUserInterface::showProgress(const std::string& title, const std::string& text, int percent) {
    if (!m_operation.isValid())
        m_operation.start();
    const bool shown = m_progress && m_progress->isVisible();
    if (!shown && m_operation.elapsed() < m_progressDelay.count())
        return;
    progressWindow().showProgress(QString::fromStdString(title), QString::fromStdString(text),
                                  percent);
}

void QtUserInterface::hideProgress() {
    m_operation.invalidate();
    if (m_progress)
        m_progress->hideProgress();
}

} // namespace orvelin
