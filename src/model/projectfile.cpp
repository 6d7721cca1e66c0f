#include "projectfile.h"

#include "messages.h"
#include "privateprofile.h"
#include "textfile.h"
#include "texthelpers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace orvelin {

namespace {

constexpr int kAppletFieldCount = 15;
constexpr int kAppletNameField = 15; // one past what the writer produces, on purpose
constexpr int kLastButtonSlot = kButtonSlots - 1;

constexpr std::array<std::string_view, 5> kEarlierHeaders = {
    "Orvelin Project 1.0  Beta 5", "Orvelin Project 1.0  Beta 4", "Tessaly Project 1.0  Beta 3",
    "Orvelin Project 1.0  Beta 3", "Tessaly Project 1.0  Beta 2"};

using AppletFieldRef = std::variant<std::monostate, std::int16_t*, std::int32_t*, std::string*>;

// The applet line's fields by position; 14 is the applet name as the writer puts it.
AppletFieldRef appletField(ProjectModel& m, int pos) {
    switch (pos) {
    case 0:
        return &m.AppletWidth;
    case 1:
        return &m.AppletHeight;
    case 2:
        return &m.ButtonCount;
    case 3:
        return &m.Behaviour;
    case 4:
        return &m.DOWNBtn;
    case 5:
        return &m.BackGround;
    case 6:
        return &m.BackImg;
    case 7:
        return &m.BackImgStyle;
    case 8:
        return &m.AppletProgramOVER;
    case 9:
        return &m.AppletProgramDOWN;
    case 10:
        return &m.AppletProgramOUT;
    case 11:
        return &m.BgOffsetX;
    case 12:
        return &m.BgOffsetY;
    case 13:
        return &m.AppletProgramStart;
    case 14:
        return &m.AppletName;
    default:
        return {};
    }
}

/// Where a load stopped: the button being read (0 before the first) and why.
struct LoadError {
    int button = 0;
    std::string cause;
};

std::optional<LoadError> assignNumber(AppletFieldRef ref, std::string_view text) {
    const bool wide = std::holds_alternative<std::int32_t*>(ref);
    const WholeNumber n = wide ? ParseWholeNumber(text, std::numeric_limits<std::int32_t>::min(),
                                                  std::numeric_limits<std::int32_t>::max())
                               : ParseWholeNumber(text, std::numeric_limits<std::int16_t>::min(),
                                                  std::numeric_limits<std::int16_t>::max());
    if (n.error != NumberError::None)
        return LoadError{0, NumberErrorText(n.error)};
    if (wide)
        *std::get<std::int32_t*>(ref) = static_cast<std::int32_t>(n.value);
    else
        *std::get<std::int16_t*>(ref) = static_cast<std::int16_t>(n.value);
    return std::nullopt;
}

std::optional<LoadError> assignAppletField(ProjectModel& model, int pos, std::string_view text) {
    const AppletFieldRef ref = appletField(model, pos);
    if (auto s = std::get_if<std::string*>(&ref)) {
        (*s)->assign(text);
        return std::nullopt;
    }
    return assignNumber(ref, text);
}

// Fields 0 to 13 set the applet, 14 is passed over and 15 (never written) names it.
std::optional<LoadError> parseAppletLine(std::string_view line, ProjectModel& model) {
    int pos = 0;
    std::size_t start = 0;
    for (std::size_t bar; (bar = line.find('|', start)) != std::string_view::npos; ++pos) {
        const std::string_view field = line.substr(start, bar - start);
        start = bar + 1;
        if (pos < kAppletFieldCount - 1) {
            if (auto error = assignAppletField(model, pos, field))
                return error;
        } else if (pos == kAppletNameField) {
            model.AppletName.assign(field);
            break;
        }
    }
    return std::nullopt;
}

void appendNumber(std::string& out, std::int32_t value) {
    char digits[16];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    out.append(digits, static_cast<std::size_t>(end.ptr - digits));
}

/// "... button i of n" into `text`, which keeps its storage from one button to the next.
void setProgressText(std::string& text, Msg what, int i, int n) {
    const MessageTable& msg = Messages();
    text.assign(msg[what]);
    appendNumber(text, i);
    text += msg[Msg::OfWord];
    appendNumber(text, n);
}

int percentOf(int i, int n) {
    return n > 0 ? i * 100 / n : 100;
}

std::optional<LoadError> inputPastEnd(int button) {
    return LoadError{button, "Input past end of file"};
}

std::optional<LoadError> checkButtonCount(int count) {
    // Slots run from 0 to 102; a count beyond them (or below zero) has no buttons to fill.
    if (count < 0 || count > kLastButtonSlot)
        return LoadError{0, "Subscript out of range"};
    return std::nullopt;
}

std::optional<LoadError> readProject(ProjectModel& model, const std::string& path,
                                     UserInterface& ui) {
    TextFileError fileError;
    const std::optional<std::string> text = ReadTextFile(path, &fileError);
    if (!text)
        return LoadError{0, fileError.description};
    model.LoadedFrom = path;
    bool lastTerminated = true;
    // The header, the applet line and the most buttons a file can hold: the lines after
    // them are not the project's, and however many there are they cost nothing.
    const std::vector<std::string_view> lines =
        SplitLines(*text, &lastTerminated, static_cast<std::size_t>(kLastButtonSlot) + 2);
    // The file is read as a stream: a last line that the file cuts off before its
    // line break counts only when all its separators are there.
    const auto complete = [&](std::size_t index, std::size_t separators) {
        return index + 1 < lines.size() || lastTerminated ||
               static_cast<std::size_t>(
                   std::count(lines[index].begin(), lines[index].end(), '|')) >= separators;
    };

    if (lines.empty())
        return inputPastEnd(0);
    const std::string_view header = lines[0];
    if (std::find(kEarlierHeaders.begin(), kEarlierHeaders.end(), header) !=
        kEarlierHeaders.end()) {
        const MessageTable& msg = Messages();
        ui.showMessage(msg[Msg::EarlierVersion] + std::string(kCrLf) + std::string(kCrLf) +
                           msg[Msg::EarlierVersionNote] + kVersionText,
                       msg[Msg::EarlierVersionTitle]);
    }
    // Any other header is read on as if it were current.

    if (lines.size() < 2 || !complete(1, kAppletFieldCount))
        return inputPastEnd(0);
    if (auto error = parseAppletLine(lines[1], model))
        return error;
    if (auto error = checkButtonCount(model.ButtonCount))
        return error;

    const int count = model.ButtonCount;
    std::string progress;
    for (int i = 1; i <= count; ++i) {
        const std::size_t index = static_cast<std::size_t>(i) + 1;
        if (index >= lines.size() || !complete(index, kButtonFieldCount))
            return inputPastEnd(i);
        setProgressText(progress, Msg::LoadingButton, i, count);
        ui.showProgress(Messages()[Msg::PleaseWait], progress, percentOf(i, count));
        if (FieldError e = ParseButton(lines[index], model.Button(i)))
            return LoadError{i, e.description};
    }
    return std::nullopt; // lines after the last button are not the project's
}

// Legacy keys per button, in the order the old format reads them: the key is the
// field's name, "_" and the button number; `fallback` is what a missing key gives.
struct LegacyKey {
    int pos;
    const char* fallback;
};
// clang-format off
constexpr std::array<LegacyKey, 34> kLegacyButtonKeys = {{
    {0, "0"}, {1, "0"}, {2, "0"}, {3, "0"},
    {4, ""}, {5, ""}, {6, ""}, {7, ""}, {8, ""}, {9, ""},
    {16, "0"}, {17, "0"}, {18, "0"},
    {28, "10"}, {29, "10"}, {30, "10"},
    {22, "Arial"}, {23, "Arial"}, {24, "Arial"},
    {25, "0"}, {26, "0"}, {27, "0"},
    {19, "0"}, {20, "0"}, {21, "0"},
    {13, ""}, {14, ""}, {15, ""},
    {31, ""}, {32, ""}, {33, ""},
    {10, "1"}, {11, "0"}, {12, "0"},
}};
// clang-format on

constexpr std::array<const char*, 9> kLegacyAppletKeys = {
    "Version",     "ButtonCount",  "BackGround", "Behaviour",   "DOWNBtn",
    "AppletWidth", "AppletHeight", "BackImg",    "BackImgStyle"};

// Every key the legacy reader may ask for: the profile keeps no others.
const std::vector<std::string>& legacyKeys() {
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> all(kLegacyAppletKeys.begin(), kLegacyAppletKeys.end());
        for (int i = 1; i <= kLastButtonSlot; ++i)
            for (const LegacyKey& key : kLegacyButtonKeys)
                all.push_back(std::string(ButtonFields()[static_cast<std::size_t>(key.pos)].name) +
                              "_" + std::to_string(i));
        return all;
    }();
    return keys;
}

