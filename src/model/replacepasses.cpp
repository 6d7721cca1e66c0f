#include "replacepasses.h"

#include <algorithm>
#include <stdexcept>

namespace orvelin {

ReplacePasses::ReplacePasses(std::string_view text, std::string_view search,
                             std::string_view replacement)
    : m_search(search), m_replacement(replacement) {
    m_nodes.reserve(text.size() + 16 * replacement.size());
    NodeId previous = kNone;
    for (const char c : text) {
        const NodeId id = newNode(previous, kNone, c);
        if (previous != kNone)
            m_nodes[previous].next = id;
        else
            m_head = id;
        previous = id;
    }
    m_last = previous;
    m_length = static_cast<std::int64_t>(text.size());
    // The first pass has looked at nothing yet: all of the text is its tail.
    m_tail = m_head;
    m_tailIndex = 0;
}

std::string ReplacePasses::run(bool singlePass) {
    for (;;) {
        const std::int64_t lengthBefore = m_length;
        const std::int64_t replaced = pass();
        if (replaced == 0 || singlePass || m_length == lengthBefore)
            return text();
    }
}

std::int64_t ReplacePasses::pass() {
    const std::int64_t passEnd = m_length;
    const auto growth = static_cast<std::int64_t>(m_replacement.size()) -
                        static_cast<std::int64_t>(m_search.size());
    std::int64_t shift = 0; // growth of the text before the scan so far in this pass
    std::int64_t replaced = 0;
    std::int64_t lastIndex = -1; // the position the scan handled last
    // Positions up to `liveEnd` were written by this pass's replacements and are
    // looked at one by one; in the tail every position is.
    std::int64_t liveEnd = -1;
    bool inTail = false;
    NodeId walk = kNone; // node at lastIndex + 1 while walking one by one
    std::size_t nextDirty = 0;
    m_nextDirty.clear();
    m_lastMarked = -1;

    for (;;) {
        NodeId node = kNone;
        std::int64_t index = lastIndex + 1;
        if (inTail || index <= liveEnd) {
            node = walk;
        } else {
            while (nextDirty < m_dirty.size() && (m_nodes[m_dirty[nextDirty].node].gone ||
                                                  m_dirty[nextDirty].index + shift <= lastIndex))
                ++nextDirty;
            if (nextDirty < m_dirty.size()) {
                node = m_dirty[nextDirty].node;
                index = m_dirty[nextDirty].index + shift;
                ++nextDirty;
            } else if (m_tail != kNone) {
                inTail = true;
                node = m_tail;
                index = m_tailIndex + shift;
                // After an empty replacement the tail's first node sits on the
                // position the scan has just passed.
                while (node != kNone && index <= lastIndex) {
                    node = m_nodes[node].next;
                    ++index;
                }
            }
        }
        if (node == kNone || index >= passEnd)
            break;
        lastIndex = index;
        if (!matchesAt(node)) {
            walk = m_nodes[node].next;
            continue;
        }
        const NodeId tailBefore = m_tail;
        const NodeId at = replaceAt(node, index);
        ++replaced;
        shift += growth;
        if (!inTail && tailBefore != kNone && m_nodes[tailBefore].gone) {
            // The match reached into the tail: the tail now starts right after
            // the replacement.
            NodeId after = at;
            for (std::size_t k = 0; k < m_replacement.size(); ++k)
                after = m_nodes[after].next;
            m_tail = after;
            m_tailIndex = index + static_cast<std::int64_t>(m_replacement.size()) - shift;
        }
        // The replacement's characters after its first are looked at next. A match
        // among them that ends inside the replacement would mean the replacement
        // holds the search, which only happens in a single pass, all of it tail;
        // so no unseen character of an earlier replacement is left behind here.
        liveEnd = index + static_cast<std::int64_t>(m_replacement.size()) - 1;
        walk = at == kNone ? kNone : m_nodes[at].next;
    }

    m_dirty.swap(m_nextDirty);
    if (m_length > passEnd) {
        // A growing replacement pushed text beyond this pass's end unseen.
        NodeId node = m_last;
        for (std::int64_t k = m_length - 1; k > passEnd; --k)
            node = m_nodes[node].prev;
        m_tail = node;
        m_tailIndex = passEnd;
    } else {
        m_tail = kNone;
    }
    return replaced;
}

bool ReplacePasses::matchesAt(NodeId node) const {
    for (const char c : m_search) {
        if (node == kNone || m_nodes[node].c != c)
            return false;
        node = m_nodes[node].next;
    }
    return true;
}

ReplacePasses::NodeId ReplacePasses::replaceAt(NodeId node, std::int64_t index) {
    const NodeId before = m_nodes[node].prev;
    NodeId after = node;
    for (std::size_t k = 0; k < m_search.size(); ++k) {
        m_nodes[after].gone = true;
        after = m_nodes[after].next;
    }
    NodeId previous = before;
    NodeId first = kNone;
    for (const char c : m_replacement) {
        const NodeId id = newNode(previous, kNone, c);
        if (previous != kNone)
            m_nodes[previous].next = id;
        if (first == kNone)
            first = id;
        previous = id;
    }
    if (previous != kNone)
        m_nodes[previous].next = after;
    else
        m_head = after;
    if (before == kNone && first != kNone)
        m_head = first;
    if (after != kNone)
        m_nodes[after].prev = previous;
    else
        m_last = previous;
    m_length += static_cast<std::int64_t>(m_replacement.size()) -
                static_cast<std::int64_t>(m_search.size());
    const NodeId at = first != kNone ? first : after;
    markWindow(at, before, index);
    return at;
}

void ReplacePasses::markWindow(NodeId atIndexNode, NodeId before, std::int64_t index) {
    // The scan has moved past these positions, and each may now start a match
    // that runs into the replacement; the next pass looks at them again.
    const std::size_t from = m_nextDirty.size();
    if (atIndexNode != kNone)
        m_nextDirty.push_back({atIndexNode, index});
    NodeId node = before;
    for (std::int64_t k = 1; k < static_cast<std::int64_t>(m_search.size()) && node != kNone; ++k) {
        if (index - k <= m_lastMarked)
            break;
        m_nextDirty.push_back({node, index - k});
        node = m_nodes[node].prev;
    }
    std::reverse(m_nextDirty.begin() + static_cast<std::ptrdiff_t>(from), m_nextDirty.end());
    m_lastMarked = index;
}

ReplacePasses::NodeId ReplacePasses::newNode(NodeId prev, NodeId next, char c) {
    if (m_nodes.size() >= kNone)
        throw std::length_error("ReplaceAll: text too long");
    m_nodes.push_back({prev, next, c});
    return static_cast<NodeId>(m_nodes.size() - 1);
}

std::string ReplacePasses::text() const {
    std::string out;
    out.reserve(static_cast<std::size_t>(m_length));
    for (NodeId node = m_head; node != kNone; node = m_nodes[node].next)
        out += m_nodes[node].c;
    return out;
}

} // namespace orvelin
