#include "undohistory.h"

#include "windowtexts.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <optional>

namespace orvelin {

namespace {

// Steps kept; each holds one copy of the document (a few hundred kilobytes at most).
constexpr int kUndoLimit = 500;
// The id of steps that may absorb the next one (typing in one field).
constexpr int kTypingId = 1;

bool isTextField(const QWidget* widget) {
    return qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
           qobject_cast<const QTextEdit*>(widget) != nullptr;
}

bool isUndoKey(const QKeyEvent& key) {
    const QKeySequence pressed(key.keyCombination());
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo) ||
           pressed == QKeySequence(Qt::CTRL | Qt::Key_Y) ||
           pressed == QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
}

} // namespace

class UndoHistory::Step : public QUndoCommand {
public:
    Step(UndoHistory& history, Snapshot before, Snapshot after, QString field, unsigned burst,
         const QString& name)
        : m_history(history), m_before(std::move(before)), m_after(std::move(after)),
          m_field(std::move(field)), m_burst(burst), m_named(!name.isEmpty()) {
        setText(m_named ? name : described());
    }

    /// The step's name in the language in force; a name a command gave stays.
    void nameAgain() {
        if (!m_named)
            setText(described());
    }

    int id() const override { return m_field.isEmpty() ? -1 : kTypingId; }

    bool mergeWith(const QUndoCommand* other) override {
        const auto* next = static_cast<const Step*>(other);
        if (next->m_field != m_field || next->m_burst != m_burst)
            return false;
        m_after = next->m_after;
        m_toAfter.reset();
        m_toBefore.reset();
        setText(described());
        // Typed back to what it was: no step at all.
        setObsolete(sameDocument(*m_before, *m_after));
        return true;
    }

    void redo() override {
        // Pushed after the edit was made: the first redo has nothing to do.
        if (m_pushed) {
            m_pushed = false;
            return;
        }
        if (!m_toAfter)
            m_toAfter = changeBetween(*m_before, *m_after);
        m_history.restore(m_after, *m_toAfter);
    }

    void undo() override {
        if (!m_toBefore)
            m_toBefore = changeBetween(*m_after, *m_before);
        m_history.restore(m_before, *m_toBefore);
    }

private:
    QString described() const {
        return QString::fromStdString(describeChange(*m_before, *m_after));
    }

    UndoHistory& m_history;
    Snapshot m_before;
    Snapshot m_after;
    QString m_field;
    unsigned m_burst;
    bool m_named;
    bool m_pushed = true;
    // The change each way, found once: a step is often undone and redone again.
    std::optional<DocumentChange> m_toAfter;
    std::optional<DocumentChange> m_toBefore;
};

UndoHistory::UndoHistory(ProjectModel& model, ButtonList& list, QObject* parent)
    : QObject(parent), m_model(model), m_list(list) {
    m_stack.setUndoLimit(kUndoLimit);
    m_undo = new QAction(this);
    m_undo->setObjectName(QStringLiteral("mnuUndo"));
    m_undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_undo->setEnabled(false);
    m_redo = new QAction(this);
    m_redo->setObjectName(QStringLiteral("mnuRedo"));
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    m_redo->setEnabled(false);
    connect(m_undo, &QAction::triggered, this, &UndoHistory::undo);
    connect(m_redo, &QAction::triggered, this, &UndoHistory::redo);
    connect(&m_stack, &QUndoStack::canUndoChanged, m_undo, &QAction::setEnabled);
    connect(&m_stack, &QUndoStack::canRedoChanged, m_redo, &QAction::setEnabled);
    connect(&m_stack, &QUndoStack::undoTextChanged, this, &UndoHistory::showActionTexts);
    connect(&m_stack, &QUndoStack::redoTextChanged, this, &UndoHistory::showActionTexts);
    showActionTexts();
    // Back at the saved document the project is unchanged again; away from it, changed.
    connect(&m_stack, &QUndoStack::cleanChanged, this, [this](bool clean) {
        if (m_active)
            m_model.Saved = clean;
    });
    qApp->installEventFilter(this);
    m_listening = m_model.notices.listen([this](const DocumentChange& change) {
        if (!m_restoring && !change.name.empty())
            m_stepName = QString::fromStdString(change.name);
    });
}

UndoHistory::~UndoHistory() {
    m_model.notices.stopListening(m_listening);
    qApp->removeEventFilter(this);
}

