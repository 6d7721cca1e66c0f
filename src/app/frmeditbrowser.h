#pragma once

#include "browserlist.h"

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QPushButton;

namespace orvelin {

/**
 * The browser entry editor `frmEditBrowser`: a browser's name and its program, with
 * a file chooser for the program. OK is offered once both are filled in and takes
 * only a program that exists and may be run.
 */
class FrmEditBrowser : public QDialog {
    Q_OBJECT

public:
    /// The dialog's visible texts, in the order a language file gives them:
    /// caption, the two labels, the chooser's caption and tool tip, the message.
    static constexpr int kTextCount = 6;
    static QStringList defaultTexts();

    explicit FrmEditBrowser(const BrowserEntry& entry, QWidget* parent = nullptr);

    BrowserEntry entry() const;

public slots:
    void accept() override;

private:
    void btnBrowse_Click();
    void updateOk();

    QStringList m_texts;
    QLineEdit* m_txtName = nullptr;
    QLineEdit* m_txtProgram = nullptr;
    QPushButton* m_ok = nullptr;
};

} // namespace orvelin
