#include "publishing.h"

#include "htmlgenerator.h"
#include "programfolder.h"
#include "textcatalogue.h"
#include "textfile.h"
#include "texthelpers.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

namespace fs = std::filesystem;

namespace orvelin {

namespace {

constexpr ButtonState kStates[] = {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN};

/// Whether two paths name one file, so that copying would put a file onto itself.
bool samePlace(const std::string& a, const std::string& b) {
    std::error_code ec;
    if (fs::equivalent(a, b, ec))
        return true;
    const fs::path left = fs::weakly_canonical(fs::absolute(a, ec), ec);
    const fs::path right = fs::weakly_canonical(fs::absolute(b, ec), ec);
    return left == right;
}

std::optional<std::string> readBytes(const std::string& path) {
    std::error_code ec;
    if (!fs::is_regular_file(path, ec))
        return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    if (in.bad())
        return std::nullopt;
    return bytes;
}

bool isSunAudio(const std::string& name) {
    return name.size() > 3 && toLowerAscii(name.substr(name.size() - 3)) == ".au";
}

/// Copies `file` into `folder`. The copy is written beside its destination and renamed
/// over it, so a disk that fills leaves the earlier file, never half of the new one.
/// A Sun audio sound gets the player's script beside it (see SoundScriptText).
bool copyInto(const PageFile& file, const std::string& folder) {
    const std::string destination = joinPath(folder, file.name);
    const bool same = samePlace(file.source, destination);
    const bool sunAudio = file.kind == PageFile::Kind::Sound && isSunAudio(file.name);
    if (same && !sunAudio)
        return true;
    const std::optional<std::string> bytes = readBytes(file.source);
    return bytes &&
           (!sunAudio ||
            writeFileAtomically(destination + ".js", soundScriptText(file.name, *bytes))) &&
           (same || writeFileAtomically(destination, *bytes));
}

void addFile(std::vector<PageFile>& files, PageFile::Kind kind, int button,
             const std::string& stored, const std::string& projectFolder) {
    if (stored.empty())
        return;
    std::string source = resolveStoredPath(stored, projectFolder);
    if (source.empty())
        source = stored;
    files.push_back({kind, button, std::move(source), encodedFileName(stored)});
}

std::string withCancelHint(std::string text) {
    text.append(kCrLf);
    text.append(kCrLf);
    text.append(texts()[Msg::PressCancelToStop]);
    return text;
}

bool isProgramFile(const PageFile& file) {
    return file.kind == PageFile::Kind::Applet || file.kind == PageFile::Kind::Player;
}

/// Writes the page; a failure names the file and says why. A page that would play
/// without its player shows nothing at all, so it is not written and the message
/// names the missing player.
bool writePage(const std::string& path, const PageSource& page, const std::vector<PageFile>& files,
               UserInterface& ui) {
    std::error_code ec;
    for (const PageFile& file : files) {
        if (file.kind == PageFile::Kind::Player && !fs::is_regular_file(file.source, ec)) {
            ui.showMessage(ReplaceAll(texts()[Msg::PlayerMissing], "%1", file.source));
            return false;
        }
    }
    TextFileError error;
    if (fs::is_directory(path, ec))
        error.description = "it is a folder";
    else if (writeFileAtomically(path, pageText(page.code, page.usesJavaScript, page.withPlayer),
                                 &error))
        return true;
    ui.showMessage(texts()[Msg::PageNotWritten] + path + ": " + error.description);
    return false;
}

/**
 * Copies the applet files and the player into `folder`. An applet file that the
 * program folder does not hold is passed over when `appletOptional`; any other
 * failure shows `appletFailure` (or, for the player, a message naming its
 * destination) and stops.
 */
bool copyProgramFiles(const std::vector<PageFile>& files, const std::string& folder,
                      bool appletOptional, Msg appletFailure, UserInterface& ui) {
    std::error_code ec;
    for (const PageFile& file : files) {
        if (!isProgramFile(file) || copyInto(file, folder))
            continue;
        if (file.kind == PageFile::Kind::Player) {
            ui.showMessage(texts()[Msg::PlayerNotCopied] + joinPath(folder, file.name));
            return false;
        }
        if (!appletOptional || fs::exists(file.source, ec)) {
            ui.showMessage(texts()[appletFailure]);
            return false;
        }
    }
    return true;
}

} // namespace

std::vector<PageFile> pageFiles(const ProjectModel& model, const std::string& programFolder,
                                bool withPlayer) {
    std::vector<PageFile> files;
    for (const char* name : {kAppletClassFile, kAppletArchiveFile})
        files.push_back({PageFile::Kind::Applet, 0, joinPath(programFolder, name), name});
    if (withPlayer)
        files.push_back(
            {PageFile::Kind::Player, 0, joinPath(programFolder, kPlayerFile), kPlayerFile});
    const std::string projectFolder = projectFolderOf(model.ProjectFileName);
    addFile(files, PageFile::Kind::Background, 0, model.BackImg, projectFolder);
    for (int i = 1; i <= lastButton(model); ++i)
        for (ButtonState s : kStates)
            addFile(files, PageFile::Kind::Image, i, model.button(i).image(s), projectFolder);
    for (int i = 1; i <= lastButton(model); ++i)
        for (ButtonState s : kStates)
            addFile(files, PageFile::Kind::Sound, i, model.button(i).sound(s), projectFolder);
    return files;
}

std::string soundScriptText(std::string_view name, std::string_view bytes) {
    static constexpr char kDigits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text = "(window.OrvelinSounds = window.OrvelinSounds || {})[\"";
    for (char c : name) {
        // The name as a script string: the few characters a file name may hold that a
        // string cannot, escaped.
        if (c == '"' || c == '\\' || c == '<' || static_cast<unsigned char>(c) < 0x20) {
            static constexpr char kHex[] = "0123456789abcdef";
            const auto u = static_cast<unsigned char>(c);
            text += "\\x";
            text += kHex[u >> 4];
            text += kHex[u & 15];
        } else {
            text += c;
        }
    }
    text += "\"] =\n\"";
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t n = std::min<std::size_t>(3, bytes.size() - i);
        unsigned v = 0;
        for (std::size_t k = 0; k < 3; ++k)
            v = (v << 8) | (k < n ? static_cast<unsigned char>(bytes[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k)
            text += k <= n ? kDigits[(v >> (18 - 6 * k)) & 63] : '=';
    }
    text += "\";\n";
    return text;
}

std::string pageText(std::string_view code, bool usesJavaScript, bool withPlayer) {
    std::string page;
    const bool beyondAscii = std::any_of(
        code.begin(), code.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
    if (beyondAscii)
        page.append("\xEF\xBB\xBF");
    for (std::string_view line :
         {std::string_view("<Html>"), std::string_view("<Head><Title>Orvelin</Title></Head>"),
          usesJavaScript ? std::string_view("<body onload=\"InitJSCaller();\">")
                         : std::string_view("<Body>"),
          std::string_view("<Center>"), std::string_view()}) {
        page.append(line);
        page.append(kCrLf);
    }
    page.append(code);
    page.append(kCrLf);
    page.append("</Center>");
    page.append(kCrLf);
    if (withPlayer) {
        page.append("<script src=\"");
        page.append(kPlayerFile);
        page.append("\"></script>");
        page.append(kCrLf);
    }
    for (std::string_view line : {"</Body>", "</Html>"}) {
        page.append(line);
        page.append(kCrLf);
    }
    return page;
}

std::string previewPagePath(const std::string& programFolder) {
    return joinPath(writableProgramFolder(programFolder), "AppletTemp/Temp.htm");
}

int copyMediaFiles(const std::vector<PageFile>& files, const std::string& folder,
                   UserInterface& ui) {
    int failed = 0;
    bool showMessages = true;
    for (const PageFile& file : files) {
        if (isProgramFile(file) || copyInto(file, folder))
            continue;
        ++failed;
        if (!showMessages)
            continue;
        const std::string text =
            file.kind == PageFile::Kind::Background
                ? texts()[Msg::CantCopyBackground]
                : texts()[Msg::CantCopyButtonFiles] + std::to_string(file.button);
        showMessages = ui.askOkCancel(withCancelHint(text)) != UserInterface::Answer::Cancel;
    }
    return failed;
}

bool previewPage(const ProjectModel& model, const PageSource& page, const std::string& program,
                 UserInterface& ui, Shell& shell, const std::string& programFolder) {
    const std::string path = previewPagePath(programFolder);
    const std::string folder = folderOf(path);
    std::error_code ec;
    fs::create_directories(folder, ec); // an existing folder is no error
    const std::vector<PageFile> files = pageFiles(model, programFolder, page.withPlayer);
    if (!writePage(path, page, files, ui))
        return false;
    // The applet files are not part of this program: a machine without them still
    // previews the page, but one that has them must get them copied.
    if (!copyProgramFiles(files, folder, true, Msg::CantCopyClassFiles, ui))
        return false;
    copyMediaFiles(files, folder, ui);

    const bool opened =
        program.empty() ? shell.openDocument(path) : shell.startProgram(program, {path});
    if (!opened)
        ui.showMessage(path + texts()[Msg::PageNotOpened]);
    return opened;
}

bool buildPage(const ProjectModel& model, const PageSource& page, const std::string& target,
               UserInterface& ui, const std::string& programFolder) {
    const std::vector<PageFile> files = pageFiles(model, programFolder, page.withPlayer);
    if (!writePage(target, page, files, ui))
        return false;
    const std::string folder = folderOf(target);
    // A failure leaves the page: it is complete, only what plays it is missing. A page
    // that the player plays needs no applet files.
    if (!copyProgramFiles(files, folder, page.withPlayer, Msg::CantCopyAppletClassFiles, ui))
        return false;
    return copyMediaFiles(files, folder, ui) == 0;
}

bool buildApplet(const ProjectModel& model, const PageSource& page, UserInterface& ui,
                 const std::string& programFolder) {
    const std::optional<std::string> target = ui.chooseSaveFile(
        texts()[Msg::PageFileFilter], defaultAppletName(model.ProjectFileName) + ".html");
    return target && buildPage(model, page, *target, ui, programFolder);
}

} // namespace orvelin
