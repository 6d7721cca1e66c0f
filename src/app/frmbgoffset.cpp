#include "frmbgoffset.h"

#include "accessiblenames.h"
#include "windowtexts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <limits>
#include <utility>

namespace orvelin {

namespace {

QSpinBox* offsetBox(const QString& name, int value, QWidget* parent) {
    auto* box = new QSpinBox(parent);
    box->setObjectName(name);
    box->setRange(std::numeric_limits<std::int16_t>::min(),
                  std::numeric_limits<std::int16_t>::max());
    box->setValue(value);
    box->setSuffix(uiText("frmBgOffset", "#unit"));
    box->setAccelerated(true);
    return box;
}

} // namespace

FrmBgOffset::FrmBgOffset(ProjectModel& model, QWidget* parent)
    : QDialog(parent), m_model(model), m_oldX(model.BgOffsetX), m_oldY(model.BgOffsetY) {
    setObjectName(QStringLiteral("frmBgOffset"));
    // The section first: the boxes' unit is one of its texts.
    showWindowTexts(*this, {TextSection::BackgroundOffset});

    m_x = offsetBox(QStringLiteral("txtOffsetX"), m_oldX, this);
    m_y = offsetBox(QStringLiteral("txtOffsetY"), m_oldY, this);
    auto* form = new QFormLayout;
    for (const auto& [name, box] : {std::pair{"lblOffsetX", m_x}, std::pair{"lblOffsetY", m_y}}) {
        auto* label = new QLabel(this);
        label->setObjectName(QLatin1String(name));
        label->setBuddy(box);
        form->addRow(label, box);
    }

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
    applyWindowTexts(*this);
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
