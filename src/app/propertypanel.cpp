#include "propertypanel.h"

#include "colorbutton.h"
#include "editor.h"
#include "fontfamilybox.h"
#include "panelwidgets.h"
#include "textcatalogue.h"
#include "typedfieldvalidator.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

constexpr int kNumberWidth = 56;

QString number(int value) {
    return QString::number(value);
}

std::string Std(const QString& text) {
    return text.toStdString();
}

// The bold and italic switches show their letter in the style they switch.
QToolButton* styleToggle(const QString& name, bool bold, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setFixedWidth(26);
    QFont font = button->font();
    font.setBold(bold);
    font.setItalic(!bold);
    button->setFont(font);
    return button;
}

} // namespace

PropertyPanel::PropertyPanel(Editor& editor, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_properties(editor.properties()) {
    setObjectName(QStringLiteral("propertyPanel"));
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("lblProperties"));
    QFont captionFont = m_caption->font();
    captionFont.setBold(true);
    m_caption->setFont(captionFont);

    m_body = new QWidget(this);
    auto* columns = new QHBoxLayout(m_body);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(8);
    auto* left = new QVBoxLayout();
    left->setSpacing(6);
    left->addWidget(buildGeometry());
    left->addWidget(buildLabel());
    left->addWidget(buildFlags());
    left->addStretch(1);
    auto* right = new QVBoxLayout();
    right->setSpacing(6);
    right->addWidget(buildImageAndSound());
    right->addWidget(buildLink());
    m_setAction = new QPushButton(m_body);
    m_setAction->setObjectName(QStringLiteral("btnSetAction"));
    right->addWidget(m_setAction);
    right->addStretch(1);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    auto* header = new QHBoxLayout();
    header->addWidget(m_caption);
    header->addStretch(1);
    header->addWidget(buildStateSwitch());
    layout->addLayout(header);
    layout->addWidget(m_body, 1);
    // Two lines are kept for the note whether or not there is one, so that a note coming
    // and going never changes the window's size.
    m_note = new QLabel(this);
    m_note->setObjectName(QStringLiteral("lblFieldNote"));
    m_note->setWordWrap(true);
    m_note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_note->setStyleSheet(QStringLiteral("color: #a03000;"));
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_note->setFixedHeight(2 * m_note->fontMetrics().lineSpacing() + 2);
    layout->addWidget(m_note);

    bindTexts();
    bindChoices();
    bindFontSize();
    // Each text field keeps only what its field can store, and says so beside it.
    const auto note = [this](const QString& text) { showNote(text); };
    const std::pair<QLineEdit*, TypedField> typed[] = {{m_label, TypedField::Label},
                                                       {m_url, TypedField::Url},
                                                       {m_status, TypedField::Text},
                                                       {m_target->lineEdit(), TypedField::Text},
                                                       {m_font->lineEdit(), TypedField::Raw},
                                                       {m_image, TypedField::File},
                                                       {m_sound, TypedField::File}};
    for (const auto& [edit, field] : typed)
        TypedFieldValidator::guard(edit, field, note);
    connect(m_setAction, &QPushButton::clicked, this, &PropertyPanel::actionRequested);
    connect(m_labelEditor, &QToolButton::clicked, this, &PropertyPanel::labelEditorRequested);
}

QWidget* PropertyPanel::buildStateSwitch() {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_states = new QButtonGroup(this);
    m_states->setExclusive(true);
    const struct {
        ButtonState state;
        const char* name;
    } states[] = {
        {ButtonState::UP, "btnUP"}, {ButtonState::OVER, "btnOVER"}, {ButtonState::DOWN, "btnDOWN"}};
    for (const auto& s : states) {
        auto* button = new QPushButton(box);
        button->setObjectName(QString::fromLatin1(s.name));
        button->setCheckable(true);
        button->setMinimumWidth(84);
        m_states->addButton(button, static_cast<int>(s.state));
        row->addWidget(button);
    }
    connect(m_states, &QButtonGroup::idClicked, this,
            [this](int id) { m_editor.switchState(stateName(static_cast<ButtonState>(id))); });
    return box;
}

