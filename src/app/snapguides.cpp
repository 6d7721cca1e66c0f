#include "snapguides.h"

#include "appletarea.h"
#include "buttonpicture.h"
#include "frmdesign.h"
#include "settings.h"

#include <QAction>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <climits>
#include <string>

namespace orvelin {

namespace {

/// Never closer than this to a line without snapping to it, in screen pixels: the
/// pull feels the same at every zoom.
constexpr int kSnapDistance = 5;

int gridFrom(const std::string& text) {
    try {
        return std::clamp(std::stoi(text), 0, 1000);
    } catch (const std::exception&) {
        return 0; // a damaged value means no grid
    }
}

} // namespace

/// The guide lines, drawn over the whole surface; the mouse passes through it.
class GuideOverlay : public QWidget {
public:
    explicit GuideOverlay(QWidget* surface) : QWidget(surface) {
        setObjectName(QStringLiteral("picSnapGuides"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
        setFocusPolicy(Qt::NoFocus);
    }
    std::vector<SnapGuide> guides;
    SurfaceZoom zoom;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        // One screen pixel wide: thin, yet seen on a dense screen too.
        QPen pen(QColor(230, 0, 140), 1.0);
        p.setPen(pen);
        const double m = FrmDesign::kMargin;
        const auto on = [this, m](double applet) { return m + applet * zoom.factor(); };
        for (const SnapGuide& g : guides) {
            // A line at an edge lies on the first pixel column (row) of that edge.
            const double at = on(g.at);
            if (g.vertical)
                p.drawLine(QPointF(at, on(g.from) - 4), QPointF(at, on(g.to) + 4));
            else
                p.drawLine(QPointF(on(g.from) - 4, at), QPointF(on(g.to) + 4, at));
        }
    }
};

SnapGuides::SnapGuides(FrmDesign& design, ProjectModel& model, const ButtonList& list,
                       Settings& settings, QObject* parent)
    : QObject(parent), m_design(design), m_model(model), m_list(list), m_settings(settings),
      m_overlay(new GuideOverlay(design.surface())) {
    m_overlay->hide();
    // On the design window, whose texts it takes now and after each change of language.
    m_snapAction = new QAction(&design);
    m_snapAction->setObjectName(QStringLiteral("mnuSnapToButtons"));
    m_snapAction->setCheckable(true);
    m_snapAction->setChecked(m_settings.flag(SettingKey::SnapToButtons));
    design.retranslate();
    connect(m_snapAction, &QAction::triggered, this,
            [this](bool on) { m_settings.setFlag(SettingKey::SnapToButtons, on); });
}

SnapGuides::~SnapGuides() = default;

const std::vector<SnapGuide>& SnapGuides::guides() const {
    return m_overlay->guides;
}

SnapOptions SnapGuides::options(bool suspended) const {
    SnapOptions out;
    out.threshold = m_design.zoom().appletDistance(kSnapDistance);
    out.toButtons = !suspended && m_settings.flag(SettingKey::SnapToButtons);
    out.grid = suspended ? 0 : gridFrom(m_settings.value(SettingKey::GridSize));
    return out;
}

std::vector<PixelRect> SnapGuides::others(bool skipSelected) const {
    std::vector<PixelRect> out;
    for (int i = 1; i <= m_model.ButtonCount; ++i) {
        const bool moving = skipSelected ? m_list.isSelected(i) : i == m_model.CurrentButton;
        if (!moving)
            out.push_back(buttonRect(m_model, i));
    }
    return out;
}

PixelRect SnapGuides::area() const {
    const QSize size = m_design.appletArea()->appletSize();
    return {0, 0, size.width(), size.height()};
}

void SnapGuides::afterDrag(MoveOutcome& moved, bool suspended) {
    const SnapOptions opts = options(suspended);
    if (!moved.moved || (!opts.toButtons && opts.grid == 0)) {
        show({});
        return;
    }
    // The selection snaps as one block: its bounding box.
    int left = INT_MAX, top = INT_MAX, right = INT_MIN, bottom = INT_MIN;
    for (int i : moved.buttons) {
        const PixelRect r = buttonRect(m_model, i);
        left = std::min(left, r.left);
        top = std::min(top, r.top);
        right = std::max(right, r.left + r.width);
        bottom = std::max(bottom, r.top + r.height);
    }
    const SnapResult snap = orvelin::snap({left, top, right - left, bottom - top}, SnapAll, SnapAll,
                                          others(true), area(), opts);
    if (snap.dx != 0 || snap.dy != 0) {
        const MoveOutcome more = moveSelection(m_model, m_list, snap.dx, snap.dy);
        moved.dx += more.dx;
        moved.dy += more.dy;
    }
    show(snap.guides);
}

bool SnapGuides::afterResize(int handle, bool suspended) {
    const SnapOptions opts = options(suspended);
    const int current = m_model.CurrentButton;
    if (!isButtonNumber(m_model, current) || (!opts.toButtons && opts.grid == 0)) {
        show({});
        return false;
    }
    PixelRect r = buttonRect(m_model, current);
    const bool horizontal = handle == SizerLeft || handle == SizerRight;
    const unsigned line = handle == SizerLeft || handle == SizerTop ? SnapStart : SnapEnd;
    const SnapResult snap = orvelin::snap(r, horizontal ? line : 0U, horizontal ? 0U : line,
                                          others(false), area(), opts);
    const int delta = horizontal ? snap.dx : snap.dy;
    int& start = horizontal ? r.left : r.top;
    int& length = horizontal ? r.width : r.height;
    const int newLength = line == SnapStart ? length - delta : length + delta;
    // The handles' own limits stay: no snap makes a button smaller than they allow.
    if (delta == 0 || newLength < kSmallestSize) {
        show(delta == 0 ? snap.guides : std::vector<SnapGuide>{});
        return false;
    }
    if (line == SnapStart)
        start += delta;
    length = newLength;
    ButtonRecord& b = m_model.button(current);
    b.x = static_cast<std::int16_t>(r.left);
    b.y = static_cast<std::int16_t>(r.top);
    b.Width = static_cast<std::int16_t>(r.width);
    b.Height = static_cast<std::int16_t>(r.height);
    if (ButtonPicture* picture = m_design.pButtons(current))
        picture->setGeometry(m_design.pictureRect(current));
    show(snap.guides);
    return true;
}

void SnapGuides::finish() {
    show({});
}

void SnapGuides::show(const std::vector<SnapGuide>& guides) {
    if (guides == m_overlay->guides)
        return;
    m_overlay->guides = guides;
    m_overlay->zoom = m_design.zoom();
    if (guides.empty()) {
        m_overlay->hide();
        return;
    }
    m_overlay->setGeometry(m_design.surface()->rect());
    m_overlay->raise();
    m_overlay->show();
    m_overlay->update();
}

} // namespace orvelin
