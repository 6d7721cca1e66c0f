#include "frmbgoffset.h"

#include "accessiblenames.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <limits>

namespace orvelin {

namespace {

QSpinBox* offsetBox(const QString& name, int value, QWidget* parent) {
    auto* box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setRange(std::numeric_limits<std::int16_t>::min(),
                  std::numeric_limits<std::int16_t>::max());
    box->setValue(value);
    box->setSuffix(QStringLiteral(" px"));
    box->setAccelerated(true);
    return box;
}

} // namespace

FrmBgOffset::FrmBgOffset(ProjectModel& model, QWidget* parent)
    : QDialog(parent), m_model(model), m_oldX(model.BgOffsetX), m_oldY(model.BgOffsetY) {
    setObjectName(QStringLiteral("frmBgOffset"));
    setWindowTitle(tr("Background Offset"));

    m_x = offsetBox(QStringLiteral("txtOffsetX"), m_oldX, this);
    m_y = offsetBox(QStringLiteral("txtOffsetY"), m_oldY, this);
    auto* form = new QFormLayout;
    form->addRow(tr("&X:"), m_x);
    form->addRow(tr("&Y:"), m_y);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOk"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &FrmBgOffset::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FrmBgOffset::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);

    connect(m_x, &QSpinBox::valueChanged, this, &FrmBgOffset::preview);
    connect(m_y, &QSpinBox::valueChanged, this, &FrmBgOffset::preview);
    nameControls(*this);
}

void FrmBgOffset::preview() {
    m_model.BgOffsetX = static_cast<std::int16_t>(m_x->value());
    m_model.BgOffsetY = static_cast<std::int16_t>(m_y->value());
    announce();
}

void FrmBgOffset::announce() {
    DocumentChange change;
    change.applet = change.background = true;
    m_model.notices.announce(change);
}

void FrmBgOffset::accept() {
    preview();
    if (m_model.BgOffsetX != m_oldX || m_model.BgOffsetY != m_oldY)
        m_model.Saved = false;
    QDialog::accept();
}

void FrmBgOffset::reject() {
    const bool changed = m_model.BgOffsetX != m_oldX || m_model.BgOffsetY != m_oldY;
    m_model.BgOffsetX = m_oldX;
    m_model.BgOffsetY = m_oldY;
    if (changed)
        announce();
    QDialog::reject();
}

} // namespace orvelin
