#include "frmdesign.h"

#include "accessiblenames.h"
#include "appletarea.h"
#include "appletbackground.h"
#include "buttonpainter.h"
#include "buttonpicture.h"
#include "labelpositioner.h"
#include "manipulation.h"
#include "sizerhandle.h"
#include "windowtexts.h"

#include <QActionGroup>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <cstdlib>
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

/**
 * The zoom that a key asks for, 0 for any other key. The keys as typed: the plus needs
 * Shift on most keyboards (X reports Ctrl+Shift++), Ctrl+= is the plus without Shift,
 * and the keypad's keys count too.
 */
int zoomForKey(const QKeyEvent* event, const SurfaceZoom& zoom) {
    if (!event->modifiers().testFlag(Qt::ControlModifier))
        return 0;
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom.zoomedIn().percent();
    case Qt::Key_Minus:
        return zoom.zoomedOut().percent();
    case Qt::Key_0:
        return SurfaceZoom::kActualSize;
    default:
        return 0;
    }
}

} // namespace

FrmDesign::FrmDesign(ProjectModel& model, ButtonList& list, UserInterface* ui, QWidget* parent)
    : QWidget(parent, Qt::Window), m_model(model), m_list(list),
      m_ui(ui != nullptr ? std::make_unique<OneWarningPerAction>(*ui) : nullptr) {
    setObjectName(QStringLiteral("frmDesign"));
    buildWindow();
    appletChanged();
    // The window's texts come from two sections: the buttons here, the tools in the other.
    showWindowTexts(*this, {TextSection::Design, TextSection::DesignTools});
    showComposedTexts();
    nameControls(*this);
    // Every change of the document reaches the surface here, whoever made it.
    m_listening =
        m_model.notices.listen([this](const DocumentChange& c) { showChange(c, m_model); });
}

FrmDesign::~FrmDesign() {
    m_model.notices.stopListening(m_listening);
}

void FrmDesign::buildWindow() {
    m_btnAddBtn = new QPushButton(this);
    m_btnAddBtn->setObjectName(QStringLiteral("btnAddBtn"));
    m_btnDuplicate = new QPushButton(this);
    m_btnDuplicate->setObjectName(QStringLiteral("btnDuplicate"));
    m_btnRemove = new QPushButton(this);
    m_btnRemove->setObjectName(QStringLiteral("btnRemove"));
    m_btnViewHtml = new QPushButton(this);
    m_btnViewHtml->setObjectName(QStringLiteral("btnViewHtml"));
    m_chkNoBackGround = new QCheckBox(this);
    m_chkNoBackGround->setObjectName(QStringLiteral("chkNoBackGround"));

    connect(m_btnAddBtn, &QPushButton::clicked, this, &FrmDesign::btnAddBtnClicked);
    connect(m_btnDuplicate, &QPushButton::clicked, this, &FrmDesign::btnDuplicateClicked);
    connect(m_btnRemove, &QPushButton::clicked, this, &FrmDesign::btnRemoveClicked);
    connect(m_btnViewHtml, &QPushButton::clicked, this, &FrmDesign::btnViewHtmlClicked);
    connect(m_chkNoBackGround, &QCheckBox::clicked, this, [this](bool checked) {
        m_noBackGround = checked;
        appletChanged();
        emit noBackGroundClicked(checked);
    });

    m_lblZoom = new QLabel(this);
    m_lblZoom->setObjectName(QStringLiteral("lblZoom"));

    auto* commands = new QHBoxLayout;
    commands->addWidget(m_btnAddBtn);
    commands->addWidget(m_btnDuplicate);
    commands->addWidget(m_btnRemove);
    commands->addWidget(m_btnViewHtml);
    commands->addStretch(1);
    commands->addWidget(m_lblZoom);
    commands->addWidget(m_chkNoBackGround);

    m_surface = new QWidget;
    m_surface->setObjectName(QStringLiteral("picSurface"));
    // The surface shows the applet in the applet's own coordinates: never mirrored, also
    // when the windows are laid out right to left.
    m_surface->setLayoutDirection(Qt::LeftToRight);
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
    m_scroll->setLayoutDirection(Qt::LeftToRight);
    m_scroll->viewport()->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(commands);
    layout->addWidget(m_scroll, 1);
    buildViewMenu();
}

void FrmDesign::buildViewMenu() {
    m_menuBar = new QMenuBar(this);
    m_menuBar->setObjectName(QStringLiteral("mnuDesignBar"));
    layout()->setMenuBar(m_menuBar);
    m_mnuView = m_menuBar->addMenu(QString());
    m_mnuView->setObjectName(QStringLiteral("mnuView"));

    QAction* zoomIn =
        m_mnuView->addAction(QString(), this, [this] { setZoom(m_zoom.zoomedIn().percent()); });
    zoomIn->setObjectName(QStringLiteral("mnuZoomIn"));
    zoomIn->setShortcut(QKeySequence::ZoomIn);
    QAction* zoomOut =
        m_mnuView->addAction(QString(), this, [this] { setZoom(m_zoom.zoomedOut().percent()); });
    zoomOut->setObjectName(QStringLiteral("mnuZoomOut"));
    zoomOut->setShortcut(QKeySequence::ZoomOut);
    QAction* actual =
        m_mnuView->addAction(QString(), this, [this] { setZoom(SurfaceZoom::kActualSize); });
    actual->setObjectName(QStringLiteral("mnuZoomActual"));
    actual->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    m_mnuView->addSeparator();

    m_zoomLevels = new QActionGroup(this);
    for (int percent : SurfaceZoom::kSteps) {
        QAction* level =
            m_mnuView->addAction(QString(), this, [this, percent] { setZoom(percent); });
        level->setObjectName(QStringLiteral("mnuZoom%1").arg(percent));
        level->setData(percent);
        level->setCheckable(true);
        level->setChecked(percent == m_zoom.percent());
        level->setActionGroup(m_zoomLevels);
    }
}