QWidget* PropertyPanel::buildGeometry() {
    QGroupBox* group = panel::group(QStringLiteral("fraGeometry"), m_body);
    auto* grid = new QGridLayout(group);
    m_x = panel::lineEdit(QStringLiteral("txtX"), group, kNumberWidth);
    m_y = panel::lineEdit(QStringLiteral("txtY"), group, kNumberWidth);
    m_width = panel::lineEdit(QStringLiteral("txtWidth"), group, kNumberWidth);
    m_height = panel::lineEdit(QStringLiteral("txtHeight"), group, kNumberWidth);
    grid->addWidget(panel::label(QStringLiteral("lblX"), group), 0, 0);
    grid->addWidget(m_x, 0, 1);
    grid->addWidget(panel::label(QStringLiteral("lblWidth"), group), 0, 2);
    grid->addWidget(m_width, 0, 3);
    grid->addWidget(panel::label(QStringLiteral("lblY"), group), 1, 0);
    grid->addWidget(m_y, 1, 1);
    grid->addWidget(panel::label(QStringLiteral("lblHeight"), group), 1, 2);
    grid->addWidget(m_height, 1, 3);
    grid->setColumnStretch(4, 1);
    return group;
}

QWidget* PropertyPanel::buildLabel() {
    QGroupBox* group = panel::group(QStringLiteral("fraLabel"), m_body);
    auto* grid = new QGridLayout(group);

    m_label = panel::lineEdit(QStringLiteral("txtLabel"), group);
    m_labelEditor = panel::browseButton(QStringLiteral("btnMultiLine"), group);
    auto* text = new QHBoxLayout();
    text->setSpacing(2);
    text->addWidget(m_label, 1);
    text->addWidget(m_labelEditor);
    grid->addWidget(panel::label(QStringLiteral("lblText"), group), 0, 0);
    grid->addLayout(text, 0, 1, 1, 4);

    m_centerText = panel::checkBox(QStringLiteral("chkCenterText"), group);
    m_positionText = panel::checkBox(QStringLiteral("chkPositionText"), group);
    m_labelPosX = panel::lineEdit(QStringLiteral("txtLabelPosX"), group, 44);
    m_labelPosY = panel::lineEdit(QStringLiteral("txtLabelPosY"), group, 44);
    auto* place = new QHBoxLayout();
    place->addWidget(m_centerText);
    place->addSpacing(8);
    place->addWidget(m_positionText);
    place->addWidget(m_labelPosX);
    place->addWidget(m_labelPosY);
    place->addStretch(1);
    grid->addLayout(place, 1, 1, 1, 4);

    m_font = new FontFamilyBox(group);
    m_font->setObjectName(QStringLiteral("lsFont"));
    m_font->setEditable(true);
    m_font->setInsertPolicy(QComboBox::NoInsert);
    m_font->setMinimumContentsLength(12);
    m_font->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_fontSize = panel::comboBox(QStringLiteral("lsFontSize"), true, group);
    for (int size : {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72})
        m_fontSize->addItem(number(size));
    m_fontSize->setFixedWidth(58);
    m_bold = styleToggle(QStringLiteral("btnBold"), true, group);
    m_italic = styleToggle(QStringLiteral("btnItalic"), false, group);
    auto* font = new QHBoxLayout();
    font->setSpacing(3);
    font->addWidget(m_font, 1);
    font->addWidget(m_fontSize);
    font->addWidget(m_bold);
    font->addWidget(m_italic);
    grid->addWidget(panel::label(QStringLiteral("lblFont"), group), 2, 0);
    grid->addLayout(font, 2, 1, 1, 4);

    m_fontColor = new ColorButton(QStringLiteral("picFontColor"), group);
    m_backColor = new ColorButton(QStringLiteral("picBackColor"), group);
    auto* colours = new QHBoxLayout();
    colours->addWidget(m_fontColor);
    colours->addSpacing(10);
    colours->addWidget(panel::label(QStringLiteral("lblBackColor"), group));
    colours->addWidget(m_backColor);
    colours->addStretch(1);
    grid->addWidget(panel::label(QStringLiteral("lblColour"), group), 3, 0);
    grid->addLayout(colours, 3, 1, 1, 4);
    grid->setColumnStretch(4, 1);
    return group;
}

QWidget* PropertyPanel::buildImageAndSound() {
    QGroupBox* group = panel::group(QStringLiteral("fraImageSound"), m_body);
    auto* grid = new QGridLayout(group);
    m_image = panel::lineEdit(QStringLiteral("txtImage"), group);
    m_image->setMinimumWidth(150);
    m_browseImage = panel::browseButton(QStringLiteral("btnBrowseImage"), group);
    m_imgStyle = panel::placementBox(QStringLiteral("cmbImgStyle"), group);
    m_sound = panel::lineEdit(QStringLiteral("txtSound"), group);
    m_browseSound = panel::browseButton(QStringLiteral("btnBrowseSound"), group);
    grid->addWidget(panel::label(QStringLiteral("lblImage"), group), 0, 0);
    grid->addWidget(m_image, 0, 1);
    grid->addWidget(m_browseImage, 0, 2);
    grid->addWidget(panel::label(QStringLiteral("lblImgStyle"), group), 1, 0);
    grid->addWidget(m_imgStyle, 1, 1, 1, 2, Qt::AlignLeft);
    grid->addWidget(panel::label(QStringLiteral("lblSound"), group), 2, 0);
    grid->addWidget(m_sound, 2, 1);
    grid->addWidget(m_browseSound, 2, 2);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(4);
    return group;
}

