#pragma once

#include "buttonlist.h"
#include "projectmodel.h"
#include "projectsnapshot.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QUndoStack>
#include <memory>

class QAction;

namespace orvelin {

/**
 * Undo and redo of the document. Each step holds the document before and after one
 * edit. Steps are not announced by the code that edits: whenever the program is about
 * to wait for the next event, capture() compares the document with the one the last
 * step left and records the difference as a step, named after what changed. A step
 * waits while a gesture is on (a mouse button held, a modal dialog open), so a drag or
 * a dialog is one step; keys typed into one field in a row make one step.
 */
class UndoHistory : public QObject {
    Q_OBJECT

public:
    UndoHistory(ProjectModel& model, ButtonList& list, QObject* parent = nullptr);
    ~UndoHistory() override;

    QUndoStack& stack() { return m_stack; }
    /// "Undo Move 3 Buttons" and "Redo Change Label", with their keys.
    QAction* undoAction() const { return m_undo; }
    QAction* redoAction() const { return m_redo; }

    /// Records an edit made since the last step; also notes a save (Saved set again).
    /// A command that knows what it did gives the step its name ("Align Left").
    void capture(const QString& name = QString());
    /// Forgets every step: the document as it is now is where the history starts.
    void clear();
    void undo();
    void redo();
    /// Names the steps and the two commands again in the language in force.
    void showTexts();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Step;
    using Snapshot = std::shared_ptr<const ProjectSnapshot>;
    /// Puts `to` back, which differs from the model's document by `change`, and has the
    /// model announce it.
    void restore(const Snapshot& to, const DocumentChange& change);
    /// The text field the last key went to, when the last input was a key.
    QString typingField() const;
    /// "Undo <step>" and "Redo <step>" for the steps at hand.
    void showActionTexts();

    ProjectModel& m_model;
    ButtonList& m_list;
    QUndoStack m_stack;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    Snapshot m_baseline;
    QString m_lastField;
    QString m_stepName; ///< the name the last notice gave the step to come
    int m_listening = 0;
    unsigned m_burst = 0;
    bool m_active = false;
    bool m_restoring = false;
    bool m_lastInputWasKey = false;
    QPointer<QWidget> m_keyTarget; ///< where the last key went
};

} // namespace orvelin
