#include "documentchange.h"

namespace orvelin {

DocumentChange& DocumentChange::button(int index, bool onlyPosition) {
    const auto insert = [index](std::vector<int>& into) {
        const auto at = std::lower_bound(into.begin(), into.end(), index);
        if (at == into.end() || *at != index)
            into.insert(at, index);
    };
    const bool known = touches(index);
    insert(buttons);
    if (onlyPosition && (!known || onlyMoved(index)))
        insert(moved);
    else if (!onlyPosition)
        std::erase(moved, index);
    return *this;
}

int DocumentNotices::listen(Listener listener) {
    m_listeners.emplace_back(++m_next, std::move(listener));
    return m_next;
}

void DocumentNotices::stopListening(int id) {
    std::erase_if(m_listeners, [id](const auto& entry) { return entry.first == id; });
}

void DocumentNotices::announce(const DocumentChange& change) const {
    // A listener may stop listening while it is told.
    const auto listeners = m_listeners;
    for (const auto& entry : listeners)
        entry.second(change);
}

} // namespace orvelin