std::optional<LoadError> readLegacyProject(ProjectModel& model, const std::string& path,
                                           UserInterface& ui) {
    TextFileError fileError;
    const std::optional<std::string> text = ReadTextFile(path, &fileError);
    if (!text)
        return LoadError{0, fileError.description};
    model.LoadedFrom = path;
    constexpr std::string_view section = "Buttons";
    const PrivateProfile profile = PrivateProfile::fromText(*text, section, legacyKeys());
    profile.value(section, "Version", "-1"); // read by the old format, used by no one

    struct AppletKey {
        const char* key;
        const char* fallback;
        AppletFieldRef ref;
    };
    const std::array<AppletKey, 8> appletKeys = {{
        {"ButtonCount", "0", &model.ButtonCount},
        {"BackGround", "0", &model.BackGround},
        {"Behaviour", "0", &model.Behaviour},
        {"DOWNBtn", "0", &model.DOWNBtn},
        {"AppletWidth", "510", &model.AppletWidth},
        {"AppletHeight", "170", &model.AppletHeight},
        {"BackImg", "", &model.BackImg},
        {"BackImgStyle", "0", &model.BackImgStyle},
    }};
    for (const AppletKey& k : appletKeys) {
        const std::string value = profile.value(section, k.key, k.fallback);
        if (auto s = std::get_if<std::string*>(&k.ref))
            **s = value;
        else if (auto error = assignNumber(k.ref, value))
            return error;
    }
    if (auto error = checkButtonCount(model.ButtonCount))
        return error;

    const int count = model.ButtonCount;
    std::string progress;
    for (int i = 1; i <= count; ++i) {
        setProgressText(progress, Msg::LoadingButton, i, count);
        ui.showProgress(Messages()[Msg::PleaseWait], progress, percentOf(i, count));
        ButtonRecord& record = model.Button(i);
        const std::string suffix = "_" + std::to_string(i);
        for (const LegacyKey& key : kLegacyButtonKeys) {
            const std::string name = ButtonFields()[static_cast<std::size_t>(key.pos)].name;
            const std::string value = profile.value(section, name + suffix, key.fallback);
            // Labels are taken as stored: the old format never encoded them.
            if (FieldError e = SetFieldText(record, key.pos, value))
                return LoadError{i, e.description};
        }
    }
    return std::nullopt;
}

