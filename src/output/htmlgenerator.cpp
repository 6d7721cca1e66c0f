#include "htmlgenerator.h"

#include "messages.h"
#include "programfolder.h"
#include "textfile.h"
#include "texthelpers.h"

#include <charconv>
#include <string>

namespace orvelin {

namespace {

constexpr char kDq = '"';

/// Every occurrence, left to right, in one pass: an applet name that itself holds
/// "AppletName" must not be expanded again.
std::string replaceOnce(std::string_view text, std::string_view search,
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

void appendLine(std::string& out, std::string_view line) {
    out.append(line);
    out.append(kCrLf);
}

/// <Param Name="name" value="value">
void appendParam(std::string& out, std::string_view name, std::string_view value) {
    out.append("<Param Name=\"");
    out.append(name);
    out.append("\" value=\"");
    out.append(value);
    out += kDq;
    out += '>';
    out.append(kCrLf);
}

void appendField(std::string& out, std::string_view field) {
    out.append(field);
    out += '|';
}

/// A colour field's stored decimal text back as its value (FieldText wrote it).
std::int32_t colourValue(std::string_view stored) {
    std::int32_t colour = 0;
    std::from_chars(stored.data(), stored.data() + stored.size(), colour);
    return colour;
}

void appendField(std::string& out, std::int32_t number) {
    appendField(out, std::to_string(number));
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
    for (int i = 1; i <= model.ButtonCount; ++i) {
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
            block.append(replaceOnce(line, "AppletName", appletName));
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
    value.reserve(128 + model.AppletProgramOVER.size() + model.AppletProgramDOWN.size() +
                  model.AppletProgramOUT.size() + model.AppletProgramStart.size());
    appendField(value, model.AppletName);
    appendField(value, model.ButtonCount);
    appendField(value, model.Behaviour);
    appendField(value, model.DOWNBtn);
    appendField(value, ColorToWeb(model.BackGround));
    appendField(value, fileNameField(model.BackImg));
    appendField(value, model.BackImgStyle);
    appendField(value, "0");
    appendField(value, ""); // reserved for the applet build; kept empty
    appendField(value, model.AppletProgramOVER);
    appendField(value, model.AppletProgramDOWN);
    appendField(value, model.AppletProgramOUT);
    appendField(value, model.BgOffsetX);
    appendField(value, model.BgOffsetY);
    appendField(value, "\\n"); // the applet reads a literal backslash-n, not a line break
    appendField(value, model.AppletProgramStart);
    appendField(value, ""); // reserved for the applet build; kept empty
    return value;
}

std::string ButtonParameterValue(const ButtonRecord& button) {
    std::string value;
    value.reserve(256);
    const auto& fields = ButtonFields();
    for (int pos = 0; pos < kButtonFieldCount; ++pos) {
        const std::string stored = FieldText(button, pos);
        switch (fields[static_cast<std::size_t>(pos)].kind) {
        case FieldKind::Int16:
        case FieldKind::Raw:
            appendField(value, stored);
            break;
        case FieldKind::Color:
            appendField(value, ColorToWeb(colourValue(stored)));
            break;
        case FieldKind::Label:
        case FieldKind::Text:
            appendField(value, EncodeLabel(stored));
            break;
        case FieldKind::File:
            appendField(value, fileNameField(stored));
            break;
        }
    }
    return value;
}

GeneratedHtml MakeHTML(ProjectModel& model, UserInterface* progress) {
    if (model.AppletName.empty())
        model.AppletName = DefaultAppletName(model.ProjectFileName);

    if (progress)
        progress->showProgress(Messages()[Msg::PleaseWait], Messages()[Msg::GeneratingHtml], -1);

    GeneratedHtml result;
    std::string& out = result.text;
    out.reserve(1024 + static_cast<std::size_t>(model.ButtonCount) * 400);

    out.append("<!-- BEGIN GENERATED CODE: Orvelin: ");
    out.append(kMakerWebAddress);
    out.append(" -->");
    out.append(kCrLf);

    out.append("<applet name = \"");
    out.append(model.AppletName);
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

    appendParam(out, "CopyRight",
                std::string("* ") + kCopyrightLine + "   *   " + kMakerWebAddress + "   *   " +
                    kMakerEmail + "   *");
    appendParam(out, "p", AppletParameterValue(model));
    for (int i = 1; i <= model.ButtonCount; ++i)
        appendParam(out, std::to_string(i), ButtonParameterValue(model.Button(i)));
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
