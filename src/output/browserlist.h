#pragma once

#include "settings.h"

#include <string>
#include <string_view>
#include <vector>

/**
 * The browsers a page can be previewed in, as the HTML window's chooser lists them.
 * The first entry always stands for the desktop's default browser and has no program;
 * every other entry names a program that is started with the page's path. Standard
 * library only; the dialogs that edit the list live in the designer.
 */
namespace orvelin {

inline constexpr const char* kDefaultBrowserName = "Default Browser";

struct BrowserEntry {
    std::string name;
    std::string program; ///< "" for the default browser
    bool operator==(const BrowserEntry&) const = default;
};

/// Where DetectBrowsers looks: the XDG data folders (whose applications/ hold the
/// desktop entries) and the folders of $PATH.
struct BrowserSearchPlaces {
    std::vector<std::string> dataFolders;
    std::vector<std::string> pathFolders;
    /// The places of this session's environment.
    static BrowserSearchPlaces fromEnvironment();
};

/**
 * The web browsers installed: desktop entries of the WebBrowser category (their Name
 * and the program of their Exec line), then well-known browser programs on the PATH
 * that no entry named. One entry per program, in that order; programs that cannot be
 * run are left out.
 */
std::vector<BrowserEntry> detectBrowsers(const BrowserSearchPlaces& places);

/// Whether `program` is a file this user may run (a bare name is looked up on the PATH).
bool isRunnableProgram(const std::string& program);

/**
 * The stored list under "\Browsers" (Count, Name<i>, Path<i>). The first entry is
 * always the default browser. On first use (nothing stored yet) the list is the
 * default browser and every browser that DetectBrowsers finds, and it is stored.
 */
std::vector<BrowserEntry> loadBrowsers(Settings& settings, const BrowserSearchPlaces& places);
/// Stores `browsers` (the first one is taken to be the default browser).
void saveBrowsers(Settings& settings, const std::vector<BrowserEntry>& browsers);

/// The chooser's stored position, within 0 .. count-1 (0 when out of range).
int selectedBrowser(const Settings& settings, std::size_t count);
void setSelectedBrowser(Settings& settings, int position);

} // namespace orvelin
