#include "frmsetaction.h"

#include "accessiblenames.h"
#include "paintsupport.h"
#include "projectmodel.h"
#include "textcatalogue.h"
#include "typedfieldvalidator.h"
#include "windowgeometry.h"
#include "windowtexts.h"

#include <QAbstractItemModel>
#include <QColorDialog>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

QStringList QList(const std::vector<std::string>& texts) {
    QStringList list;
    for (const std::string& text : texts)
        list << Q(text);
    return list;
}

QWidget* page(const char* objectName, QStackedWidget* stack) {
    auto* page = new QWidget(stack);
    page->setObjectName(QString::fromLatin1(objectName));
    stack->addWidget(page);
    return page;
}

QHBoxLayout* pageRow(QWidget* page) {
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    return row;
}

QLineEdit* numberBox(const char* objectName, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(QString::fromLatin1(objectName));
    box->setFixedWidth(64);
    return box;
}

// Fills a box only when its text differs, so the caret stays where the user left it.
void setText(QLineEdit* box, const std::string& text) {
    const QString value = Q(text);
    if (box->text() != value)
        box->setText(value);
}

QFrame* separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

FrmSetAction::FrmSetAction(ProjectModel& model, UserInterface& ui, ProgramBuffer& buffer,
                           std::vector<bool> selected, QWidget* parent,
                           const std::array<std::string, 3>& stateCaptions)
    : QDialog(parent), m_editor(model, ui, buffer, stateCaptions), m_selected(std::move(selected)) {
    setObjectName(QStringLiteral("frmSetAction"));
    setModal(true);
    buildControls();
    connectControls();
    // The texts of the language in force, before load() fills the lists from them; the
    // captions beyond the section's 22 lines have a section of their own.
    showWindowTexts(*this, {TextSection::SetAction, TextSection::SetActionMore});
    nameControls(*this);
}