QWidget* PropertyPanel::buildLink() {
    QGroupBox* group = panel::group(QStringLiteral("fraLink"), m_body);
    auto* form = new QFormLayout(group);
    m_url = panel::lineEdit(QStringLiteral("txtURL"), group);
    m_status = panel::lineEdit(QStringLiteral("txtStatus"), group);
    m_target = panel::comboBox(QStringLiteral("lsTarget"), true, group);
    m_target->addItems({QStringLiteral("_self"), QStringLiteral("_parent"), QStringLiteral("_top"),
                        QStringLiteral("_blank")});
    form->addRow(panel::label(QStringLiteral("lblURL"), group), m_url);
    form->addRow(panel::label(QStringLiteral("lblStatus"), group), m_status);
    form->addRow(panel::label(QStringLiteral("lblTarget"), group), m_target);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return group;
}

QWidget* PropertyPanel::buildFlags() {
    QGroupBox* group = panel::group(QStringLiteral("fraOptions"), m_body);
    auto* grid = new QGridLayout(group);
    m_border = panel::checkBox(QStringLiteral("chkBorder"), group);
    m_transparent = panel::checkBox(QStringLiteral("chkTransparent"), group);
    m_showHand = panel::checkBox(QStringLiteral("chkShowHand"), group);
    m_hidden = panel::checkBox(QStringLiteral("chkHidden"), group);
    grid->addWidget(m_border, 0, 0);
    grid->addWidget(m_transparent, 0, 1);
    grid->addWidget(m_showHand, 1, 0);
    grid->addWidget(m_hidden, 1, 1);
    return group;
}

void PropertyPanel::bindText(QLineEdit* edit, TextSetter setter) {
    PropertyEditor* properties = &m_properties;
    connect(edit, &QLineEdit::textChanged, this,
            [properties, setter](const QString& text) { (properties->*setter)(Std(text)); });
}

void PropertyPanel::bindTexts() {
    PropertyEditor& p = m_properties;
    const auto bind = [this](QLineEdit* edit, TextSetter setter) { bindText(edit, setter); };
    bind(m_x, &PropertyEditor::setX);
    bind(m_y, &PropertyEditor::setY);
    bind(m_width, &PropertyEditor::setWidth);
    bind(m_height, &PropertyEditor::setHeight);
    bind(m_label, &PropertyEditor::setLabel);
    bind(m_labelPosX, &PropertyEditor::setLabelPosX);
    bind(m_labelPosY, &PropertyEditor::setLabelPosY);
    bind(m_image, &PropertyEditor::setImage);
    bind(m_sound, &PropertyEditor::setSound);
    bind(m_url, &PropertyEditor::setURL);
    bind(m_status, &PropertyEditor::setStatus);
    connect(m_font, &QComboBox::currentTextChanged, this,
            [&p](const QString& text) { p.setFont(Std(text)); });
    connect(m_target, &QComboBox::currentTextChanged, this,
            [&p](const QString& text) { p.setTarget(Std(text)); });
    connect(m_browseImage, &QToolButton::clicked, this, [&p] { p.browseImage(); });
    connect(m_browseSound, &QToolButton::clicked, this, [&p] { p.browseSound(); });
}

void PropertyPanel::bindFontSize() {
    PropertyEditor& p = m_properties;
    connect(m_fontSize, &QComboBox::currentTextChanged, this,
            [&p](const QString& text) { p.setFontSize(Std(text)); });
    // An empty box while a size is typed is no value and says nothing; a size the labels
    // cannot be drawn with is named here, beside the box, instead of in a message per
    // button; leaving the box puts the button's size back.
    QLineEdit* edit = m_fontSize->lineEdit();
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
        const bool refused = !text.trimmed().isEmpty() && !isUsableFontSize(Std(text));
        showNote(refused ? QString::fromStdString(texts()[Msg::FontSizeRange]) : QString());
    });
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        if (!isUsableFontSize(Std(edit->text())))
            emit refreshRequested();
    });
}

