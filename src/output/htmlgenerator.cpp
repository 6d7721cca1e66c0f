#include "htmlgenerator.h"

#include "messages.h"
#include "programfolder.h"
#include "textfile.h"
#include "texthelpers.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace orvelin {

namespace {

constexpr char kDq = '"';

/// Every occurrence, left to right, in one pass: an applet name that itself holds
/// "AppletName" must not be expanded again.
std::string replaceInOnePass(std::string_view text, std::string_view search,
                             std::string_view replacement) {
    std::string out;
    out.reserve(text.size());
    std::size_t start = 0;
    for (std::size_t at = text.find(search); at != std::string_view::npos;
         at = text.find(search, start)) {
        out.append(text.substr(start, at - start));
        out.append(replacement);
        start = at + search.size();
    }
    out.append(text.substr(start));
    return out;
}

/// `text` without its last `count` characters; a UTF-8 sequence counts as one.
std::string_view dropLastCharacters(std::string_view text, int count) {
    std::size_t end = text.size();
    for (int i = 0; i < count && end > 0; ++i) {
        --end;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
            --end;
    }
    return text.substr(0, end);
}

std::string fileNameField(std::string_view path) {
    return EncodeLabel(BareFileName(path));
}

/// The last button to write: ButtonCount, kept inside the button table.
int lastButton(const ProjectModel& model) {
    return std::min<int>(model.ButtonCount, kButtonSlots - 1);
}

void appendLine(std::string& out, std::string_view line) {
    out.append(line);
    out.append(kCrLf);
}

void openParam(std::string& out, std::string_view name) {
    out.append("<Param Name=\"");
    out.append(name);
    out.append("\" value=\"");
}

void closeParam(std::string& out) {
    out += kDq;
    out += '>';
    out.append(kCrLf);
}

/// `text` without what an attribute value read by "|" cannot hold (a double quote would
/// end it, a "|" shift the fields, a line break split the line): whatever the model holds,
/// every parameter stays inside its quotes with its fields in place.
void appendParameterText(std::string& out, std::string_view text) {
    const auto holds = [](char c) { return FieldCanHold(FieldKind::Raw, c); };
    if (std::all_of(text.begin(), text.end(), holds)) {
        out.append(text);
        return;
    }
    for (const char c : text)
        if (holds(c))
            out += c;
}

// The field writers below each add one field in its applet encoding and the "|"
// that ends it.

void raw(std::string& out, std::string_view field) {
    appendParameterText(out, field);
    out += '|';
}

void integer(std::string& out, std::int32_t number) {
    char digits[12];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    out.append(digits, end);
    out += '|';
}

void text(std::string& out, std::string_view field) {
    raw(out, EncodeLabel(field));
}

void fileName(std::string& out, std::string_view path) {
    raw(out, fileNameField(path));
}

void colour(std::string& out, std::int32_t value) {
    raw(out, ColorToWeb(value));
}

void appendAppletValue(std::string& out, const ProjectModel& m) {
    raw(out, m.AppletName);
    integer(out, m.ButtonCount);
    integer(out, m.Behaviour);
    integer(out, m.DOWNBtn);
    colour(out, m.BackGround);
    fileName(out, m.BackImg);
    integer(out, m.BackImgStyle);
    raw(out, "0");
    raw(out, ""); // reserved for the applet build; kept empty
    raw(out, m.AppletProgramOVER);
    raw(out, m.AppletProgramDOWN);
    raw(out, m.AppletProgramOUT);
    integer(out, m.BgOffsetX);
    integer(out, m.BgOffsetY);
    raw(out, "\\n"); // the applet reads a literal backslash-n here, not a line break
    raw(out, m.AppletProgramStart);
    raw(out, ""); // reserved for the applet build; kept empty
}

/**
 * The 50 fields in the order of the button record, written member by member rather
 * than through the generic field table: a full project has 5050 of them, and this
 * keeps generation close to the cost of copying its bytes.
 */
void appendButtonValue(std::string& out, const ButtonRecord& b) {
    constexpr ButtonState kStates[] = {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN};
    integer(out, b.x);
    integer(out, b.y);
    integer(out, b.Width);
    integer(out, b.Height);
    for (ButtonState s : kStates)
        text(out, b.Label(s));
    text(out, b.URL);
    text(out, b.Status);
    text(out, b.Target);
    integer(out, b.Border);
    integer(out, b.noBackGround);
    integer(out, b.ShowHand);
    for (ButtonState s : kStates)
        fileName(out, b.Image(s));
    for (ButtonState s : kStates)
        colour(out, b.BackColor(s));
    for (ButtonState s : kStates)
        colour(out, b.FontColor(s));
    for (ButtonState s : kStates)
        raw(out, b.Font(s));
    for (ButtonState s : kStates)
        raw(out, b.FontStyle(s));
    for (ButtonState s : kStates)
        integer(out, b.FontSize(s));
    for (ButtonState s : kStates)
        fileName(out, b.Sound(s));
    for (ButtonState s : kStates)
        integer(out, b.ImgStyle(s));
    for (ButtonState s : kStates)
        integer(out, b.PositionText(s));
    for (ButtonState s : kStates) {
        integer(out, b.LabelPosX(s));
        integer(out, b.LabelPosY(s));
    }
    integer(out, b.Hidden);
    for (ButtonState s : kStates)
        raw(out, b.Program(s));
}

} // namespace

