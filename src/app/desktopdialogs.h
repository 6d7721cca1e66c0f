#pragma once

#include <QDialog>

class QCheckBox;

namespace orvelin {

/// Asks whether Orvelin should open .orv files; Yes accepts, No rejects.
class FrmAskToAssociate : public QDialog {
    Q_OBJECT

public:
    explicit FrmAskToAssociate(QWidget* parent = nullptr);
    bool dontAskAgain() const;

private:
    QCheckBox* m_dontAsk;
};

/// Offers a copy run from its build folder a place in the applications menu.
class FrmShortCut : public QDialog {
    Q_OBJECT

public:
    explicit FrmShortCut(QWidget* parent = nullptr);
};

} // namespace orvelin
