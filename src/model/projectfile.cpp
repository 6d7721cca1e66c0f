#include "projectfile.h"

#include "privateprofile.h"
#include "textcatalogue.h"
#include "textfile.h"
#include "texthelpers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace orvelin {

namespace {

constexpr int kAppletNameField = 15; // one past what the writer produces, on purpose
constexpr int kLastButtonSlot = kButtonSlots - 1;

constexpr std::array<std::string_view, 5> kEarlierHeaders = {
    "Orvelin Project 1.0  Beta 5", "Orvelin Project 1.0  Beta 4", "Tessaly Project 1.0  Beta 3",
    "Orvelin Project 1.0  Beta 3", "Tessaly Project 1.0  Beta 2"};

std::optional<LoadError> assignAppletField(ProjectModel& model, const AppletField& f,
                                           std::string_view text) {
    if (FieldError e = setFieldText(model, f, 0, text))
        return LoadError{0, e.description};
    return std::nullopt;
}

// Fields 0 to 13 set the applet, 14 is passed over and 15 (never written) names it.
std::optional<LoadError> parseAppletLine(std::string_view line, ProjectModel& model) {
    int pos = 0;
    std::size_t start = 0;
    for (std::size_t bar; (bar = line.find('|', start)) != std::string_view::npos; ++pos) {
        const std::string_view field = line.substr(start, bar - start);
        start = bar + 1;
        if (pos < kAppletFieldCount - 1) {
            if (auto error =
                    assignAppletField(model, appletFields()[static_cast<std::size_t>(pos)], field))
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

/// "... button i of n" in the progress window; `text` keeps its storage from one button
/// to the next.
void showButtonProgress(ProgressView* progress, std::string& text, Msg what, int i, int n) {
    if (!progress)
        return;
    const TextCatalogue& msg = texts();
    text.assign(msg[what]);
    appendNumber(text, i);
    text += msg[Msg::OfWord];
    appendNumber(text, n);
    progress->showProgress(msg[Msg::PleaseWait], text, n > 0 ? i * 100 / n : 100);
}

std::optional<LoadError> inputPastEnd(int button) {
    return LoadError{button, texts()[Msg::CauseInputPastEnd]};
}

std::optional<LoadError> checkButtonCount(int count) {
    // Slots run from 0 to 102; a count beyond them (or below zero) has no buttons to fill.
    if (count < 0 || count > kLastButtonSlot)
        return LoadError{0, texts()[Msg::CauseSubscriptOutOfRange]};
    return std::nullopt;
}

std::optional<LoadError> readProject(ProjectModel& model, const std::string& path,
                                     ProgressView* progress, LoadResult& result) {
    TextFileError fileError;
    const std::optional<std::string> text = readTextFile(path, &fileError);
    if (!text)
        return LoadError{0, fileError.description};
    model.LoadedFrom = path;
    bool lastTerminated = true;
    // The header, the applet line and the most buttons a file can hold: the lines after
    // them are not the project's, and however many there are they cost nothing.
    const std::vector<std::string_view> lines =
        splitLines(*text, &lastTerminated, static_cast<std::size_t>(kLastButtonSlot) + 2);
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
    result.earlierVersion =
        std::find(kEarlierHeaders.begin(), kEarlierHeaders.end(), header) != kEarlierHeaders.end();
    // Any other header is read on as if it were current.

    if (lines.size() < 2 || !complete(1, kAppletFieldCount))
        return inputPastEnd(0);
    if (auto error = parseAppletLine(lines[1], model))
        return error;
    if (auto error = checkButtonCount(model.ButtonCount))
        return error;

    const int count = model.ButtonCount;
    std::string progressText;
    for (int i = 1; i <= count; ++i) {
        const std::size_t index = static_cast<std::size_t>(i) + 1;
        if (index >= lines.size() || !complete(index, kButtonFieldCount))
            return inputPastEnd(i);
        showButtonProgress(progress, progressText, Msg::LoadingButton, i, count);
        if (FieldError e = parseButton(lines[index], model.button(i)))
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
                all.push_back(std::string(buttonFields()[static_cast<std::size_t>(key.pos)].name) +
                              "_" + std::to_string(i));
        return all;
    }();
    return keys;
}

std::optional<LoadError> readLegacyProject(ProjectModel& model, const std::string& path,
                                           ProgressView* progress) {
    TextFileError fileError;
    const std::optional<std::string> text = readTextFile(path, &fileError);
    if (!text)
        return LoadError{0, fileError.description};
    model.LoadedFrom = path;
    constexpr std::string_view section = "Buttons";
    const PrivateProfile profile = PrivateProfile::fromText(*text, section, legacyKeys());
    profile.value(section, "Version", "-1"); // read by the old format, used by no one

    // The applet settings the old format has, in the order it reads them.
    constexpr std::pair<const char*, const char*> appletKeys[] = {
        {"ButtonCount", "0"},   {"BackGround", "0"},     {"Behaviour", "0"}, {"DOWNBtn", "0"},
        {"AppletWidth", "510"}, {"AppletHeight", "170"}, {"BackImg", ""},    {"BackImgStyle", "0"}};
    for (const auto& [key, fallback] : appletKeys)
        if (auto error = assignAppletField(model, *appletFieldNamed(key),
                                           profile.value(section, key, fallback)))
            return error;
    if (auto error = checkButtonCount(model.ButtonCount))
        return error;

    const int count = model.ButtonCount;
    std::string progressText;
    for (int i = 1; i <= count; ++i) {
        showButtonProgress(progress, progressText, Msg::LoadingButton, i, count);
        ButtonRecord& record = model.button(i);
        const std::string suffix = "_" + std::to_string(i);
        for (const LegacyKey& key : kLegacyButtonKeys) {
            const std::string name = buttonFields()[static_cast<std::size_t>(key.pos)].name;
            const std::string value = profile.value(section, name + suffix, key.fallback);
            // Labels are taken as stored: the old format never encoded them.
            if (FieldError e = setFieldText(record, key.pos, value))
                return LoadError{i, e.description};
        }
    }
    return std::nullopt;
}

/**
 * Removes from the loaded applet fields and buttons what their fields cannot hold (a
 * damaged or hand-made file may put a double quote into a font name, which would end
 * its parameter in every page built). Returns one line per place that changed, such
 * as "Button 3: FontUP, URL".
 */
std::vector<std::string> cleanLoadedFields(ProjectModel& model) {
    std::vector<std::string> lines;
    const TextCatalogue& msg = texts();
    std::string names;
    for (const AppletField& f : appletFields())
        if (f.text && cleanFieldInPlace(f.kind, model.*f.text))
            names += (names.empty() ? "" : ", ") + std::string(f.name);
    if (!names.empty())
        lines.push_back(msg[Msg::AppletPrefix] + ": " + names);
    for (int i = 1; i <= model.ButtonCount; ++i) {
        names.clear();
        for (const int pos : cleanTextFields(model.button(i)))
            names += (names.empty() ? "" : ", ") +
                     std::string(buttonFields()[static_cast<std::size_t>(pos)].name);
        if (!names.empty())
            lines.push_back(msg[Msg::ButtonPrefix] + std::to_string(i) + ": " + names);
    }
    return lines;
}

// Shared end of both readers: keep what was read completely and clean it.
LoadResult finishLoad(ProjectModel& model, const std::string& path, ProgressView* progress,
                      LoadResult result) {
    if (progress)
        progress->hideProgress();
    if (result.error)
        model.ButtonCount =
            static_cast<std::int16_t>(result.error->button >= 2 ? result.error->button - 1 : 0);
    result.cleaned = cleanLoadedFields(model);
    if (!result.error) {
        model.Saved = true;
        model.ProjectFileName = path;
    }
    return result;
}

void startLoad(ProjectModel& model, ProgressView* progress) {
    if (progress)
        progress->showProgress(texts()[Msg::PleaseWait], texts()[Msg::LoadingProject], -1);
    model.ButtonCount = 0;
    model.CurrentButton = 0;
    // Until the new file gives content, what is shown (the applet's background) is
    // still the old project's, and so is the folder its relative paths are read from.
    model.LoadedFrom = model.fileForRelativePaths();
    model.ProjectFileName.clear();
}

/// Room for the saved text, so that it is built without moving: the texts of the
/// buttons (labels twice over, as their blanks grow when encoded) and their numbers.
std::size_t expectedTextSize(const ProjectModel& model, int count) {
    std::size_t size = 1024;
    for (const AppletField& f : appletFields())
        size += f.text ? (model.*f.text).size() : 0;
    for (int i = 1; i <= count; ++i) {
        const ButtonRecord& r = model.button(i);
        size += 400 + r.URL.size() + r.Status.size() + r.Target.size();
        for (const ButtonState s : {ButtonState::UP, ButtonState::OVER, ButtonState::DOWN})
            size += 2 * r.label(s).size() + r.image(s).size() + r.font(s).size() +
                    r.sound(s).size() + r.Program(s).size();
    }
    return size;
}

} // namespace

std::string projectHeader() {
    return std::string("Orvelin Project ") + kVersionText;
}

std::string projectText(const ProjectModel& model, ProgressView* progress) {
    const int count = std::clamp<int>(model.ButtonCount, 0, kLastButtonSlot);
    std::string text;
    text.reserve(expectedTextSize(model, count));
    text += projectHeader();
    text += kCrLf;
    for (const AppletField& f : appletFields()) {
        appendFieldText(text, model, f);
        text += '|';
    }
    text += kCrLf;
    std::string progressLine;
    for (int i = 1; i <= count; ++i) {
        showButtonProgress(progress, progressLine, Msg::SavingButton, i, count);
        appendSerializedButton(text, model.button(i));
        text += kCrLf;
    }
    return text;
}

bool SaveProject(ProjectModel& model, const std::string& path, UserInterface& ui) {
    ui.showProgress(texts()[Msg::PleaseWait], texts()[Msg::SavingButtonsToFile], -1);
    const std::string text = projectText(model, &ui);
    TextFileError error;
    const bool written = writeFileAtomically(path, text, &error);
    ui.hideProgress();
    if (!written) {
        ui.showWarning(withSystemCause(texts()[Msg::ErrorSaving], error));
        return false;
    }
    model.Saved = true;
    return true;
}

LoadResult LoadProject(ProjectModel& model, const std::string& path, ProgressView* progress) {
    startLoad(model, progress);
    LoadResult result;
    result.error = readProject(model, path, progress, result);
    return finishLoad(model, path, progress, std::move(result));
}

LoadResult LoadProject_OLD(ProjectModel& model, const std::string& path, ProgressView* progress) {
    startLoad(model, progress);
    LoadResult result;
    result.error = readLegacyProject(model, path, progress);
    return finishLoad(model, path, progress, std::move(result));
}

} // namespace orvelin
