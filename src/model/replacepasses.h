#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

/**
 * The repeated-pass replace of ReplaceAll for a search and replacement that
 * can form new matches with each other (ReplaceAll handles all other pairs as
 * one plain left-to-right replace, which gives the same text).
 *
 * The result is exactly that of running whole passes until one leaves the
 * length unchanged, where a pass looks at positions below the length the text
 * had when it began and, after a replacement at i, goes on at i + 1 in the
 * changed text. Running those passes literally costs a full scan per pass, and
 * a cascade such as "ab" -> "a" on "abbbb..." needs one pass per "b". Instead
 * the text is a linked list of characters, and a pass only looks at positions
 * where the previous pass may have left a match:
 *   - the m - 1 positions before a replacement and the replacement's own first
 *     position (m = search length), which that pass had already moved past;
 *   - everything from the previous pass's end on, which a growing replacement
 *     pushed beyond it.
 * Every other position was looked at before and the m characters from it have
 * not changed since, so it still holds no match. The total work is linear in
 * the text plus the characters written, times m.
 */
class ReplacePasses {
public:
    ReplacePasses(std::string_view text, std::string_view search, std::string_view replacement);

    /// Runs passes until one changes nothing, or only the first one when `singlePass`.
    std::string run(bool singlePass);

private:
    // 32-bit links keep a node at 12 bytes: the list of a long text is walked
    // many times, and half the memory is half the cache misses.
    using NodeId = std::uint32_t;
    static constexpr NodeId kNone = static_cast<NodeId>(-1);

    struct Node {
        NodeId prev = kNone;
        NodeId next = kNone;
        char c = 0;
        bool gone = false;
    };

    /// A position to look at in the next pass: its node and its index at that pass's start.
    struct Dirty {
        NodeId node;
        std::int64_t index;
    };

    /// One pass; returns the number of replacements it made.
    std::int64_t pass();
    bool matchesAt(NodeId node) const;
    /// Replaces the match at `node`; returns the node now at its position (kNone at the end).
    NodeId replaceAt(NodeId node, std::int64_t index);
    void markWindow(NodeId atIndexNode, NodeId before, std::int64_t index);
    NodeId newNode(NodeId prev, NodeId next, char c);
    std::string text() const;

    std::string_view m_search;
    std::string_view m_replacement;
    std::vector<Node> m_nodes;
    NodeId m_head = kNone;
    NodeId m_last = kNone;
    std::int64_t m_length = 0;

    // Where the current pass must look: the dirty positions in text order, then
    // every position from the tail node on.
    std::vector<Dirty> m_dirty;
    NodeId m_tail = kNone;
    std::int64_t m_tailIndex = 0;

    // Filled by the current pass for the next one.
    std::vector<Dirty> m_nextDirty;
    std::int64_t m_lastMarked = -1;
};

} // namespace orvelin
