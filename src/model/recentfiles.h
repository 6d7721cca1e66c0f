#pragma once

#include "editorview.h"
#include "settings.h"

#include <array>
#include <string>

namespace orvelin {

inline constexpr int kRecentSlots = 4;

/**
 * The four recent project files, File1 the newest. A path already listed keeps its
 * place (it is not moved to the top); the comparison is exact and case-sensitive.
 */
class RecentFiles {
public:
    RecentFiles(Settings& settings, EditorView& view) : m_settings(settings), m_view(view) {}

    /// Puts `path` on top unless it is listed already, then refreshes the menu.
    void WriteRecent(const std::string& path);
    /// Shows the four slots in the menu: an entry per stored path, hidden when empty.
    void GetRecent();
    /// The stored path of slot 1..4; "" for an empty slot or a slot outside 1..4.
    std::string path(int slot) const;
    std::array<std::string, kRecentSlots> entries() const; ///< raw, "-1" for empty

private:
    Settings& m_settings;
    EditorView& m_view;
};

} // namespace orvelin
