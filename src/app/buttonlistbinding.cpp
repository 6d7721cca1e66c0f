#include "buttonlistbinding.h"

#include "buttonlist.h"
#include "editor.h"

#include <QItemSelectionModel>
#include <QListWidget>

namespace orvelin {

ButtonListBinding::ButtonListBinding(QListWidget& widget, ButtonList& list, Editor& editor,
                                     QObject* parent)
    : QObject(parent), m_widget(widget), m_list(list), m_editor(editor) {
    m_widget.setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(&m_widget, &QListWidget::itemSelectionChanged, this,
            &ButtonListBinding::selectionChanged);
    connect(&m_widget, &QListWidget::currentRowChanged, this, &ButtonListBinding::currentChanged);
}

void ButtonListBinding::show(int current) {
    m_showing = true;
    while (m_widget.count() > m_list.count())
        delete m_widget.takeItem(m_widget.count() - 1);
    while (m_widget.count() < m_list.count())
        m_widget.addItem(QString::fromStdString(buttonEntryText(m_widget.count() + 1)));
    for (int i = 0; i < m_widget.count(); ++i) {
        QListWidgetItem* item = m_widget.item(i);
        if (item->isSelected() != m_list.isSelected(i + 1))
            item->setSelected(m_list.isSelected(i + 1));
    }
    if (current >= 1 && current <= m_widget.count()) {
        // Only the focus mark moves: the selection is the core's.
        m_widget.selectionModel()->setCurrentIndex(m_widget.model()->index(current - 1, 0),
                                                   QItemSelectionModel::NoUpdate);
        m_widget.scrollToItem(m_widget.item(current - 1));
    }
    m_showing = false;
}

void ButtonListBinding::showTexts() {
    for (int i = 0; i < m_widget.count(); ++i)
        m_widget.item(i)->setText(QString::fromStdString(buttonEntryText(i + 1)));
}

void ButtonListBinding::selectionChanged() {
    if (m_showing)
        return;
    std::vector<int> selected;
    for (int i = 0; i < m_widget.count(); ++i)
        if (m_widget.item(i)->isSelected())
            selected.push_back(i + 1);
    if (selected != m_list.selectedButtons())
        m_editor.setListSelection(selected);
}

void ButtonListBinding::currentChanged(int row) {
    if (m_showing || row < 0)
        return;
    m_editor.clickList(row + 1);
}

} // namespace orvelin
