#include "arrangetools.h"

#include "frmdesign.h"
#include "layouttools.h"
#include "paintedicon.h"
#include "surfaceeditorlink.h"
#include "undohistory.h"
#include "windowtexts.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QPainter>
#include <QToolBar>
#include <algorithm>
#include <cstring>
#include <limits>

namespace orvelin {

namespace {

/// A toolbar picture: buttons as bars on a 16 by 16 grid and the line they line up on.
struct IconShape {
    const char* name;
    char line; ///< 'v' vertical, 'h' horizontal, 0 none
    double at;
    std::vector<QRectF> bars;
};

const std::vector<IconShape>& iconShapes() {
    static const std::vector<IconShape> shapes{
        {"left", 'v', 1.5, {{3, 3, 10, 4}, {3, 9, 6, 4}}},
        {"right", 'v', 14.5, {{3, 3, 10, 4}, {7, 9, 6, 4}}},
        {"hcentre", 'v', 8, {{2, 3, 12, 4}, {4, 9, 8, 4}}},
        {"top", 'h', 1.5, {{3, 3, 4, 10}, {9, 3, 4, 6}}},
        {"bottom", 'h', 14.5, {{3, 3, 4, 10}, {9, 7, 4, 6}}},
        {"vcentre", 'h', 8, {{3, 2, 4, 12}, {9, 4, 4, 8}}},
        {"dist-h", 0, 0, {{1, 4, 3, 8}, {6.5, 4, 3, 8}, {12, 4, 3, 8}}},
        {"dist-v", 0, 0, {{4, 1, 8, 3}, {4, 6.5, 8, 3}, {4, 12, 8, 3}}},
        {"width", 0, 0, {{2, 3, 12, 4}, {2, 10, 12, 3}}},
        {"height", 0, 0, {{3, 2, 4, 12}, {10, 2, 3, 12}}},
        {"size", 0, 0, {{2, 2, 6, 6}, {8, 8, 6, 6}}},
    };
    return shapes;
}

/// Drawn for each device pixel ratio, so that the bars stay sharp on dense screens.
QIcon makeIcon(const char* name) {
    const auto& shapes = iconShapes();
    const auto it = std::find_if(shapes.begin(), shapes.end(), [name](const IconShape& s) {
        return std::strcmp(s.name, name) == 0;
    });
    QIcon icon;
    if (it == shapes.end())
        return icon;
    addPaintedPixmaps(icon, QSize(16, 16), [&shape = *it](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(70, 110, 170));
        for (const QRectF& bar : shape.bars)
            p.drawRect(bar);
        if (shape.line != 0) {
            p.setPen(QPen(QColor(200, 40, 40), 1.0));
            if (shape.line == 'v')
                p.drawLine(QPointF(shape.at, 0), QPointF(shape.at, 16));
            else
                p.drawLine(QPointF(0, shape.at), QPointF(16, shape.at));
        }
    });
    return icon;
}

std::int16_t toRecord(int value) {
    return static_cast<std::int16_t>(std::clamp<int>(
        value, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

} // namespace

ArrangeTools::ArrangeTools(FrmDesign& design, ProjectModel& model, ButtonList& list,
                           UndoHistory& history, QObject* parent)
    : QObject(parent), m_model(model), m_list(list), m_history(history) {
    m_menu = new QMenu(&design);
    m_menu->setObjectName(QStringLiteral("mnuArrange"));
    m_toolBar = new QToolBar(&design);
    m_toolBar->setObjectName(QStringLiteral("tbArrange"));
    m_toolBar->setIconSize(QSize(16, 16));

    const auto align = [](AlignTo edge) {
        return [edge](std::vector<PixelRect> r, std::size_t ref) {
            return orvelin::align(std::move(r), ref, edge);
        };
    };
    const auto same = [](SameSize what) {
        return [what](std::vector<PixelRect> r, std::size_t ref) {
            return makeSameSize(std::move(r), ref, what);
        };
    };
    add("mnuAlignLeft", 2, "left", align(AlignTo::Left));
    add("mnuAlignHCentre", 2, "hcentre", align(AlignTo::HorizontalCentre));
    add("mnuAlignRight", 2, "right", align(AlignTo::Right));
    add("mnuAlignTop", 2, "top", align(AlignTo::Top));
    add("mnuAlignVCentre", 2, "vcentre", align(AlignTo::VerticalCentre));
    add("mnuAlignBottom", 2, "bottom", align(AlignTo::Bottom));
    m_menu->addSeparator();
    m_toolBar->addSeparator();
    add("mnuDistributeH", 3, "dist-h",
        [](std::vector<PixelRect> r, std::size_t) { return distributeHorizontally(std::move(r)); });
    add("mnuDistributeV", 3, "dist-v",
        [](std::vector<PixelRect> r, std::size_t) { return distributeVertically(std::move(r)); });
    m_menu->addSeparator();
    m_toolBar->addSeparator();
    add("mnuSameWidth", 2, "width", same(SameSize::Width));
    add("mnuSameHeight", 2, "height", same(SameSize::Height));
    add("mnuSameSize", 2, "size", same(SameSize::Both));

    // The catalogue names the commands; their tool tips are put together from the names.
    connect(&design, &FrmDesign::textsChanged, this, [this] { showTexts(); });
    design.addArrangeTools(m_menu, m_toolBar);
    updateEnabled();
    // The selection changes in many places (the list, the surface, an undo): the
    // commands follow it before the program waits for the next event.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] {
                if (m_list.revision() != m_seenRevision)
                    updateEnabled();
            });
}

ArrangeTools::~ArrangeTools() = default;

void ArrangeTools::add(const char* name, int needs, const char* icon, Tool tool) {
    auto* action = new QAction(makeIcon(icon), QString(), m_menu);
    action->setObjectName(QString::fromLatin1(name));
    m_menu->addAction(action);
    m_toolBar->addAction(action);
    if (QWidget* button = m_toolBar->widgetForAction(action))
        button->setObjectName(QString::fromLatin1(name).replace(0, 3, QStringLiteral("btn")));
    // The undo step is named after the command as it reads when it is used.
    connect(action, &QAction::triggered, this,
            [this, tool = std::move(tool), action] { apply(tool, action->iconText()); });
    m_commands.push_back({action, needs});
}

void ArrangeTools::showTexts() {
    const QString onCurrent = uiText("frmDesign", "#arrangeOnCurrent");
    const QString onThree = uiText("frmDesign", "#arrangeThree");
    for (const Command& c : m_commands) {
        const QString name = c.action->iconText();
        c.action->setToolTip((c.needs > 2 ? onThree : onCurrent).arg(name));
        if (QWidget* button = m_toolBar->widgetForAction(c.action))
            button->setAccessibleName(name);
    }
}

QAction* ArrangeTools::action(const QString& name) const {
    for (const Command& c : m_commands)
        if (c.action->objectName() == name)
            return c.action;
    return nullptr;
}

void ArrangeTools::updateEnabled() {
    m_seenRevision = m_list.revision();
    const int selected = m_list.selectedCount();
    for (const Command& c : m_commands)
        c.action->setEnabled(selected >= c.needs);
}

void ArrangeTools::apply(const Tool& tool, const QString& stepName) {
    std::vector<int> buttons;
    for (int i : m_list.selectedButtons())
        if (isButtonNumber(m_model, i))
            buttons.push_back(i);
    if (buttons.size() < 2)
        return;
    std::vector<PixelRect> rects;
    for (int i : buttons)
        rects.push_back(buttonRect(m_model, i));
    // The others line up on the current button; without one in the group, on the first.
    const auto current = std::find(buttons.begin(), buttons.end(), m_model.CurrentButton);
    const std::size_t reference =
        current == buttons.end() ? 0 : static_cast<std::size_t>(current - buttons.begin());
    const std::vector<PixelRect> placed = tool(rects, reference);
    DocumentChange change;
    for (std::size_t k = 0; k < buttons.size(); ++k) {
        if (placed[k] == rects[k])
            continue;
        ButtonRecord& b = m_model.button(buttons[k]);
        b.x = toRecord(placed[k].left);
        b.y = toRecord(placed[k].top);
        b.Width = toRecord(placed[k].width);
        b.Height = toRecord(placed[k].height);
        change.button(buttons[k],
                      placed[k].width == rects[k].width && placed[k].height == rects[k].height);
    }
    if (change.buttons.empty())
        return;
    m_model.Saved = false;
    m_model.notices.announce(change);
    m_history.capture(stepName);
}

} // namespace orvelin
