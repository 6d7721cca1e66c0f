#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

class Settings;

inline constexpr const char* kProjectMimeType = "application/x-orvelin-project";
inline constexpr const char* kDesktopId = "org.orvelin.Orvelin.desktop";

/// Runs the freedesktop command-line tools; tests replace it with a recording fake.
class DesktopTools {
public:
    struct Result {
        bool started = false; ///< false when the program is not installed
        int status = 0;
        std::string output; ///< what it wrote to stdout
        std::string errors; ///< what it wrote to stderr
    };
    virtual ~DesktopTools() = default;
    virtual Result run(const std::string& program, const std::vector<std::string>& arguments) = 0;
};

/// Where the registration goes for this user and this copy of the program.
struct DesktopPlaces {
    std::string dataHome;      ///< $XDG_DATA_HOME, else ~/.local/share
    std::string executable;    ///< the designer the desktop entry starts
    std::string programFolder; ///< holds desktop/ with the entry, the type and the icons
};

/// The places of the running designer, whose data lie in `programFolder`.
DesktopPlaces currentDesktopPlaces(const std::string& programFolder);

/// The prompts start-up shows, in this order.
struct StartupOffers {
    bool shortCut = false;
    bool associate = false;
};

/**
 * A copy started from its build folder offers a menu entry while ShortCut is "none".
 * The association prompt comes when .orv files are known not to open with Orvelin
 * (`associated` false; nullopt means the desktop tools cannot tell, and then nobody
 * is asked) and DontAskToAssociate is not "1".
 */
StartupOffers decideStartupOffers(const Settings& settings, bool runFromBuildFolder,
                                  std::optional<bool> associated);

/// Whether .orv files open with Orvelin for this user; nullopt when xdg-mime cannot tell.
std::optional<bool> isAssociated(DesktopTools& tools);

/**
 * The desktop entry for this copy: `installedEntry` with Exec, TryExec and Icon
 * pointing at `executable` and `icon` (quoted as desktop entries want).
 */
std::string userDesktopEntry(std::string_view installedEntry, const std::string& executable,
                             const std::string& icon);

/**
 * Writes this copy's desktop entry into the user's applications folder and refreshes
 * the menu's database. Empty on success, else the reason (naming the tool or file).
 */
std::string addToApplicationsMenu(DesktopTools& tools, const DesktopPlaces& places);

/**
 * Makes Orvelin the user's program for .orv files: the desktop entry, the file type
 * and its icon in the user's data folders, the databases refreshed, Orvelin the
 * default. Empty on success, else the reason.
 */
std::string registerFileType(DesktopTools& tools, const DesktopPlaces& places);

} // namespace orvelin