std::string DefaultAppletName(std::string_view projectFileName) {
    if (projectFileName.empty())
        return MakeIdentifier(DecodeLabel("Orvelin"));
    const std::string encoded = fileNameField(projectFileName);
    return MakeIdentifier(DecodeLabel(dropLastCharacters(encoded, 4)));
}

void SetAppletNameFromBox(ProjectModel& model, std::string_view typed) {
    model.AppletName = MakeIdentifier(DecodeLabel(typed));
}

bool UsesJavaScript(const ProjectModel& model) {
    for (int i = 1; i <= lastButton(model); ++i) {
        if (StartsWith(ToLowerAscii(model.Button(i).URL), "javascript:"))
            return true;
    }
    return false;
}

std::string JSCallerFromFile(const std::string& iniPath, std::string_view appletName) {
    const std::optional<std::string> content = ReadTextFile(iniPath);
    if (!content)
        return {};
    std::string block;
    bool started = false;
    for (std::string_view line : SplitLines(*content)) {
        const std::string upper = ToUpperAscii(line);
        if (upper == "[END OF JSCALLER]")
            break;
        if (started) {
            block.append(kCrLf);
            block.append(replaceInOnePass(line, "AppletName", appletName));
        }
        // Tested after copying, so the start marker line itself never reaches the page.
        if (upper == "[JSCALLER]")
            started = true;
    }
    return block;
}

std::string GetJSCaller(std::string_view appletName) {
    return JSCallerFromFile(JoinPath(ProgramFolder(), "Orvel.ini"), appletName);
}

std::string AppletParameterValue(const ProjectModel& model) {
    std::string value;
    appendAppletValue(value, model);
    return value;
}

std::string ButtonParameterValue(const ButtonRecord& button) {
    std::string value;
    appendButtonValue(value, button);
    return value;
}

GeneratedHtml MakeHTML(ProjectModel& model, UserInterface* progress) {
    if (model.AppletName.empty())
        model.AppletName = DefaultAppletName(model.ProjectFileName);

    if (progress)
        progress->showProgress(Messages()[Msg::PleaseWait], Messages()[Msg::GeneratingHtml], -1);

    GeneratedHtml result;
    std::string& out = result.text;
    out.reserve(1024 + static_cast<std::size_t>(model.ButtonCount) * 768);

    out.append("<!-- BEGIN GENERATED CODE: Orvelin: ");
    out.append(kMakerWebAddress);
    out.append(" -->");
    out.append(kCrLf);

    out.append("<applet name = \"");
    appendParameterText(out, model.AppletName);
    out.append("\" code=\"");
    out.append(kAppletClassFile);
    out.append("\" archive=\"");
    out.append(kAppletArchiveFile);
    out.append("\" width=");
    out.append(std::to_string(model.AppletWidth));
    out.append(" height=");
    out.append(std::to_string(model.AppletHeight));
    out.append(" MAYSCRIPT>");
    out.append(kCrLf);

    openParam(out, "CopyRight");
    out.append("* ");
    out.append(kCopyrightLine);
    out.append("   *   ");
    out.append(kMakerWebAddress);
    out.append("   *   ");
    out.append(kMakerEmail);
    out.append("   *");
    closeParam(out);

    openParam(out, "p");
    appendAppletValue(out, model);
    closeParam(out);

    for (int i = 1; i <= lastButton(model); ++i) {
        openParam(out, std::to_string(i));
        appendButtonValue(out, model.Button(i));
        closeParam(out);
    }
    appendLine(out, "</applet>");

    result.usesJavaScript = UsesJavaScript(model);
    if (result.usesJavaScript)
        appendLine(out, GetJSCaller(model.AppletName));

    appendLine(out, "<!-- END GENERATED CODE -->");

    if (progress)
        progress->hideProgress();
    return result;
}

} // namespace orvelin
