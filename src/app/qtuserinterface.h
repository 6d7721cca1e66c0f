#pragma once

#include "userinterface.h"

#include <QPointer>
#include <QString>
#include <QWidget>

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
    Answer askYesNoCancel(const std::string& text, const std::string& title) override;
    Answer askOkCancel(const std::string& text, const std::string& title) override;
    std::optional<std::string> chooseOpenFile(const std::string& filter) override;
    std::optional<std::string> chooseSaveFile(const std::string& filter,
                                              const std::string& proposed) override;
    void showProgress(const std::string& title, const std::string& text, int percent) override;
    void hideProgress() override;

    /// The progress window, created on first use.
    FrmMessage& progressWindow();

    /// The title a message box gets for `title` ("Orvelin" for an empty one).
    static QString MessageTitle(const std::string& title);
    /// The core's CR LF line breaks as the single breaks a label shows.
    static QString DisplayText(const std::string& text);

private:
    QPointer<QWidget> m_owner;
    // Owned by `m_owner` when there is one, so it may go before this object does.
    QPointer<FrmMessage> m_progress;
};

} // namespace orvelin
