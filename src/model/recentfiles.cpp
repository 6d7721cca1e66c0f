#include "recentfiles.h"

namespace orvelin {

void RecentFiles::WriteRecent(const std::string& path) {
    const std::array<std::string, kRecentSlots> slots = entries();
    // A path already listed keeps its place: the list records first use, not last use.
    bool listed = false;
    for (const std::string& stored : slots)
        listed = listed || stored == path;
    if (!listed) {
        for (int slot = kRecentSlots; slot > 1; --slot)
            m_settings.setRecentFile(slot, slots[static_cast<std::size_t>(slot - 2)]);
        m_settings.setRecentFile(1, path);
    }
    GetRecent();
}

void RecentFiles::GetRecent() {
    for (int slot = 1; slot <= kRecentSlots; ++slot) {
        const std::string stored = m_settings.recentFile(slot);
        m_view.setRecentEntry(slot, stored, stored != kUnsetValue);
    }
}

std::string RecentFiles::path(int slot) const {
    if (slot < 1 || slot > kRecentSlots)
        return {};
    std::string stored = m_settings.recentFile(slot);
    return stored == kUnsetValue ? std::string() : stored;
}

std::array<std::string, kRecentSlots> RecentFiles::entries() const {
    std::array<std::string, kRecentSlots> out;
    for (int slot = 1; slot <= kRecentSlots; ++slot)
        out[static_cast<std::size_t>(slot - 1)] = m_settings.recentFile(slot);
    return out;
}

} // namespace orvelin