constexpr std::size_t kCleanedLinesShown = 10;

/**
 * Removes from the loaded applet fields and buttons what their fields cannot hold (a
 * damaged or hand-made file may put a double quote into a font name, which would end
 * its parameter in every page built). Returns one line per place that changed, such
 * as "Button 3: FontUP, URL".
 */
std::vector<std::string> cleanLoadedFields(ProjectModel& model) {
    std::vector<std::string> lines;
    const MessageTable& msg = Messages();
    const std::pair<std::string*, const char*> appletTexts[] = {
        {&model.BackImg, "BackImg"},
        {&model.AppletProgramOVER, "AppletProgramOVER"},
        {&model.AppletProgramDOWN, "AppletProgramDOWN"},
        {&model.AppletProgramOUT, "AppletProgramOUT"},
        {&model.AppletProgramStart, "AppletProgramStart"},
        {&model.AppletName, "AppletName"}};
    std::string names;
    for (const auto& [text, name] : appletTexts) {
        const FieldKind kind = text == &model.BackImg ? FieldKind::File : FieldKind::Raw;
        if (CleanFieldInPlace(kind, *text))
            names += (names.empty() ? "" : ", ") + std::string(name);
    }
    if (!names.empty())
        lines.push_back(msg[Msg::AppletPrefix] + ": " + names);
    for (int i = 1; i <= model.ButtonCount; ++i) {
        names.clear();
        for (const int pos : CleanTextFields(model.Button(i)))
            names += (names.empty() ? "" : ", ") +
                     std::string(ButtonFields()[static_cast<std::size_t>(pos)].name);
        if (!names.empty())
            lines.push_back(msg[Msg::ButtonPrefix] + std::to_string(i) + ": " + names);
    }
    return lines;
}

