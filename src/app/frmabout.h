#pragma once

#include <QDialog>

namespace orvelin {

/**
 * The about box `frmAbout`: the program's icon, name, version, what it is for, the
 * copyright and the web address as a link that opens in the browser.
 */
class FrmAbout : public QDialog {
    Q_OBJECT

public:
    explicit FrmAbout(QWidget* parent = nullptr);
};

} // namespace orvelin
