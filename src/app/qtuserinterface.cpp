#include "qtuserinterface.h"

#include "frmmessage.h"

#include <QFileDialog>
#include <QMessageBox>

namespace orvelin {

QtUserInterface::QtUserInterface(QWidget* owner) : m_owner(owner) {}

QtUserInterface::~QtUserInterface() {
    delete m_progress.data();
}

void QtUserInterface::setOwner(QWidget* owner) {
    m_owner = owner;
}

QString QtUserInterface::MessageTitle(const std::string& title) {
    return title.empty() ? QStringLiteral("Orvelin") : QString::fromStdString(title);
}

QString QtUserInterface::DisplayText(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return shown;
}

void QtUserInterface::showMessage(const std::string& text, const std::string& title) {
    QMessageBox::information(m_owner, MessageTitle(title), DisplayText(text));
}

UserInterface::Answer QtUserInterface::askYesNoCancel(const std::string& text,
                                                      const std::string& title) {
    const auto button = QMessageBox::question(
        m_owner, MessageTitle(title), DisplayText(text),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes);
    if (button == QMessageBox::Yes)
        return Answer::Yes;
    if (button == QMessageBox::No)
        return Answer::No;
    return Answer::Cancel;
}

UserInterface::Answer QtUserInterface::askOkCancel(const std::string& text,
                                                   const std::string& title) {
    const auto button =
        QMessageBox::warning(m_owner, MessageTitle(title), DisplayText(text),
                             QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
    return button == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}

std::optional<std::string> QtUserInterface::chooseOpenFile(const std::string& filter) {
    const QString path =
        QFileDialog::getOpenFileName(m_owner, QString(), QString(), QString::fromStdString(filter));
    if (path.isEmpty())
        return std::nullopt;
    return path.toStdString();
}

std::optional<std::string> QtUserInterface::chooseSaveFile(const std::string& filter,
                                                           const std::string& proposed) {
    std::string chosenFilter;
    return chooseSaveFileAndFilter(filter, proposed, chosenFilter);
}

std::optional<std::string> QtUserInterface::chooseSaveFileAndFilter(const std::string& filter,
                                                                    const std::string& proposed,
                                                                    std::string& chosenFilter) {
    QString selected;
    const QString path =
        QFileDialog::getSaveFileName(m_owner, QString(), QString::fromStdString(proposed),
                                     QString::fromStdString(filter), &selected);
    chosenFilter = selected.toStdString();
    if (path.isEmpty())
        return std::nullopt;
    return path.toStdString();
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