void PropertyPanel::bindChoices() {
    PropertyEditor& p = m_properties;
    connect(m_centerText, &QCheckBox::toggled, this, [&p](bool on) { p.setCenterText(on); });
    connect(m_positionText, &QCheckBox::toggled, this, [&p](bool on) { p.setPositionText(on); });
    const auto style = [this] {
        m_properties.setFontStyle(m_bold->isChecked(), m_italic->isChecked());
    };
    connect(m_bold, &QToolButton::toggled, this, style);
    connect(m_italic, &QToolButton::toggled, this, style);
    connect(m_fontColor, &ColorButton::colourChosen, this,
            [&p](std::int32_t colour) { p.setFontColor(colour); });
    connect(m_backColor, &ColorButton::colourChosen, this,
            [&p](std::int32_t colour) { p.setBackColor(colour); });
    connect(m_imgStyle, &QComboBox::currentIndexChanged, this,
            [&p](int index) { p.setImgStyle(index); });
    connect(m_border, &QCheckBox::toggled, this, [&p](bool on) { p.setBorder(on); });
    connect(m_transparent, &QCheckBox::toggled, this, [&p](bool on) { p.setTransparent(on); });
    connect(m_showHand, &QCheckBox::toggled, this, [&p](bool on) { p.setShowHand(on); });
    connect(m_hidden, &QCheckBox::toggled, this, [&p](bool on) { p.setHidden(on); });
}

void PropertyPanel::showButton(const ButtonRecord& record, ButtonState state,
                               const QString& caption) {
    if (caption != m_caption->text())
        showNote({});
    m_caption->setText(caption);
    panel::setText(m_x, number(record.x));
    panel::setText(m_y, number(record.y));
    panel::setText(m_width, number(record.Width));
    panel::setText(m_height, number(record.Height));
    panel::setText(m_label, QString::fromStdString(record.label(state)));

    const bool positioned = record.positionText(state) != 0;
    panel::setChecked(m_positionText, positioned);
    panel::setChecked(m_centerText, !positioned);
    panel::setText(m_labelPosX, number(record.labelPosX(state)));
    panel::setText(m_labelPosY, number(record.labelPosY(state)));
    m_labelPosX->setEnabled(positioned);
    m_labelPosY->setEnabled(positioned);

    panel::setText(m_font, QString::fromStdString(record.font(state)));
    panel::setText(m_fontSize, number(record.fontSize(state)));
    bool bold = false;
    bool italic = false;
    fontStyleFlags(record.fontStyle(state), bold, italic);
    m_bold->setChecked(bold);
    m_italic->setChecked(italic);
    m_fontColor->setColour(record.fontColor(state));
    m_backColor->setColour(record.backColor(state));

    panel::setText(m_image, QString::fromStdString(record.image(state)));
    const int style = record.ImgStyle(state);
    m_imgStyle->setCurrentIndex(style >= 0 && style <= 2 ? style : 0);
    panel::setText(m_sound, QString::fromStdString(record.sound(state)));

    panel::setText(m_url, QString::fromStdString(record.URL));
    panel::setText(m_status, QString::fromStdString(record.Status));
    panel::setText(m_target, QString::fromStdString(record.Target));
    panel::setChecked(m_border, record.Border != 0);
    panel::setChecked(m_transparent, record.noBackGround != 0);
    panel::setChecked(m_showHand, record.ShowHand != 0);
    panel::setChecked(m_hidden, record.Hidden != 0);
}

void PropertyPanel::showState(ButtonState state) {
    if (QAbstractButton* button = m_states->button(static_cast<int>(state)))
        button->setChecked(true);
}

void PropertyPanel::setActionTitle(const QString& title) {
    m_setAction->setText(title);
}

void PropertyPanel::setHasButton(bool hasButton) {
    // With a button, showing it (setEditable) decides whether the controls take edits.
    if (hasButton)
        return;
    m_body->setEnabled(false);
    m_caption->clear();
    showNote({});
    clearControls();
}

void PropertyPanel::setEditable(bool editable, const QString& note) {
    const bool wasEditable = m_body->isEnabled();
    m_body->setEnabled(editable);
    if (!editable)
        showNote(note);
    else if (!wasEditable)
        showNote({});
}

void PropertyPanel::showNote(const QString& note) {
    m_note->setText(note);
}

void PropertyPanel::clearControls() {
    // The caller holds Updating, so nothing of this reaches a button.
    for (QLineEdit* edit : m_body->findChildren<QLineEdit*>())
        edit->clear();
    for (QAbstractButton* box : m_body->findChildren<QAbstractButton*>())
        if (box->isCheckable())
            box->setChecked(false);
    m_imgStyle->setCurrentIndex(-1);
    m_fontColor->setColour(0xFFFFFF);
    m_backColor->setColour(0xFFFFFF);
}

} // namespace orvelin