// Shared end of both readers: keep what was read completely, clean it and tell the user.
bool finishLoad(ProjectModel& model, const std::string& path, UserInterface& ui,
                const std::optional<LoadError>& error) {
    ui.hideProgress();
    if (error)
        model.ButtonCount = static_cast<std::int16_t>(error->button >= 2 ? error->button - 1 : 0);
    const std::vector<std::string> cleaned = cleanLoadedFields(model);
    if (error)
        ui.showMessage(Messages()[Msg::ErrorLoading] + std::string(kCrLf) + error->cause);
    if (!cleaned.empty()) {
        std::string text = Messages()[Msg::CharactersRemoved];
        for (std::size_t i = 0; i < cleaned.size() && i < kCleanedLinesShown; ++i)
            text.append(kCrLf).append(cleaned[i]);
        if (cleaned.size() > kCleanedLinesShown)
            text.append(kCrLf).append("...");
        ui.showMessage(text);
    }
    if (error)
        return false;
    model.Saved = true;
    model.ProjectFileName = path;
    return true;
}

void startLoad(ProjectModel& model, UserInterface& ui) {
    ui.showProgress(Messages()[Msg::PleaseWait], Messages()[Msg::LoadingProject], -1);
    model.ButtonCount = 0;
    model.CurrentButton = 0;
    // Until the new file gives content, what is shown (the applet's background) is
    // still the old project's, and so is the folder its relative paths are read from.
    model.LoadedFrom = model.FileForRelativePaths();
    model.ProjectFileName.clear();
}

/// Room for the saved text, so that it is built without moving: the texts of the
/// buttons (labels twice over, as their blanks grow when encoded) and their numbers.
std::size_t expectedTextSize(const ProjectModel& model, int count) {
    std::size_t size = 1024 + model.BackImg.size() + model.AppletProgramOVER.size() +
                       model.AppletProgramDOWN.size() + model.AppletProgramOUT.size() +
                       model.AppletProgramStart.size() + model.AppletName.size();
    for (int i = 1; i <= count; ++i) {
        const ButtonRecord& r = model.Button(i);
        size += 400 + r.URL.size() + r.Status.size() + r.Target.size();
        for (const ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN})
            size += 2 * r.Label(s).size() + r.Image(s).size() + r.Font(s).size() +
                    r.Sound(s).size() + r.Program(s).size();
    }
    return size;
}

} // namespace

std::string ProjectHeader() {
    return std::string("Orvelin Project ") + kVersionText;
}

std::string ProjectText(const ProjectModel& model, UserInterface* progress) {
    const int count = std::clamp<int>(model.ButtonCount, 0, kLastButtonSlot);
    std::string text;
    text.reserve(expectedTextSize(model, count));
    text += ProjectHeader();
    text += kCrLf;
    // appletField only hands out pointers; reading through them does not modify.
    auto& readable = const_cast<ProjectModel&>(model);
    for (int pos = 0; pos < kAppletFieldCount; ++pos) {
        const AppletFieldRef ref = appletField(readable, pos);
        if (auto s = std::get_if<std::string*>(&ref))
            text += **s;
        else if (auto i16 = std::get_if<std::int16_t*>(&ref))
            appendNumber(text, **i16);
        else
            appendNumber(text, *std::get<std::int32_t*>(ref));
        text += '|';
    }
    text += kCrLf;
    std::string progressLine;
    for (int i = 1; i <= count; ++i) {
        if (progress) {
            setProgressText(progressLine, Msg::SavingButton, i, count);
            progress->showProgress(Messages()[Msg::PleaseWait], progressLine, percentOf(i, count));
        }
        AppendSerializedButton(text, model.Button(i));
        text += kCrLf;
    }
    return text;
}

bool SaveProject(ProjectModel& model, const std::string& path, UserInterface& ui) {
    ui.showProgress(Messages()[Msg::PleaseWait], Messages()[Msg::SavingButtonsToFile], -1);
    const std::string text = ProjectText(model, &ui);
    TextFileError error;
    const bool written = WriteFileAtomically(path, text, &error);
    ui.hideProgress();
    if (!written) {
        ui.showMessage(WithSystemCause(Messages()[Msg::ErrorSaving], error));
        return false;
    }
    model.Saved = true;
    return true;
}

bool LoadProject(ProjectModel& model, const std::string& path, UserInterface& ui) {
    startLoad(model, ui);
    const std::optional<LoadError> error = readProject(model, path, ui);
    return finishLoad(model, path, ui, error);
}

bool LoadProject_OLD(ProjectModel& model, const std::string& path, UserInterface& ui) {
    startLoad(model, ui);
    const std::optional<LoadError> error = readLegacyProject(model, path, ui);
    return finishLoad(model, path, ui, error);
}

} // namespace orvelin
