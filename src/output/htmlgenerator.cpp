#include "htmlgenerator.h"

#include "messages.h"
#include "programfolder.h"
#include "textfile.h"
#include "texthelpers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace orvelin {

namespace {

constexpr char kDq = '"';

/// Removes from `out`, after `start`, what a Raw field cannot hold.
void cleanTail(std::string& out, std::size_t start) {
    // FieldCanHold as a table: every byte of every parameter passes here.
    static const std::array<bool, 256> refusedBytes = [] {
        std::array<bool, 256> table{};
        for (std::size_t b = 0; b < table.size(); ++b)
            table[b] = !fieldCanHold(FieldKind::Raw, static_cast<char>(b));
        return table;
    }();
    const auto refused = [](char c) { return refusedBytes[static_cast<unsigned char>(c)]; };
    const auto first =
        std::find_if(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), refused);
    if (first != out.end())
        out.erase(std::remove_if(first, out.end(), refused), out.end());
}

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
    const std::size_t start = out.size();
    out.append(text);
    cleanTail(out, start);
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
    const std::size_t start = out.size();
    appendEncodedLabel(out, field);
    cleanTail(out, start);
    out += '|';
}

void fileName(std::string& out, std::string_view path) {
    text(out, path.substr(path.find_last_of("/\\") + 1)); // the bare name, see EncodedFileName
}

void colour(std::string& out, std::int32_t value) {
    raw(out, colorToWeb(value));
}

/// Field `f` of `record` as the applet reads it, followed by its "|".
template <typename R> void appendField(std::string& out, const R& record, const RecordField<R>& f) {
    switch (f.kind) {
    case FieldKind::Int16:
        integer(out, record.*f.number);
        return;
    case FieldKind::Color:
        colour(out, record.*f.colour);
        return;
    case FieldKind::Label:
    case FieldKind::Text:
        text(out, record.*f.text);
        return;
    case FieldKind::File:
        fileName(out, record.*f.text);
        return;
    case FieldKind::Raw:
        raw(out, record.*f.text);
        return;
    }
}

void appendAppletValue(std::string& out, const ProjectModel& m, std::string_view appletName) {
    for (const AppletParameterField& p : appletParameterFields()) {
        if (!p.field)
            raw(out, p.fixed);
        else if (p.field->text == &ProjectModel::AppletName)
            raw(out, appletName); // the name this page gives, which the model may lack
        else
            appendField(out, m, *p.field);
    }
}

void appendButtonValue(std::string& out, const ButtonRecord& b) {
    for (const ButtonField& f : buttonFields())
        appendField(out, b, f);
}

} // namespace

std::string encodedFileName(std::string_view path) {
    return EncodeLabel(bareFileName(path));
}

int lastButton(const ProjectModel& model) {
    return std::min<int>(model.ButtonCount, kButtonSlots - 1);
}

std::string defaultAppletName(std::string_view projectFileName) {
    if (projectFileName.empty())
        return MakeIdentifier(DecodeLabel("Orvelin"));
    const std::string encoded = encodedFileName(projectFileName);
    return MakeIdentifier(DecodeLabel(dropLastCharacters(encoded, 4)));
}

void setAppletNameFromBox(ProjectModel& model, std::string_view typed) {
    model.AppletName = MakeIdentifier(DecodeLabel(typed));
}

bool usesJavaScript(const ProjectModel& model) {
    for (int i = 1; i <= lastButton(model); ++i) {
        if (StartsWith(toLowerAscii(model.button(i).URL), "javascript:"))
            return true;
    }
    return false;
}

std::string jsCallerFromFile(const std::string& iniPath, std::string_view appletName) {
    const std::optional<std::string> content = readTextFile(iniPath);
    if (!content)
        return {};
    std::string block;
    bool started = false;
    for (std::string_view line : splitLines(*content)) {
        const std::string upper = toUpperAscii(line);
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

std::string GetJSCaller(std::string_view appletName, const std::string& programFolder) {
    return jsCallerFromFile(joinPath(programFolder, "Orvel.ini"), appletName);
}

const std::string& nameTheApplet(ProjectModel& model) {
    if (model.AppletName.empty())
        model.AppletName = defaultAppletName(model.ProjectFileName);
    return model.AppletName;
}

GeneratedHtml MakeHTML(const ProjectModel& model, std::string_view appletName,
                       std::string_view jsCaller) {
    GeneratedHtml result;
    std::string& out = result.text;
    out.reserve(1024 + static_cast<std::size_t>(model.ButtonCount) * 768);

    out.append("<!-- BEGIN GENERATED CODE: Orvelin: ");
    out.append(kMakerWebAddress);
    out.append(" -->");
    out.append(kCrLf);

    out.append("<applet name = \"");
    appendParameterText(out, appletName);
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
    appendAppletValue(out, model, appletName);
    closeParam(out);

    for (int i = 1; i <= lastButton(model); ++i) {
        openParam(out, std::to_string(i));
        appendButtonValue(out, model.button(i));
        closeParam(out);
    }
    appendLine(out, "</applet>");

    result.usesJavaScript = usesJavaScript(model);
    if (result.usesJavaScript)
        appendLine(out, jsCaller);

    appendLine(out, "<!-- END GENERATED CODE -->");
    return result;
}

} // namespace orvelin