void FrmSetAction::buildControls() {
    // The program, with the commands that act on its lines beside it.
    m_lstActions = new QListWidget(this);
    m_lstActions->setObjectName(QStringLiteral("lstActions"));
    m_lstActions->setMinimumSize(360, 190);
    m_lstActions->setAlternatingRowColors(true);
    m_lstActions->setSpacing(1);
    m_lstActions->setDragDropMode(QAbstractItemView::InternalMove);
    m_lstActions->setDefaultDropAction(Qt::MoveAction);

    const auto sideButton = [this](QAbstractButton* b, const char* name) {
        b->setObjectName(QString::fromLatin1(name));
        b->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        b->setMinimumWidth(96);
        return b;
    };
    m_btnUP = new QToolButton(this);
    m_btnUP->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    sideButton(m_btnUP, "btnUP");
    m_btnDown = new QToolButton(this);
    m_btnDown->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    sideButton(m_btnDown, "btnDown");
    m_btnRemove = new QPushButton(this);
    sideButton(m_btnRemove, "btnRemove");
    m_btnCopyProg = new QPushButton(this);
    sideButton(m_btnCopyProg, "btnCopyProg");
    m_btnPasteProg = new QPushButton(this);
    sideButton(m_btnPasteProg, "btnPasteProg");
    for (QToolButton* b : {m_btnUP, m_btnDown}) {
        b->setIconSize(QSize(16, 16));
        b->setFixedHeight(m_btnRemove->sizeHint().height());
    }

    auto* side = new QVBoxLayout;
    side->setSpacing(6);
    side->addWidget(m_btnUP);
    side->addWidget(m_btnDown);
    side->addSpacing(10);
    side->addWidget(m_btnRemove);
    side->addStretch(1);
    side->addWidget(m_btnCopyProg);
    side->addWidget(m_btnPasteProg);

    auto* programRow = new QHBoxLayout;
    programRow->setSpacing(10);
    programRow->addWidget(m_lstActions, 1);
    programRow->addLayout(side);

    // The new command: what, on which button, and its parameters.
    m_cmbAction = new QComboBox(this);
    m_cmbAction->setObjectName(QStringLiteral("cmbAction"));
    m_cmbAction->setMinimumWidth(170);
    m_cmbButtonNumber = new QComboBox(this);
    m_cmbButtonNumber->setObjectName(QStringLiteral("cmbButtonNumber"));
    m_cmbButtonNumber->setMinimumWidth(130);
    m_btnAdd = new QPushButton(this);
    m_btnAdd->setObjectName(QStringLiteral("btnAdd"));
    m_btnAdd->setDefault(true);
    m_btnAdd->setMinimumWidth(96);

    m_parameters = new QStackedWidget(this);
    m_noParameters = page("picNone", m_parameters);

    m_picActionMove = page("picActionMove", m_parameters);
    {
        QHBoxLayout* row = pageRow(m_picActionMove);
        m_txtX = numberBox("txtX", m_picActionMove);
        m_txtY = numberBox("txtY", m_picActionMove);
        m_txtWidth = numberBox("txtWidth", m_picActionMove);
        m_txtHeight = numberBox("txtHeight", m_picActionMove);
        m_lblWidth = new QLabel(m_picActionMove);
        m_lblWidth->setObjectName(QStringLiteral("lblWidth"));
        m_lblHeight = new QLabel(m_picActionMove);
        m_lblHeight->setObjectName(QStringLiteral("lblHeight"));
        auto* lblX = new QLabel(m_picActionMove);
        lblX->setObjectName(QStringLiteral("lblX"));
        auto* lblY = new QLabel(m_picActionMove);
        lblY->setObjectName(QStringLiteral("lblY"));
        row->addWidget(lblX);
        row->addWidget(m_txtX);
        row->addSpacing(8);
        row->addWidget(lblY);
        row->addWidget(m_txtY);
        row->addSpacing(8);
        row->addWidget(m_lblWidth);
        row->addWidget(m_txtWidth);
        row->addSpacing(8);
        row->addWidget(m_lblHeight);
        row->addWidget(m_txtHeight);
        row->addStretch(1);
    }

    m_picSetLabel = page("picSetLabel", m_parameters);
    {
        QHBoxLayout* row = pageRow(m_picSetLabel);
        m_cmbStateSelector = new QComboBox(m_picSetLabel);
        m_cmbStateSelector->setObjectName(QStringLiteral("cmbStateSelector"));
        m_cmbStateSelector->setMinimumWidth(120);
        m_txtLabel = new QLineEdit(m_picSetLabel);
        m_txtLabel->setObjectName(QStringLiteral("txtLabel"));
        m_btnGetHexColor = new QToolButton(m_picSetLabel);
        m_btnGetHexColor->setObjectName(QStringLiteral("btnGetHexColor"));
        m_btnGetHexColor->setFixedHeight(m_txtLabel->sizeHint().height());
        m_btnGetHexColor->setMinimumWidth(32);
        row->addWidget(m_cmbStateSelector);
        row->addWidget(m_txtLabel, 1);
        row->addWidget(m_btnGetHexColor);
    }

    m_picSetTimer = page("picSetTimer", m_parameters);
    {
        QHBoxLayout* row = pageRow(m_picSetTimer);
        m_lblMiliseconds = new QLabel(m_picSetTimer);
        m_lblMiliseconds->setObjectName(QStringLiteral("lblMiliseconds"));
        m_lsMiliseconds = new QComboBox(m_picSetTimer);
        m_lsMiliseconds->setObjectName(QStringLiteral("lsMiliseconds"));
        m_lsMiliseconds->setEditable(true);
        m_lsMiliseconds->setInsertPolicy(QComboBox::NoInsert);
        for (int ms = 100; ms <= 1000; ms += 100)
            m_lsMiliseconds->addItem(QString::number(ms));
        m_lsMiliseconds->setCurrentText(QStringLiteral("100"));
        m_lsMiliseconds->setMinimumWidth(110);
        row->addWidget(m_lblMiliseconds);
        row->addWidget(m_lsMiliseconds);
        row->addStretch(1);
    }

    m_javaScriptPage = page("picJavaScript", m_parameters);
    {
        QHBoxLayout* row = pageRow(m_javaScriptPage);
        m_txtJavaScript = new QLineEdit(m_javaScriptPage);
        m_txtJavaScript->setObjectName(QStringLiteral("txtJavaScript"));
        row->addWidget(m_txtJavaScript);
    }

    auto* composer = new QGridLayout;
    composer->setHorizontalSpacing(8);
    composer->setVerticalSpacing(8);
    composer->addWidget(m_cmbAction, 0, 0);
    composer->addWidget(m_cmbButtonNumber, 0, 1);
    composer->addWidget(m_btnAdd, 0, 3);
    composer->addWidget(m_parameters, 1, 0, 1, 3);
    // What the label and script boxes did with a pasted line break or a character a
    // program cannot store.
    m_lblInputNote = new QLabel(this);
    m_lblInputNote->setObjectName(QStringLiteral("lblInputNote"));
    m_lblInputNote->setWordWrap(true);
    m_lblInputNote->setStyleSheet(QStringLiteral("color: #a03000;"));
    m_lblInputNote->hide();
    composer->addWidget(m_lblInputNote, 2, 0, 1, 4);
    const auto note = [this](const QString& text) {
        m_lblInputNote->setText(text);
        m_lblInputNote->setVisible(!text.isEmpty());
    };
    TypedFieldValidator::guard(m_txtLabel, TypedField::Label, note);
    TypedFieldValidator::guard(m_txtJavaScript, TypedField::Text, note);
    composer->setColumnStretch(2, 1);

    // Closing.
    m_btnOk = new QPushButton(this);
    m_btnOk->setObjectName(QStringLiteral("btnOk"));
    m_btnOk->setAutoDefault(false);
    m_btnOk->setMinimumWidth(96);
    m_btnCancel = new QPushButton(this);
    m_btnCancel->setObjectName(QStringLiteral("btnCancel"));
    m_btnCancel->setAutoDefault(false);
    m_btnCancel->setMinimumWidth(96);
    // Said while the dialog is open: OK writes the program into every selected button.
    m_lblTargets = new QLabel(this);
    m_lblTargets->setObjectName(QStringLiteral("lblTargets"));
    m_lblTargets->hide();
    auto* closing = new QHBoxLayout;
    closing->addWidget(m_lblTargets);
    closing->addStretch(1);
    closing->addWidget(m_btnOk);
    closing->addWidget(m_btnCancel);

    auto* root = new QVBoxLayout(this);
    root->setContentsMargins(12, 12, 12, 12);
    root->setSpacing(10);
    root->addLayout(programRow, 1);
    root->addWidget(separator(this));
    root->addLayout(composer);
    root->addWidget(separator(this));
    root->addLayout(closing);

    resize(640, 420);
}