void UndoHistory::showActionTexts() {
    const auto named = [](std::string_view plain, std::string_view withStep, const QString& step) {
        return step.isEmpty() ? uiText("frmMain", plain) : uiText("frmMain", withStep).arg(step);
    };
    m_undo->setText(named("mnuUndo", "#undoStep", m_stack.undoText()));
    m_redo->setText(named("mnuRedo", "#redoStep", m_stack.redoText()));
}

void UndoHistory::showTexts() {
    for (int i = 0; i < m_stack.count(); ++i)
        static_cast<Step*>(const_cast<QUndoCommand*>(m_stack.command(i)))->nameAgain();
    showActionTexts();
}

void UndoHistory::clear() {
    const bool saved = m_model.Saved;
    m_active = false;
    m_stack.clear();
    // An imported project is unsaved from the start: no undo reaches a saved state.
    if (!saved)
        m_stack.resetClean();
    m_baseline = std::make_shared<const ProjectSnapshot>(makeSnapshot(m_model, m_list));
    m_lastField.clear();
    m_stepName.clear();
    m_model.Saved = saved;
    m_active = true;
}

void UndoHistory::capture(const QString& name) {
    if (!m_active || m_restoring)
        return;
    if (sameDocument(*m_baseline, m_model)) {
        // The next step, undone, comes back to the selection its edit started from.
        if (m_baseline->currentButton != m_model.CurrentButton ||
            m_baseline->selection != m_list.selectedButtons()) {
            auto moved = std::make_shared<ProjectSnapshot>(*m_baseline);
            moved->currentButton = m_model.CurrentButton;
            moved->selection = m_list.selectedButtons();
            m_baseline = std::move(moved);
            m_lastField.clear();
        }
    } else {
        if (QGuiApplication::mouseButtons() != Qt::NoButton ||
            QApplication::activeModalWidget() != nullptr)
            return;
        const bool saved = m_model.Saved;
        auto after = std::make_shared<const ProjectSnapshot>(makeSnapshot(m_model, m_list));
        const QString stepName = name.isEmpty() ? m_stepName : name;
        m_stepName.clear();
        const QString field = stepName.isEmpty() ? typingField() : QString();
        if (field.isEmpty() || field != m_lastField)
            ++m_burst;
        m_lastField = field;
        m_stack.push(new Step(*this, m_baseline, after, field, m_burst, stepName));
        m_baseline = std::move(after);
        // Saved in the same breath as the edit (a key pressed before the edit showed).
        if (saved)
            m_stack.setClean();
    }
    if (m_model.Saved && !m_stack.isClean())
        m_stack.setClean();
}

void UndoHistory::undo() {
    capture();
    // A gesture still under way is finished before anything is undone.
    if (m_active && sameDocument(*m_baseline, m_model))
        m_stack.undo();
}

void UndoHistory::redo() {
    capture();
    if (m_active && sameDocument(*m_baseline, m_model))
        m_stack.redo();
}

void UndoHistory::restore(const Snapshot& to, const DocumentChange& change) {
    m_restoring = true;
    restoreSnapshot(*to, m_model, m_list, &change);
    m_baseline = to;
    m_lastField.clear();
    // The views show it through the document's one change path, as after any edit.
    m_model.notices.announce(change);
    m_restoring = false;
}

QString UndoHistory::typingField() const {
    const QWidget* focus = m_keyTarget.data();
    if (!m_lastInputWasKey || !isTextField(focus))
        return {};
    // An editable combo box's line edit has no name of its own.
    const QWidget* named = focus->objectName().isEmpty() && focus->parentWidget() != nullptr
                               ? focus->parentWidget()
                               : focus;
    return named->window()->objectName() + QLatin1Char('/') + named->objectName() +
           QLatin1Char('@') + QString::number(reinterpret_cast<quintptr>(named), 16);
}

bool UndoHistory::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
        m_lastInputWasKey = true;
        m_keyTarget = qobject_cast<QWidget*>(watched);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_lastInputWasKey = false;
        break;
    case QEvent::ShortcutOverride: {
        // In the two windows that hold the undo keys they undo the document, not the text
        // of one field; other windows and dialogs keep their fields' own undo.
        auto* widget = qobject_cast<QWidget*>(watched);
        if (m_active && isTextField(widget) && QApplication::activeModalWidget() == nullptr &&
            isUndoKey(*static_cast<QKeyEvent*>(event))) {
            const QString window = widget->window()->objectName();
            if (window == QLatin1String("frmMain") || window == QLatin1String("frmDesign"))
                return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelin
