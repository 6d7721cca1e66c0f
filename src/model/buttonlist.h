#pragma once

#include <string>
#include <vector>

namespace orvelin {

/**
 * The main editor's button list `lstButtons`: one entry per button, entry i-1 for
 * button i, with a multi-selection. It is the program's only record of which buttons
 * are selected; the list widget shows it and the design surface asks it.
 */
class ButtonList {
public:
    int count() const { return static_cast<int>(m_selected.size()); }

    /// Adds the entry for the next button (entries are named by position).
    void append();
    /// Removes the last entry (its selection goes with it).
    void removeLast();
    void clear();

    /// Whether button `index` (1-based) is selected; false outside the list.
    bool isSelected(int index) const;
    int selectedCount() const;
    /// Selected button numbers in ascending order.
    std::vector<int> selectedButtons() const;

    /// SelectItem_lstButtons: `index` becomes the only selected entry.
    void selectOnly(int index);
    /// AddSelectItem_lstButtons.
    void addSelection(int index);
    /// DeSelectItem_lstButtons.
    void removeSelection(int index);
    void setSelected(int index, bool selected);

    /// Bumped on every change, so a view can tell whether it must refresh.
    unsigned revision() const { return m_revision; }

private:
    std::vector<bool> m_selected;
    unsigned m_revision = 0;
};

/// The list entry's text, "Button " followed by the number.
std::string buttonEntryText(int index);

} // namespace orvelin
