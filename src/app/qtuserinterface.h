#pragma once

#include "userinterface.h"

#include <QElapsedTimer>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <chrono>
#include <functional>

namespace orvelin {

class FrmMessage;

/**
 * The core's user interface on Qt: message boxes titled "Orvelin" unless the
 * core names a title, the platform's file dialogs and the progress window
 * `frmMessage`. Dialogs are owned by `owner` (the main editor) when it is set.
 */
class QtUserInterface : public UserInterface {
public:
    explicit QtUserInterface(QWidget* owner = nullptr);
    ~QtUserInterface() override;

    void setOwner(QWidget* owner);

    void showMessage(const std::string& text, const std::string& title) override;
    void showWarning(const std::string& text, const std::string& title) override;
    Answer askYesNoCancel(const std::string& text, const std::string& title) override;
    Answer askOkCancel(const std::string& text, const std::string& title) override;
    std::optional<std::string> chooseOpenFile(const std::string& filter) override;
    std::optional<std::string> chooseSaveFile(const std::string& filter,
                                              const std::string& proposed) override;
    std::optional<std::string> chooseSaveFileAndFilter(const std::string& filter,
                                                       const std::string& proposed,
                                                       std::string& chosenFilter) override;
    void showProgress(const std::string& title, const std::string& text, int percent) override;
    void hideProgress() override;

    /// Where file dialogs open: the folder `hint` names (the project's) when it exists,
    /// else the folder of the last file chosen, else the home folder.
    void setFolderHint(std::function<std::string()> hint);

    /// The progress window, created on first use.
    FrmMessage& progressWindow();

    /**
     * Keeps the progress window (and the busy pointer with it) back until an operation
     * has gone on for `delay`, from its first progress report to hideProgress(): a load
     * or save quicker than that is over before anyone could read the window, and showing
     * one costs a window and a pointer. The first report after the delay shows it. No
     * delay (the default) shows the window at the first report.
     */
    void setProgressDelay(std::chrono::milliseconds delay);

    /// The title a message box gets for `title` ("Orvelin" for an empty one).
    static QString messageTitle(const std::string& title);
    /// The core's CR LF line breaks as the single breaks a label shows.
    static QString displayText(const std::string& text);

private:
    int ask(QMessageBox::Icon icon, const std::string& text, const std::string& title,
            QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton);
    QString startFolder() const;
    std::optional<std::string> chooseFile(QFileDialog::AcceptMode mode, const std::string& filter,
                                          const std::string& proposed,
                                          std::string* chosenFilter = nullptr);

    QPointer<QWidget> m_owner;
    std::function<std::string()> m_folderHint;
    QString m_lastFolder;
    // Owned by `m_owner` when there is one, so it may go before this object does.
    QPointer<FrmMessage> m_progress;
    std::chrono::milliseconds m_progressDelay{0};
    QElapsedTimer m_operation; ///< since the operation's first progress report
};

} // namespace orvelin