void FrmDesign::addArrangeTools(QMenu* menu, QToolBar* tools) {
    m_menuBar->addMenu(menu);
    // In the row of commands, after View HTML: the surface keeps its height.
    auto* commands = static_cast<QBoxLayout*>(layout()->itemAt(0)->layout());
    commands->insertWidget(4, tools);
    retranslate();
}

void FrmDesign::retranslate() {
    applyWindowTexts(*this);
    showComposedTexts();
    emit textsChanged();
}

QString FrmDesign::zoomText(int percent) {
    return uiText("frmDesign", "#zoomLevel").arg(percent);
}

void FrmDesign::showComposedTexts() {
    m_lblZoom->setText(zoomText(m_zoom.percent()));
    for (QAction* level : m_zoomLevels->actions())
        level->setText(zoomText(level->data().toInt()));
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
        // The painters draw in applet pixels; the picture has the zoomed size at the
        // screen's density, so labels come out as sharp as at 100%.
        onPicture.scale(m_zoom.factor(), m_zoom.factor());
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
            m_noRedrawOnResize = true;
            picture->setGeometry(pictureRect(index));
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

void FrmDesign::setZoom(int percent) {
    const SurfaceZoom zoom(percent);
    if (zoom == m_zoom)
        return;
    m_zoom = zoom;
    m_area->setZoom(m_zoom);
    resizeSurface();
    // Every picture is placed and painted at the new scale; the marks follow.
    redrawAll();
    m_lblZoom->setText(zoomText(m_zoom.percent()));
    for (QAction* level : m_zoomLevels->actions())
        level->setChecked(level->data().toInt() == m_zoom.percent());
    emit zoomChanged(m_zoom.percent());
}

QRect FrmDesign::pictureRect(int index) const {
    const PixelRect r = m_zoom.toScreen(buttonRect(m_model, index));
    return {r.left, r.top, r.width, r.height};
}

void FrmDesign::wheelZoom(QWheelEvent* event) {
    m_wheelAngle += event->angleDelta().y();
    const int notches = m_wheelAngle / QWheelEvent::DefaultDeltasPerStep;
    if (notches == 0)
        return;
    m_wheelAngle -= notches * QWheelEvent::DefaultDeltasPerStep;
    SurfaceZoom zoom = m_zoom;
    for (int i = 0; i < std::abs(notches); ++i)
        zoom = notches > 0 ? zoom.zoomedIn() : zoom.zoomedOut();
    if (zoom == m_zoom)
        return;
    QScrollBar* h = m_scroll->horizontalScrollBar();
    QScrollBar* v = m_scroll->verticalScrollBar();
    const QPointF pointer = event->position();
    const QPointF margin(kMargin, kMargin);
    const QPointF under = pointer + QPointF(h->value(), v->value()) - margin;
    const double scale = zoom.factor() / m_zoom.factor();
    setZoom(zoom.percent());
    const QPointF after = margin + under * scale - pointer;
    h->setValue(roundPixel(after.x()));
    v->setValue(roundPixel(after.y()));
}

void FrmDesign::moveButton(int index, bool repaintTransparent) {
    ButtonPicture* picture = pButtons(index);
    if (!picture)
        return;
    const ButtonRecord& button = m_model.button(index);
    picture->move(pictureRect(index).topLeft());
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
    // From the picture's corner, where the label is painted from, at the zoom.
    m_positioner->centreOn(
        picture->pos() + QPoint(kMargin, kMargin) +
        QPoint(m_zoom.toScreen(button.labelPosX(state)), m_zoom.toScreen(button.labelPosY(state))));
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
    if (event->type() == QEvent::Wheel && m_scroll && watched == m_scroll->viewport()) {
        auto* wheel = static_cast<QWheelEvent*>(event);
        if (wheel->modifiers().testFlag(Qt::ControlModifier)) {
            wheelZoom(wheel);
            return true; // no scrolling by the same turn
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool FrmDesign::event(QEvent* event) {
    // Ctrl++ is also the main editor's Add Button, shared with this window: here the
    // zoom keys win, so the shortcut is not looked up and the key comes as a key press.
    if (event->type() == QEvent::ShortcutOverride &&
        zoomForKey(static_cast<QKeyEvent*>(event), m_zoom) != 0) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void FrmDesign::keyPressEvent(QKeyEvent* event) {
    if (const int percent = zoomForKey(event, m_zoom); percent != 0) {
        setZoom(percent);
        return;
    }
    QWidget::keyPressEvent(event);
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
