#include "browserlist.h"

#include "privateprofile.h"
#include "texthelpers.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace orvelin {

namespace {

/// Browser programs worth offering when no desktop entry names them (a machine
/// without a desktop menu, or a browser installed by hand).
constexpr const char* kWellKnownBrowsers[] = {
    "firefox",          "firefox-esr",      "chromium",
    "chromium-browser", "google-chrome",    "google-chrome-stable",
    "brave-browser",    "vivaldi",          "opera",
    "microsoft-edge",   "epiphany-browser", "epiphany",
    "falkon",           "konqueror",        "midori",
    "qutebrowser",
};

std::vector<std::string> splitFolders(const char* list, const std::string& fallback) {
    const std::string text = list && *list ? std::string(list) : fallback;
    std::vector<std::string> out;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t colon = std::min(text.find(':', start), text.size());
        if (colon > start)
            out.push_back(text.substr(start, colon - start));
        start = colon + 1;
    }
    return out;
}

bool isRunnableFile(const fs::path& path) {
    std::error_code ec;
    return fs::is_regular_file(path, ec) && ::access(path.c_str(), X_OK) == 0;
}

/// `program` as a runnable file: a path as it is, a bare name looked up in `folders`.
std::string findProgram(const std::string& program, const std::vector<std::string>& folders) {
    if (program.empty())
        return {};
    if (program.find('/') != std::string::npos)
        return isRunnableFile(program) ? program : std::string();
    for (const std::string& folder : folders) {
        const fs::path candidate = fs::path(folder) / program;
        if (isRunnableFile(candidate))
            return candidate.string();
    }
    return {};
}

/// The program an Exec line starts: its first word, past an "env" and its settings.
std::string execProgram(std::string_view exec) {
    std::vector<std::string> words;
    std::string word;
    bool quoted = false;
    for (char c : exec) {
        if (c == '"') {
            quoted = !quoted;
        } else if (c == ' ' && !quoted) {
            if (!word.empty())
                words.push_back(std::move(word));
            word.clear();
        } else {
            word += c;
        }
    }
    if (!word.empty())
        words.push_back(word);
    std::size_t i = 0;
    if (i < words.size() && bareFileName(words[i]) == "env") {
        ++i;
        while (i < words.size() && words[i].find('=') != std::string::npos)
            ++i;
    }
    return i < words.size() ? words[i] : std::string();
}

bool hasCategory(std::string_view categories, std::string_view wanted) {
    std::size_t start = 0;
    while (start <= categories.size()) {
        const std::size_t end = std::min(categories.find(';', start), categories.size());
        if (categories.substr(start, end - start) == wanted)
            return true;
        start = end + 1;
    }
    return false;
}

/// One program once, however many entries or PATH folders name it.
std::string identity(const std::string& program) {
    std::error_code ec;
    const fs::path canonical = fs::canonical(program, ec);
    return ec ? program : canonical.string();
}

} // namespace

BrowserSearchPlaces BrowserSearchPlaces::fromEnvironment() {
    BrowserSearchPlaces places;
    const char* home = std::getenv("HOME");
    const std::string userData = home ? std::string(home) + "/.local/share" : std::string();
    places.dataFolders = splitFolders(std::getenv("XDG_DATA_HOME"), userData);
    for (std::string& folder :
         splitFolders(std::getenv("XDG_DATA_DIRS"), "/usr/local/share:/usr/share"))
        places.dataFolders.push_back(std::move(folder));
    places.pathFolders = splitFolders(std::getenv("PATH"), "/usr/local/bin:/usr/bin:/bin");
    return places;
}

std::vector<BrowserEntry> detectBrowsers(const BrowserSearchPlaces& places) {
    std::vector<BrowserEntry> found;
    std::set<std::string> programs;
    std::set<std::string> entryFiles; // an entry in an earlier data folder hides a later one
    auto add = [&](const std::string& name, const std::string& program) {
        if (!name.empty() && !program.empty() && programs.insert(identity(program)).second)
            found.push_back({name, program});
    };

    for (const std::string& data : places.dataFolders) {
        std::error_code ec;
        std::vector<fs::path> entries;
        for (const auto& item : fs::directory_iterator(fs::path(data) / "applications", ec))
            if (item.path().extension() == ".desktop")
                entries.push_back(item.path());
        std::sort(entries.begin(), entries.end()); // the same order on every machine
        for (const fs::path& file : entries) {
            if (!entryFiles.insert(file.filename().string()).second)
                continue;
            const PrivateProfile entry = PrivateProfile::fromFile(file.string());
            const auto value = [&](std::string_view key) {
                return entry.value("Desktop Entry", key, "");
            };
            if (!hasCategory(value("Categories"), "WebBrowser") ||
                toLowerAscii(value("NoDisplay")) == "true" ||
                toLowerAscii(value("Hidden")) == "true")
                continue;
            add(value("Name"), findProgram(execProgram(value("Exec")), places.pathFolders));
        }
    }
    for (const char* program : kWellKnownBrowsers)
        add(program, findProgram(program, places.pathFolders));
    return found;
}

bool isRunnableProgram(const std::string& program) {
    return !findProgram(program, BrowserSearchPlaces::fromEnvironment().pathFolders).empty();
}

std::vector<BrowserEntry> loadBrowsers(Settings& settings, const BrowserSearchPlaces& places) {
    const int count = MakeCInt(settings.value(SettingKey::BrowsersCount));
    std::vector<BrowserEntry> browsers{{kDefaultBrowserName, ""}};
    if (count <= 0) {
        for (BrowserEntry& entry : detectBrowsers(places))
            browsers.push_back(std::move(entry));
        saveBrowsers(settings, browsers);
        return browsers;
    }
    // Position 1 is the default browser's own; its stored name is kept for display.
    browsers.front().name = settings.value(SettingKey::BrowsersName, 1);
    if (browsers.front().name.empty())
        browsers.front().name = kDefaultBrowserName;
    for (int i = 2; i <= count; ++i)
        browsers.push_back({settings.value(SettingKey::BrowsersName, i),
                            settings.value(SettingKey::BrowsersPath, i)});
    return browsers;
}

void saveBrowsers(Settings& settings, const std::vector<BrowserEntry>& browsers) {
    const int count = static_cast<int>(browsers.size());
    for (int i = 1; i <= count; ++i) {
        const BrowserEntry& entry = browsers[static_cast<std::size_t>(i - 1)];
        settings.setValue(SettingKey::BrowsersName, entry.name, i);
        settings.setValue(SettingKey::BrowsersPath, i == 1 ? std::string() : entry.program, i);
    }
    settings.setValue(SettingKey::BrowsersCount, std::to_string(count));
}

int selectedBrowser(const Settings& settings, std::size_t count) {
    const int position = MakeCInt(settings.value(SettingKey::BrowsersSelected));
    return position >= 0 && static_cast<std::size_t>(position) < count ? position : 0;
}

void setSelectedBrowser(Settings& settings, int position) {
    settings.setValue(SettingKey::BrowsersSelected, std::to_string(position));
}

} // namespace orvelin