void FrmSetAction::connectControls() {
    connect(m_cmbAction, &QComboBox::currentIndexChanged, this, &FrmSetAction::cmbAction_Click);
    connect(m_cmbButtonNumber, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!m_showing)
            m_editor.setButton(index);
    });
    connect(m_cmbStateSelector, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (!m_showing)
            m_editor.setState(index);
    });
    connect(m_lstActions, &QListWidget::currentRowChanged, this, &FrmSetAction::lstActions_Click);
    connect(m_lstActions, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { lstActions_DblClick(m_lstActions->row(item)); });
    connect(m_lstActions->model(), &QAbstractItemModel::rowsMoved, this,
            &FrmSetAction::lstActions_RowsMoved);

    connect(m_btnAdd, &QPushButton::clicked, this, &FrmSetAction::btnAdd_Click);
    connect(m_btnRemove, &QPushButton::clicked, this,
            [this] { run([this] { m_editor.remove(); }); });
    connect(m_btnUP, &QToolButton::clicked, this, [this] { run([this] { m_editor.moveUp(); }); });
    connect(m_btnDown, &QToolButton::clicked, this,
            [this] { run([this] { m_editor.moveDown(); }); });
    connect(m_btnCopyProg, &QPushButton::clicked, this, [this] { m_editor.copy(); });
    connect(m_btnPasteProg, &QPushButton::clicked, this,
            [this] { run([this] { m_editor.paste(); }); });
    connect(m_btnGetHexColor, &QToolButton::clicked, this, &FrmSetAction::btnGetHexColor_Click);
    connect(m_btnOk, &QPushButton::clicked, this, &FrmSetAction::btnOk_Click);
    connect(m_btnCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FrmSetAction::load(ProgramKind kind, const QString& title) {
    setWindowTitle(title.isEmpty() ? QString::fromStdString(programKindTitle(kind)) : title);
    m_editor.open(kind);
    const auto targets = static_cast<int>(m_editor.targetButtons(m_selected).size());
    m_lblTargets->setText(Q(texts()[Msg::ProgramForButtons]).arg(targets));
    m_lblTargets->setVisible(targets > 1);
    showCombos();
    showInputs();
    showList();
    showPanels();
}

void FrmSetAction::myShow(ProgramKind kind, const QString& title) {
    load(kind, title);
    keepAboveOnTopWindows(*this);
    exec();
}

void FrmSetAction::cmbAction_Click(int index) {
    if (m_showing)
        return;
    takeInputs();
    m_editor.setCommand(index);
    showInputs();
    showPanels();
}

void FrmSetAction::lstActions_Click(int row) {
    if (m_showing)
        return;
    m_editor.select(row);
    m_lstActions->setToolTip(Q(m_editor.listToolTip()));
}

void FrmSetAction::lstActions_DblClick(int row) {
    if (!m_editor.loadLine(row))
        return;
    showCombos();
    showInputs();
    showPanels();
}

void FrmSetAction::lstActions_RowsMoved(const QModelIndex&, int start, int, const QModelIndex&,
                                        int row) {
    if (m_showing)
        return;
    // The view has moved its item already; the command lines follow, and the list
    // is shown again from them once the drop has finished with its items.
    m_editor.moveLine(start, row > start ? row - 1 : row);
    QTimer::singleShot(0, this, [this] { showList(); });
}

void FrmSetAction::btnAdd_Click() {
    bool added = true;
    run([this, &added] { added = m_editor.add(); });
    // A refused label goes back to its box to be changed.
    if (!added && m_editor.panels().labelPanel)
        m_txtLabel->setFocus();
}

void FrmSetAction::btnGetHexColor_Click() {
    // Start from the colour already typed, when it is one.
    QColor initial(QStringLiteral("#") + m_txtLabel->text());
    if (m_txtLabel->text().size() != 6 || !initial.isValid())
        initial = Qt::white;
    // The colour button's tool tip names what the colour dialog does.
    const QColor colour =
        QColorDialog::getColor(initial, this, uiText("frmSetAction", "btnGetHexColor.toolTip"));
    if (!colour.isValid())
        return;
    m_editor.takeColor(colorToRef(colour));
    showInputs();
}

void FrmSetAction::btnOk_Click() {
    m_editor.ok(m_selected);
    accept();
}

template <typename Command> void FrmSetAction::run(Command command) {
    takeInputs();
    command();
    showInputs();
    showList();
}

void FrmSetAction::takeInputs() {
    ActionInputs& in = m_editor.inputs();
    in.x = m_txtX->text().toStdString();
    in.y = m_txtY->text().toStdString();
    in.width = m_txtWidth->text().toStdString();
    in.height = m_txtHeight->text().toStdString();
    in.label = m_txtLabel->text().toStdString();
    in.milliseconds = m_lsMiliseconds->currentText().toStdString();
    in.javaScript = m_txtJavaScript->text().toStdString();
}

void FrmSetAction::showInputs() {
    const ActionInputs& in = m_editor.inputs();
    setText(m_txtX, in.x);
    setText(m_txtY, in.y);
    setText(m_txtWidth, in.width);
    setText(m_txtHeight, in.height);
    setText(m_txtLabel, in.label);
    setText(m_txtJavaScript, in.javaScript);
    if (m_lsMiliseconds->currentText() != Q(in.milliseconds))
        m_lsMiliseconds->setCurrentText(Q(in.milliseconds));
}

void FrmSetAction::showCombos() {
    m_showing = true;
    if (m_cmbAction->count() != static_cast<int>(m_editor.commandTexts().size())) {
        m_cmbAction->clear();
        m_cmbAction->addItems(QList(m_editor.commandTexts()));
    }
    if (m_cmbButtonNumber->count() != static_cast<int>(m_editor.buttonTexts().size())) {
        m_cmbButtonNumber->clear();
        m_cmbButtonNumber->addItems(QList(m_editor.buttonTexts()));
    }
    if (m_cmbStateSelector->count() != static_cast<int>(m_editor.stateTexts().size())) {
        m_cmbStateSelector->clear();
        m_cmbStateSelector->addItems(QList(m_editor.stateTexts()));
    }
    m_cmbAction->setCurrentIndex(m_editor.command());
    m_cmbButtonNumber->setCurrentIndex(m_editor.button());
    m_cmbStateSelector->setCurrentIndex(m_editor.state());
    m_showing = false;
}

void FrmSetAction::showList() {
    m_showing = true;
    m_lstActions->clear();
    m_lstActions->addItems(QList(m_editor.readableLines()));
    m_lstActions->setCurrentRow(m_editor.selection());
    if (m_editor.selection() < 0)
        m_lstActions->clearSelection();
    m_lstActions->setToolTip(Q(m_editor.listToolTip()));
    m_showing = false;
    if (m_editor.selection() >= 0)
        m_lstActions->scrollToItem(m_lstActions->item(m_editor.selection()));
}

void FrmSetAction::showPanels() {
    const ActionPanels p = m_editor.panels();
    m_cmbButtonNumber->setEnabled(p.buttonList);
    QWidget* page = m_noParameters;
    if (p.movePanel)
        page = m_picActionMove;
    else if (p.labelPanel)
        page = m_picSetLabel;
    else if (p.timerPanel)
        page = m_picSetTimer;
    else if (p.javaScript)
        page = m_javaScriptPage;
    m_parameters->setCurrentWidget(page);
    m_btnGetHexColor->setVisible(p.colorButton);
}

void showActionEditor(QWidget* parent, ProjectModel& model, const std::vector<bool>& selected,
                      UserInterface& ui, ProgramBuffer& buffer, ProgramKind kind,
                      const QString& title, const std::array<std::string, 3>& stateCaptions) {
    FrmSetAction dialog(model, ui, buffer, selected, parent, stateCaptions);
    dialog.myShow(kind, title);
}

} // namespace orvelin
