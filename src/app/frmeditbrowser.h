#pragma once

#include "browserlist.h"

#include <QDialog>

class QDialogButtonBox;
class QLineEdit;
class QPushButton;

namespace orvelin {

/// OK and Cancel of a browser dialog, named btnOk and btnCancel for the window's texts.
QDialogButtonBox* okCancelButtons(QDialog& dialog);

/**
 * The browser entry editor `frmEditBrowser`: a browser's name and its program, with
 * a file chooser for the program. OK is offered once both are filled in and takes
 * only a program that exists and may be run.
 */
class FrmEditBrowser : public QDialog {
    Q_OBJECT

public:
    explicit FrmEditBrowser(const BrowserEntry& entry, QWidget* parent = nullptr);

    BrowserEntry entry() const;

public slots:
    void accept() override;

private:
    void btnBrowse_Click();
    void updateOk();

    QLineEdit* m_txtName = nullptr;
    QLineEdit* m_txtProgram = nullptr;
    QPushButton* m_ok = nullptr;
};

} // namespace orvelin
