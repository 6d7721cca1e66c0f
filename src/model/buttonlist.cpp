#include "buttonlist.h"

#include "textcatalogue.h"

namespace orvelin {

void ButtonList::append() {
    m_selected.push_back(false);
    ++m_revision;
}

void ButtonList::removeLast() {
    if (!m_selected.empty())
        m_selected.pop_back();
    ++m_revision;
}

void ButtonList::clear() {
    m_selected.clear();
    ++m_revision;
}

bool ButtonList::isSelected(int index) const {
    return index >= 1 && index <= count() && m_selected[static_cast<std::size_t>(index - 1)];
}

int ButtonList::selectedCount() const {
    int n = 0;
    for (bool s : m_selected)
        n += s ? 1 : 0;
    return n;
}

std::vector<int> ButtonList::selectedButtons() const {
    std::vector<int> out;
    for (int i = 1; i <= count(); ++i)
        if (isSelected(i))
            out.push_back(i);
    return out;
}

void ButtonList::selectOnly(int index) {
    for (int i = 1; i <= count(); ++i)
        m_selected[static_cast<std::size_t>(i - 1)] = i == index;
    ++m_revision;
}

void ButtonList::addSelection(int index) {
    setSelected(index, true);
}

void ButtonList::removeSelection(int index) {
    setSelected(index, false);
}

void ButtonList::setSelected(int index, bool selected) {
    if (index < 1 || index > count())
        return;
    m_selected[static_cast<std::size_t>(index - 1)] = selected;
    ++m_revision;
}

std::string buttonEntryText(int index) {
    return texts()[Msg::ButtonPrefix] + std::to_string(index);
}

} // namespace orvelin
