#pragma once

#include "projectmodel.h"
#include "shell.h"
#include "userinterface.h"

#include <string>
#include <string_view>
#include <vector>

/**
 * Preview and publishing: the page around the applet code, and every file that page
 * needs beside it (the applet files, the background, the buttons' images and sounds).
 * The HTML window and orvelin-cli both work through these functions, so a preview, a
 * build and the command line can never disagree about which files a page needs or
 * what they are called. Standard library only; the user is reached through
 * UserInterface and the desktop through Shell.
 */
namespace orvelin {

/// The HTML5 player in the program folder; a page that plays loads it from its own folder.
inline constexpr const char* kPlayerFile = "orvelin-player.js";

/// One file a page needs in its folder.
struct PageFile {
    enum class Kind { Applet, Player, Background, Image, Sound };
    Kind kind = Kind::Applet;
    int button =
        0; ///< the button the file belongs to; 0 for the program's files and the background
    /// The file to copy: the stored path resolved as the design window resolves it, or
    /// the stored path itself when no such file exists (its copy then fails and says so).
    std::string source;
    /// Its name beside the page: the encoded bare name that the applet parameters carry.
    std::string name;
};

/**
 * The files a page of `model` needs, in copy order: the two applet files from
 * `programFolder` (then the player from there when the page plays), the background
 * image, each button's images (UP, OVER, DOWN) for buttons 1..ButtonCount, then each
 * button's sounds in the same order. Empty paths are left out; a file named by two
 * buttons is listed (and copied) twice.
 */
std::vector<PageFile> pageFiles(const ProjectModel& model, const std::string& programFolder,
                                bool withPlayer = false);

/**
 * The page that preview and build write: the applet code inside a minimal document
 * whose body calls InitJSCaller on load when the code holds the JavaScript block, and
 * with `withPlayer` the line loading the HTML5 player after "</Center>". A page
 * holding characters beyond ASCII starts with a UTF-8 byte-order mark so that
 * browsers read it right; the text is otherwise exactly the same.
 */
std::string pageText(std::string_view code, bool usesJavaScript, bool withPlayer = false);

/// The preview page: AppletTemp/Temp.htm in the writable folder of `programFolder`.
std::string previewPagePath(const std::string& programFolder);

/**
 * The media copy routine: copies the background, image and sound files of `files`
 * into `folder` under their names, skipping a file that already is its own
 * destination. Each failed copy asks OK/Cancel with the message naming the
 * background or the button; Cancel silences the messages for the rest of the run,
 * while the copying goes on. Returns how many files could not be copied.
 */
int copyMediaFiles(const std::vector<PageFile>& files, const std::string& folder,
                   UserInterface& ui);

/**
 * The script that the player loads for a Sun audio sound (a name ending in ".au"),
 * named `name` + ".js": it registers the sound's bytes, in base64, under its name in
 * the page's OrvelinSounds map. Browsers play no Sun audio and a page opened from disk
 * may not read a file beside it, but it may load a script.
 */
std::string soundScriptText(std::string_view name, std::string_view bytes);

/// What the applet code was generated as: its text and whether it calls JavaScript;
/// and whether its page plays through the HTML5 player.
struct PageSource {
    std::string_view code;
    bool usesJavaScript = false;
    bool withPlayer = false;
};

/**
 * Test in Browser: writes the preview page, copies the applet files that
 * `programFolder` holds, the player when the page plays, and the project's media beside it, and
 * opens it: with the desktop's default browser when `program` is empty, else by
 * starting `program` with the page's path. Returns true when the page was handed to a
 * browser; every failure is shown. A page that would play without its player is not
 * written: the message names the missing file.
 */
bool previewPage(const ProjectModel& model, const PageSource& page, const std::string& program,
                 UserInterface& ui, Shell& shell, const std::string& programFolder);

/**
 * Build Applet: writes the page as `target` and copies the applet files of
 * `programFolder` (unless the target's folder is that folder itself), the player when the page
 * plays, and the project's media beside it. A page that cannot be written stops with a message and
 * leaves any earlier file as it was; missing applet files stop with "Can't copy Applet Class files"
 * after the page is written, unless the page plays through the player, which needs no applet.
 * Returns true when nothing failed.
 */
bool buildPage(const ProjectModel& model, const PageSource& page, const std::string& target,
               UserInterface& ui, const std::string& programFolder);

/**
 * Build Applet with the save dialog: the proposed name is the default applet name
 * followed by ".html"; cancelling writes nothing. Returns true when a build ran and
 * nothing failed.
 */
bool buildApplet(const ProjectModel& model, const PageSource& page, UserInterface& ui,
                 const std::string& programFolder);

} // namespace orvelin
