#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orvelin {

/**
 * The one notice by which the project document announces a change. The views (the
 * property panel, the button list, the design surface, the HTML window) refresh from
 * it; the code that made the change only says what changed. Button numbers are 1-based
 * and count in the document after the change.
 */
struct DocumentChange {
    bool applet = false;       ///< an applet setting
    bool background = false;   ///< of those, one that changes what lies under the buttons
    bool countChanged = false; ///< buttons were added or removed
    int countBefore = 0;       ///< the button count before the change, when it changed
    std::vector<int> buttons;  ///< buttons whose record differs, ascending
    std::vector<int> moved;    ///< those of them that differ only in x and y, ascending
    bool selection = false;    ///< the selection or the current button
    /// The project was replaced or the edited state switched: every view shows it afresh.
    bool everything = false;
    /// Made in the property panel, whose controls already show it.
    bool fromPanel = false;
    /// One step of a drag still under way: pictures move, transparent ones wait for the end.
    bool gesture = false;
    /// The undo step's name when the maker knows it better than the difference shows
    /// (one pasted button looks like a duplicate); "" otherwise.
    std::string name;

    bool touches(int index) const {
        return std::binary_search(buttons.begin(), buttons.end(), index);
    }
    bool onlyMoved(int index) const {
        return std::binary_search(moved.begin(), moved.end(), index);
    }
    /// Whether anything in the document (not only the selection) changed.
    bool document() const { return applet || countChanged || everything || !buttons.empty(); }
    /// Button `index` changed; `onlyPosition` when only its x and y did.
    DocumentChange& button(int index, bool onlyPosition = false);
};

/**
 * The listeners of a document's change notices. A copy of a document starts without
 * listeners: views watch one document, never its snapshots.
 */
class DocumentNotices {
public:
    using Listener = std::function<void(const DocumentChange&)>;

    DocumentNotices() = default;
    DocumentNotices(const DocumentNotices&) {}
    DocumentNotices& operator=(const DocumentNotices&) { return *this; }

    /// Adds a listener; the number returned takes it away again.
    int listen(Listener listener);
    void stopListening(int id);
    /// Tells every listener, in the order they started listening.
    void announce(const DocumentChange& change) const;

private:
    std::vector<std::pair<int, Listener>> m_listeners;
    int m_next = 0;
};

} // namespace orvelin
