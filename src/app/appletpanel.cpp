#include "appletpanel.h"

#include "colorbutton.h"
#include "panelwidgets.h"
#include "projectmodel.h"
#include "propertyeditor.h"
#include "windowtexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

// The moment buttons are named after their kind: "picAppletProgramDOWN".
QString momentName(ProgramKind kind) {
    return QStringLiteral("pic") + QString::fromLatin1(programKindName(kind));
}

} // namespace

AppletPanel::AppletPanel(PropertyEditor& properties, QWidget* parent)
    : QWidget(parent), m_properties(properties) {
    setObjectName(QStringLiteral("appletPanel"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(buildSize());
    layout->addWidget(buildBackground());
    layout->addWidget(buildActions());
    layout->addStretch(1);
}

QWidget* AppletPanel::buildSize() {
    QGroupBox* group = panel::group(QStringLiteral("fraApplet"), this);
    auto* grid = new QGridLayout(group);
    m_width = panel::lineEdit(QStringLiteral("txtAppletWidth"), group, 56);
    m_height = panel::lineEdit(QStringLiteral("txtAppletHeight"), group, 56);
    grid->addWidget(panel::label(QStringLiteral("lblAppletWidth"), group), 0, 0);
    grid->addWidget(m_width, 0, 1);
    grid->addWidget(panel::label(QStringLiteral("lblAppletHeight"), group), 0, 2);
    grid->addWidget(m_height, 0, 3);
    grid->setColumnStretch(4, 1);
    m_sizeNote = new QLabel(group);
    m_sizeNote->setObjectName(QStringLiteral("lblSizeNote"));
    m_sizeNote->setWordWrap(true);
    m_sizeNote->setStyleSheet(QStringLiteral("color: #a03000;"));
    m_sizeNote->hide();
    grid->addWidget(m_sizeNote, 4, 0, 1, 5);

    m_pushButtons = new QRadioButton(group);
    m_pushButtons->setObjectName(QStringLiteral("imgPushBtn"));
    m_radioButtons = new QRadioButton(group);
    m_radioButtons->setObjectName(QStringLiteral("imgRadioBtn"));
    m_downButton = panel::checkBox(QStringLiteral("chkDOWNBtn"), group);
    grid->addWidget(m_pushButtons, 1, 0, 1, 5);
    grid->addWidget(m_radioButtons, 2, 0, 1, 5);
    grid->addWidget(m_downButton, 3, 0, 1, 5);

    // The surface follows the size as it is typed; a size below 1 is refused at the box
    // (said beside it), and leaving the box shows the applet's size again.
    const auto sizeTyped = [this](bool accepted, const QString& text) {
        const bool refused = !accepted && !text.trimmed().isEmpty();
        if (refused)
            m_sizeNote->setText(uiText(Msg::AppletSizeRange));
        m_sizeNote->setVisible(refused);
    };
    connect(m_width, &QLineEdit::textChanged, this, [this, sizeTyped](const QString& text) {
        sizeTyped(m_properties.setAppletWidth(text.toStdString()), text);
    });
    connect(m_height, &QLineEdit::textChanged, this, [this, sizeTyped](const QString& text) {
        sizeTyped(m_properties.setAppletHeight(text.toStdString()), text);
    });
    for (QLineEdit* box : {m_width, m_height})
        connect(box, &QLineEdit::editingFinished, this, [this] {
            m_sizeNote->hide();
            m_properties.SetMainParams();
        });
    connect(m_pushButtons, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            m_properties.setBehaviour(0);
    });
    connect(m_radioButtons, &QRadioButton::toggled, this, [this](bool on) {
        if (on)
            m_properties.setBehaviour(1);
    });
    connect(m_downButton, &QCheckBox::toggled, this,
            [this](bool on) { m_properties.setDOWNBtn(on); });
    return group;
}

QWidget* AppletPanel::buildBackground() {
    QGroupBox* group = panel::group(QStringLiteral("fraBackground"), this);
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(4);
    m_background = new ColorButton(QStringLiteral("picBackGround"), group);
    m_backImg = panel::lineEdit(QStringLiteral("txtBackImg"), group);
    m_browseBackImg = panel::browseButton(QStringLiteral("btnBrowseBackImg"), group);
    m_backImgStyle = panel::placementBox(QStringLiteral("cmbBackImgStyle"), group);
    m_offset = new QPushButton(group);
    m_offset->setObjectName(QStringLiteral("btnBgOffset"));

    grid->addWidget(panel::label(QStringLiteral("lblBackGround"), group), 0, 0);
    grid->addWidget(m_background, 0, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(panel::label(QStringLiteral("lblBackImg"), group), 1, 0);
    grid->addWidget(m_backImg, 1, 1);
    grid->addWidget(m_browseBackImg, 1, 2);
    auto* placement = new QHBoxLayout();
    placement->addWidget(m_backImgStyle);
    placement->addStretch(1);
    placement->addWidget(m_offset);
    grid->addWidget(panel::label(QStringLiteral("lblBackImgStyle"), group), 2, 0);
    grid->addLayout(placement, 2, 1, 1, 2);
    grid->setColumnStretch(1, 1);

    connect(m_background, &ColorButton::colourChosen, this,
            [this](std::int32_t colour) { m_properties.setBackGround(colour); });
    connect(m_backImg, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_properties.setBackImg(text.toStdString()); });
    connect(m_browseBackImg, &QToolButton::clicked, this, [this] { m_properties.browseBackImg(); });
    connect(m_backImgStyle, &QComboBox::currentIndexChanged, this,
            [this](int index) { m_properties.setBackImgStyle(index); });
    connect(m_offset, &QPushButton::clicked, this, &AppletPanel::offsetRequested);
    return group;
}

QWidget* AppletPanel::buildActions() {
    QGroupBox* group = panel::group(QStringLiteral("fraAppletActions"), this);
    auto* row = new QHBoxLayout(group);
    row->setSpacing(2);
    for (std::size_t i = 0; i < kAppletProgramKinds.size(); ++i) {
        const ProgramKind moment = kAppletProgramKinds[i];
        auto* button = new QToolButton(group);
        button->setObjectName(momentName(moment));
        button->setAutoRaise(true); // the hover highlight under the pointer
        button->setIconSize(QSize(24, 24));
        button->setIcon(appletMomentIcon(moment, false));
        connect(button, &QToolButton::clicked, this, [this, button, moment] {
            // The dialog is modal: drop the hover look before it takes the pointer.
            button->setAttribute(Qt::WA_UnderMouse, false);
            button->update();
            emit actionRequested(QString::fromLatin1(programKindName(moment)));
        });
        row->addWidget(button);
        m_moments[i] = button;
    }
    row->addStretch(1);
    return group;
}

void AppletPanel::showApplet(const ProjectModel& model) {
    panel::setText(m_width, QString::number(model.AppletWidth));
    panel::setText(m_height, QString::number(model.AppletHeight));
    if (model.Behaviour == 1)
        m_radioButtons->setChecked(true);
    else
        m_pushButtons->setChecked(true);
    panel::setChecked(m_downButton, model.DOWNBtn != 0);
    m_background->setColour(model.BackGround);
    panel::setText(m_backImg, QString::fromStdString(model.BackImg));
    const int style = model.BackImgStyle;
    m_backImgStyle->setCurrentIndex(style >= 0 && style <= 2 ? style : 0);
    for (std::size_t i = 0; i < kAppletProgramKinds.size(); ++i) {
        const bool has = !model.programSlot(kAppletProgramKinds[i], 0)->empty();
        if (has != m_hasProgram[i]) {
            m_hasProgram[i] = has;
            m_moments[i]->setIcon(appletMomentIcon(kAppletProgramKinds[i], has));
        }
    }
}

} // namespace orvelin
