#pragma once

#include "projectmodel.h"

#include <string>
#include <string_view>

/**
 * The applet code: the HTML fragment whose <applet> tag and <Param> lines carry the
 * whole design to the applet. The applet parses these lines by position and by "|",
 * so every separator, field order and encoding here is part of its contract.
 * Standard library only; the HTML window shows what MakeHTML returns.
 */
namespace orvelin {

/// The maker's own data, written into the opening banner and the notice parameter.
inline constexpr const char* kMakerWebAddress = "https://orvelin.org";
inline constexpr const char* kMakerEmail = "hello@orvelin.org";
inline constexpr const char* kCopyrightLine =
    "Orvelin 1.0  Beta 6  (c) 2026 The Orvelin developers";

/// The applet files the tag names; they live in the program folder.
inline constexpr const char* kAppletClassFile = "Orvel1b6.class";
inline constexpr const char* kAppletArchiveFile = "Orvel1b6.jar";

struct GeneratedHtml {
    std::string text; ///< the whole fragment, every line ended by CR LF
    /// A button links to "javascript:...": the page holds the JSCaller block and
    /// must call InitJSCaller on load.
    bool usesJavaScript = false;
};

/**
 * The applet code for `model`, the applet named `appletName` in the tag and in "p";
 * `jsCaller` (see GetJSCaller) follows the tag when a button calls JavaScript.
 */
GeneratedHtml MakeHTML(const ProjectModel& model, std::string_view appletName,
                       std::string_view jsCaller);

/// The applet name a page is made with: an unnamed applet first gets its default
/// (DefaultAppletName), which the model keeps.
const std::string& nameTheApplet(ProjectModel& model);

/**
 * The name an unnamed applet gets: "Orvelin" for a project without a file, else the
 * file's bare name (as the applet would receive it) minus its last four characters
 * (the ".orv"), made safe with DecodeLabel and MakeIdentifier.
 */
std::string defaultAppletName(std::string_view projectFileName);

/// What the applet-name box does on every key release: the box keeps what was
/// typed, the model gets MakeIdentifier(DecodeLabel(typed)).
void setAppletNameFromBox(ProjectModel& model, std::string_view typed);

/// True when some button's URL, in lower case, starts with "javascript:".
bool usesJavaScript(const ProjectModel& model);

/**
 * The JSCaller block of `programFolder`'s Orvel.ini with every "AppletName"
 * replaced by `appletName`: each line between "[JSCALLER]" and "[END OF JSCALLER]"
 * as CR LF followed by the line, so the result starts with CR LF. A missing or
 * unreadable file gives the empty text, without a message.
 */
std::string GetJSCaller(std::string_view appletName, const std::string& programFolder);
/// The same, from a given file.
std::string jsCallerFromFile(const std::string& iniPath, std::string_view appletName);

/// A file's name as the applet receives it, and as publishing names its copy: the bare
/// name (after the last "/" or "\") through EncodeLabel ("home up.gif" -> "home&nbspup.gif").
std::string encodedFileName(std::string_view path);

/// The last button the applet code holds: ButtonCount, kept inside the button table.
int lastButton(const ProjectModel& model);

} // namespace orvelin
