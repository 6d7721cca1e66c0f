#include "frmdesign.h"

#include "accessiblenames.h"
#include "appletarea.h"
#include "appletbackground.h"
#include "buttonpainter.h"
#include "buttonpicture.h"
#include "labelpositioner.h"
#include "sizerhandle.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <exception>

namespace orvelin {

namespace {

/**
 * Passes on the first warning of one user action and drops the rest until the event
 * that caused it has been handled: an edit of 101 selected buttons, or a state switch,
 * redraws every button, and a label that cannot be drawn would otherwise report the same
 * fault once per button.
 */
class OneWarningPerAction : public UserInterface {
public:
    explicit OneWarningPerAction(UserInterface& target) : m_target(target) {}

    void showMessage(const std::string& text, const std::string& title) override {
        m_target.showMessage(text, title);
    }
    void showWarning(const std::string& text, const std::string& title) override {
        if (m_reported)
            return;
        m_reported = true;
        m_target.showWarning(text, title);
        // Armed again only after the box has closed and the action's event is done.
        QTimer::singleShot(0, [this, alive = std::weak_ptr<bool>(m_alive)] {
            if (!alive.expired())
                m_reported = false;
        });
    }
    Answer askYesNoCancel(const std::string& text, const std::string& title) override {
        return m_target.askYesNoCancel(text, title);
    }
    Answer askOkCancel(const std::string& text, const std::string& title) override {
        return m_target.askOkCancel(text, title);
    }
    std::optional<std::string> chooseOpenFile(const std::string& filter) override {
        return m_target.chooseOpenFile(filter);
    }
    std::optional<std::string> chooseSaveFile(const std::string& filter,
                                              const std::string& proposed) override {
        return m_target.chooseSaveFile(filter, proposed);
    }
    void showProgress(const std::string& title, const std::string& text, int percent) override {
        m_target.showProgress(title, text, percent);
    }
    void hideProgress() override { m_target.hideProgress(); }

private:
    UserInterface& m_target;
    bool m_reported = false;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

} // namespace

FrmDesign::FrmDesign(ProjectModel& model, ButtonList& list, UserInterface* ui, QWidget* parent)
    : QWidget(parent, Qt::Window), m_model(model), m_list(list),
      m_ui(ui != nullptr ? std::make_unique<OneWarningPerAction>(*ui) : nullptr) {
    setObjectName(QStringLiteral("frmDesign"));
    setWindowTitle(tr("Design"));
    buildWindow();
    appletChanged();
    nameControls(*this);
    // Every change of the document reaches the surface here, whoever made it.
    m_listening =
        m_model.notices.listen([this](const DocumentChange& c) { showChange(c, m_model); });
}

FrmDesign::~FrmDesign() {
    m_model.notices.stopListening(m_listening);
}

void FrmDesign::buildWindow() {
    m_btnAddBtn = new QPushButton(tr("&Add"), this);
    m_btnAddBtn->setObjectName(QStringLiteral("btnAddBtn"));
    m_btnAddBtn->setToolTip(tr("Add a new button"));
    m_btnDuplicate = new QPushButton(tr("D&uplicate"), this);
    m_btnDuplicate->setObjectName(QStringLiteral("btnDuplicate"));
    m_btnDuplicate->setToolTip(tr("Duplicate the current button"));
    m_btnRemove = new QPushButton(tr("&Remove"), this);
    m_btnRemove->setObjectName(QStringLiteral("btnRemove"));
    m_btnRemove->setToolTip(tr("Remove the current button (the one with the handles)"));
    m_btnViewHtml = new QPushButton(tr("View &HTML"), this);
    m_btnViewHtml->setObjectName(QStringLiteral("btnViewHtml"));
    m_btnViewHtml->setToolTip(tr("Show the applet code"));
    m_chkNoBackGround = new QCheckBox(tr("&No background"), this);
    m_chkNoBackGround->setObjectName(QStringLiteral("chkNoBackGround"));
    m_chkNoBackGround->setToolTip(tr("Show the buttons without the applet background"));

    connect(m_btnAddBtn, &QPushButton::clicked, this, &FrmDesign::btnAddBtnClicked);
    connect(m_btnDuplicate, &QPushButton::clicked, this, &FrmDesign::btnDuplicateClicked);
    connect(m_btnRemove, &QPushButton::clicked, this, &FrmDesign::btnRemoveClicked);
    connect(m_btnViewHtml, &QPushButton::clicked, this, &FrmDesign::btnViewHtmlClicked);
    connect(m_chkNoBackGround, &QCheckBox::clicked, this, [this](bool checked) {
        m_noBackGround = checked;
        appletChanged();
        emit noBackGroundClicked(checked);
    });

    auto* commands = new QHBoxLayout;
    commands->addWidget(m_btnAddBtn);
    commands->addWidget(m_btnDuplicate);
    commands->addWidget(m_btnRemove);
    commands->addWidget(m_btnViewHtml);
    commands->addStretch(1);
    commands->addWidget(m_chkNoBackGround);

    m_surface = new QWidget;
    m_surface->setObjectName(QStringLiteral("picSurface"));
    m_surface->installEventFilter(this);
    m_area = new AppletArea(m_surface);
    m_area->move(kMargin, kMargin);
    connect(m_area, &AppletArea::mousePressed, this, [this](QMouseEvent* e) { Form_MouseDown(e); });

    for (int handle = 0; handle < 4; ++handle) {
        auto* sizer = new SizerHandle(handle, m_surface);
        sizer->hide();
        connect(sizer, &SizerHandle::mousePressed, this,
                [this](int h, QMouseEvent* e) { picSizer_MouseDown(h, e); });
        connect(sizer, &SizerHandle::mouseMoved, this,
                [this](int h, QMouseEvent* e) { picSizer_MouseMove(h, e); });
        connect(sizer, &SizerHandle::mouseReleased, this,
                [this](int h, QMouseEvent* e) { picSizer_MouseUp(h, e); });
        m_sizers[static_cast<std::size_t>(handle)] = sizer;
    }
    m_positioner = new LabelPositioner(m_surface);
    m_positioner->hide();
    connect(m_positioner, &LabelPositioner::mousePressed, this,
            [this](int, QMouseEvent* e) { picLabelPositioner_MouseDown(e); });
    connect(m_positioner, &LabelPositioner::mouseMoved, this,
            [this](int, QMouseEvent* e) { picLabelPositioner_MouseMove(e); });
    connect(m_positioner, &LabelPositioner::mouseReleased, this,
            [this](int, QMouseEvent* e) { picLabelPositioner_MouseUp(e); });

    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("scrSurface"));
    m_scroll->setWidget(m_surface);
    m_scroll->setWidgetResizable(false);
    m_scroll->setFrameShape(QFrame::NoFrame);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(commands);
    layout->addWidget(m_scroll, 1);
}

void FrmDesign::addArrangeTools(QMenu* menu, QToolBar* tools) {
    auto* bar = new QMenuBar(this);
    bar->setObjectName(QStringLiteral("mnuDesignBar"));
    bar->addMenu(menu);
    layout()->setMenuBar(bar);
    // In the row of commands, after View HTML: the surface keeps its height.
    auto* commands = static_cast<QBoxLayout*>(layout()->itemAt(0)->layout());
    commands->insertWidget(4, tools);
}

ButtonPicture* FrmDesign::pButtons(int index) const {
    if (index < 1 || index > pictureCount())
        return nullptr;
    return m_pictures[static_cast<std::size_t>(index - 1)];
}

SizerHandle* FrmDesign::picSizer(int handle) const {
    return handle >= 0 && handle < 4 ? m_sizers[static_cast<std::size_t>(handle)] : nullptr;
}

void FrmDesign::LoadButton(int index) {
    if (index < 1 || index >= kButtonSlots)
        return;
    while (pictureCount() < index) {
        const int next = pictureCount() + 1;
        auto* picture = new ButtonPicture(next, m_area);
        connect(picture, &ButtonPicture::mousePressed, this,
                [this](int i, QMouseEvent* e) { pButtons_MouseDown(i, e); });
        connect(picture, &ButtonPicture::mouseMoved, this,
                [this](int i, QMouseEvent* e) { pButtons_MouseMove(i, e); });
        connect(picture, &ButtonPicture::mouseReleased, this,
                [this](int i, QMouseEvent* e) { pButtons_MouseUp(i, e); });
        connect(picture, &ButtonPicture::resized, this, [this](int i) { pButtons_Resize(i); });
        m_pictures.emplace_back(picture);
        m_markers.push_back(false);
        // A later button lies above an earlier one.
        picture->raise();
        // Shown at the default widget size first: not worth a paint, since the redraw
        // below sizes the picture from the project and paints it.
        m_noRedrawOnResize = true;
        picture->show();
        m_noRedrawOnResize = false;
    }
    // A new button is the current one (add, duplicate, start-up): the handles and the
    // positioner go around it at once.
    const bool current = index == m_model.CurrentButton;
    RedrawButton(index, current, current, false);
}

void FrmDesign::hideLastButton(int index) {
    if (index < 1 || index != pictureCount())
        return;
    if (ButtonPicture* picture = m_pictures.back()) {
        picture->hide();
        // Deleted later: the removal may come from inside one of its own events.
        picture->deleteLater();
    }
    m_pictures.pop_back();
    m_markers.pop_back();
}

void FrmDesign::clearButtons() {
    while (pictureCount() > 0)
        hideLastButton(pictureCount());
    hideMarks();
}

void FrmDesign::paintPicture(int index) {
    ButtonPicture* picture = pButtons(index);
    if (!picture)
        return;
    m_images.setProjectFile(m_model.fileForRelativePaths());
    ButtonPainter painter(m_model, m_images);
    painter.setState(m_model.CurrentState);
    painter.setBackground(&m_area->background());
    painter.setSelection(&m_list);
    painter.setUserInterface(m_ui.get());
    {
        QPainter onPicture(&picture->picture());
        painter.paintButton(onPicture, index);
    }
    m_markers[static_cast<std::size_t>(index - 1)] = painter.showsMultiSelector(index);
    ++m_paintCount;
    picture->update();
}

void FrmDesign::RedrawButton(int index, bool placeHandles, bool placePositioner,
                             bool keepGeometry) {
    try {
        ButtonPicture* picture = pButtons(index);
        if (!picture)
            return;
        // A file changed since the last redraw is read again.
        m_images.newPass();
        if (!keepGeometry) {
            const ButtonRecord& button = m_model.button(index);
            m_noRedrawOnResize = true;
            picture->setGeometry(button.x, button.y, std::max<int>(0, button.Width),
                                 std::max<int>(0, button.Height));
            m_noRedrawOnResize = false;
        }
        paintPicture(index);
        if (placeHandles)
            moveSizer(index);
        if (placePositioner)
            moveLabelPositioner(index);
    } catch (const std::exception&) {
        m_noRedrawOnResize = false;
    }
}

void FrmDesign::redrawAll() {
    for (int index = 1; index <= pictureCount(); ++index)
        RedrawButton(index, false, false, false);
    // The handles always belong to the current button: after a load or a click in the
    // button list they come back around it, not only where a drag left them.
    const int current = m_model.CurrentButton;
    if (current >= 1 && current <= pictureCount() && current <= m_model.ButtonCount) {
        moveSizer(current);
        showSizers();
        moveLabelPositioner(current);
    }
}

void FrmDesign::UpdateTransparentBtns() {
    for (int index = 1; index <= pictureCount() && index <= m_model.ButtonCount; ++index)
        if (m_model.button(index).noBackGround != 0)
            RedrawButton(index, false, false, false);
}

void FrmDesign::appletChanged() {
    m_images.setProjectFile(m_model.fileForRelativePaths());
    m_images.newPass();
    m_area->setBackground(renderBackground(m_model, m_images, m_noBackGround));
    resizeSurface();
    UpdateTransparentBtns();
}

void FrmDesign::resizeSurface() {
    const QSize applet = m_area->size();
    m_surface->setFixedSize(applet + QSize(2 * kMargin, 2 * kMargin));
}

void FrmDesign::moveButton(int index, bool repaintTransparent) {
    ButtonPicture* picture = pButtons(index);
    if (!picture)
        return;
    const ButtonRecord& button = m_model.button(index);
    picture->move(button.x, button.y);
    // A transparent button shows the background beneath its new place.
    if (repaintTransparent && button.noBackGround == 1)
        RedrawButton(index, false, false, true);
}

void FrmDesign::placeMarks(int index) {
    moveSizer(index);
    moveLabelPositioner(index);
}

void FrmDesign::selectionChanged() {
    const bool group = m_list.selectedCount() >= 2;
    for (int index = 1; index <= pictureCount() && index <= m_model.ButtonCount; ++index)
        if (m_markers[static_cast<std::size_t>(index - 1)] != (group && m_list.isSelected(index)))
            RedrawButton(index, false, false, true);
}

void FrmDesign::hideMarks() {
    hideSizers();
    m_positioner->hide();
}

void FrmDesign::setOnTop(bool onTop) {
    const bool wasVisible = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    // Changing a window flag hides the window; bring it back as it was.
    if (wasVisible)
        show();
}

void FrmDesign::moveSizer(int index) {
    ButtonPicture* picture = pButtons(index);
    if (!picture)
        return;
    const QRect button = picture->geometry().translated(kMargin, kMargin);
    const int l = button.x();
    const int t = button.y();
    const int w = button.width();
    const int h = button.height();
    const int side = SizerHandle::kSide;
    // Each handle stands 2 pixels outside its edge and is centred on it.
    m_sizers[0]->move(l + w / 2 - side / 2, t + h + 2);
    m_sizers[1]->move(l + w + 2, t + h / 2 - side / 2);
    m_sizers[2]->move(l + w / 2 - side / 2, t - side - 2);
    m_sizers[3]->move(l - side - 2, t + h / 2 - side / 2);
    showSizers();
}

void FrmDesign::showSizers() {
    for (SizerHandle* sizer : m_sizers) {
        sizer->show();
        sizer->raise();
    }
    m_positioner->raise();
}

void FrmDesign::hideSizers() {
    for (SizerHandle* sizer : m_sizers)
        sizer->hide();
}

void FrmDesign::moveLabelPositioner(int index) {
    ButtonPicture* picture = pButtons(index);
    if (!picture || index > m_model.ButtonCount) {
        m_positioner->hide();
        return;
    }
    const ButtonRecord& button = m_model.button(index);
    const ButtonState state = m_model.CurrentState;
    if (button.positionText(state) == 0) {
        m_positioner->hide();
        return;
    }
    m_positioner->centreOn(picture->pos() + QPoint(kMargin, kMargin) +
                           QPoint(button.labelPosX(state), button.labelPosY(state)));
    m_positioner->show();
    m_positioner->raise();
}

void FrmDesign::setNoBackGround(bool on) {
    m_chkNoBackGround->setChecked(on);
    if (m_noBackGround == on)
        return;
    m_noBackGround = on;
    appletChanged();
}

void FrmDesign::pButtons_MouseDown(int index, QMouseEvent* event) {
    emit buttonMouseDown(index, event);
}

void FrmDesign::pButtons_MouseMove(int index, QMouseEvent* event) {
    emit buttonMouseMove(index, event);
}

void FrmDesign::pButtons_MouseUp(int index, QMouseEvent* event) {
    emit buttonMouseUp(index, event);
}

void FrmDesign::pButtons_Resize(int index) {
    if (m_noRedrawOnResize)
        return;
    try {
        paintPicture(index);
    } catch (const std::exception&) {
        // Painting ends silently; the next redraw paints the picture whole.
    }
}

void FrmDesign::picSizer_MouseDown(int handle, QMouseEvent* event) {
    emit sizerMouseDown(handle, event);
}

void FrmDesign::picSizer_MouseMove(int handle, QMouseEvent* event) {
    emit sizerMouseMove(handle, event);
}

void FrmDesign::picSizer_MouseUp(int handle, QMouseEvent* event) {
    emit sizerMouseUp(handle, event);
}

void FrmDesign::picLabelPositioner_MouseDown(QMouseEvent* event) {
    emit positionerMouseDown(event);
}

void FrmDesign::picLabelPositioner_MouseMove(QMouseEvent* event) {
    emit positionerMouseMove(event);
}

void FrmDesign::picLabelPositioner_MouseUp(QMouseEvent* event) {
    emit positionerMouseUp(event);
}

void FrmDesign::Form_MouseDown(QMouseEvent* event) {
    emit surfaceMouseDown(event);
}

bool FrmDesign::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_surface && event->type() == QEvent::MouseButtonPress)
        Form_MouseDown(static_cast<QMouseEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

void FrmDesign::closeEvent(QCloseEvent* event) {
    emit unloading();
    if (!m_forceUnload) {
        // The design window lives as long as the editor: closing only hides it.
        event->ignore();
        hide();
        return;
    }
    m_forceUnload = false;
    event->accept();
}

} // namespace orvelin
