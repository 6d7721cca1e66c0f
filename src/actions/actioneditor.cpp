#include "actioneditor.h"

#include "actioncommands.h"
#include "actionprogram.h"
#include "programbuffer.h"
#include "projectmodel.h"
#include "textcatalogue.h"
#include "texthelpers.h"
#include "userinterface.h"

#include <algorithm>

namespace orvelin {

namespace {

constexpr std::string_view kWindow = "frmSetAction";

// The second line of "Wrong Parameters": which of Move's boxes holds the wrong value.
std::string wrongBoxLine(int box) {
    static const char* const names[] = {"#boxX", "#boxY", "#boxWidth", "#boxHeight"};
    if (box < 0 || box > 3)
        return {};
    const TextCatalogue& t = orvelin::texts();
    return std::string(kCrLf) + t[Msg::WrongBox] + t.text(kWindow, names[box]);
}

std::string moveBox(std::string word) {
    return word == "-999" ? std::string() : word;
}

constexpr int kCommandCount = static_cast<int>(ActionCommand::CallJavaScript);

} // namespace

std::array<std::string, 3> mainStateCaptions() {
    const TextCatalogue& t = orvelin::texts();
    return {t.text("frmMain", "btnUP"), t.text("frmMain", "btnOVER"), t.text("frmMain", "btnDOWN")};
}

ActionEditor::ActionEditor(ProjectModel& model, UserInterface& ui, ProgramBuffer& buffer,
                           std::array<std::string, 3> stateCaptions)
    : m_model(model), m_ui(ui), m_buffer(buffer),
      m_stateTexts(std::make_move_iterator(stateCaptions.begin()),
                   std::make_move_iterator(stateCaptions.end())) {}

void ActionEditor::open(ProgramKind kind) {
    m_kind = kind;
    m_code.clear();
    m_readable.clear();
    m_source.clear();
    m_selection = -1;
    m_inputs = ActionInputs{};

    const TextCatalogue& t = orvelin::texts();
    m_commandTexts.clear();
    for (int c = 0; c < kCommandCount; ++c)
        m_commandTexts.push_back(t.text(kWindow, "cmbAction.item" + std::to_string(c)));
    m_widthCaption = t.text(kWindow, "lblWidth");
    m_heightCaption = t.text(kWindow, "lblHeight");

    m_buttonTexts.clear();
    for (int i = 1; i <= m_model.ButtonCount; ++i)
        m_buttonTexts.push_back(orvelin::texts()[Msg::ButtonPrefix] + std::to_string(i));
    m_button = m_buttonTexts.empty() ? -1 : 0;
    setCommand(0);
    m_state = 0;

    // With no current button there is no program to show, and nothing is wrong.
    if (const std::string* slot = m_model.programSlot(kind, m_model.CurrentButton))
        appendProgram(*slot);
}

void ActionEditor::select(int index) {
    m_selection = index >= 0 && index < static_cast<int>(m_readable.size()) ? index : -1;
}

std::string ActionEditor::listToolTip() const {
    return m_selection < 0 ? std::string() : m_readable[static_cast<std::size_t>(m_selection)];
}

void ActionEditor::setCommand(int index) {
    m_command = index >= 0 && index < static_cast<int>(m_commandTexts.size()) ? index : -1;
    if (m_command + 1 == static_cast<int>(ActionCommand::SetColor))
        m_inputs.label.clear();
}

void ActionEditor::setButton(int index) {
    m_button = index >= 0 && index < static_cast<int>(m_buttonTexts.size()) ? index : -1;
}

void ActionEditor::setState(int index) {
    m_state = index >= 0 && index < static_cast<int>(m_stateTexts.size()) ? index : -1;
}

ActionPanels ActionEditor::panels() const {
    ActionPanels p;
    switch (static_cast<ActionCommand>(m_command + 1)) {
    case ActionCommand::Show:
    case ActionCommand::Hide:
        p.buttonList = true;
        break;
    case ActionCommand::Move:
        p.buttonList = p.movePanel = true;
        break;
    case ActionCommand::SetLabel:
        p.buttonList = p.labelPanel = true;
        break;
    case ActionCommand::SetColor:
        p.buttonList = p.labelPanel = p.colorButton = true;
        break;
    case ActionCommand::Wait:
        p.timerPanel = true;
        break;
    case ActionCommand::CallJavaScript:
        p.buttonList = p.javaScript = true;
        break;
    }
    return p;
}

bool ActionEditor::add() {
    if (m_command < 0) {
        refreshActionList();
        select(static_cast<int>(m_readable.size()) - 1);
        return false;
    }
    // A program ends each command at ";", and a label is stored as typed: a ";" in it
    // would cut the label there and leave the rest as a line of its own.
    if (m_command + 1 == static_cast<int>(ActionCommand::SetLabel) && !m_buttonTexts.empty() &&
        m_inputs.label.find(';') != std::string::npos &&
        m_ui.askYesNoCancel(orvelin::texts()[Msg::LabelCutAtSemicolon]) !=
            UserInterface::Answer::Yes)
        return false;
    CommandInputs in;
    in.haveButtons = !m_buttonTexts.empty();
    in.button = m_button + 1;
    in.state = m_state + 1;
    in.x = m_inputs.x;
    in.y = m_inputs.y;
    in.width = m_inputs.width;
    in.height = m_inputs.height;
    in.label = m_inputs.label;
    in.milliseconds = m_inputs.milliseconds;
    in.javaScript = m_inputs.javaScript;

    CommandResult result = buildCommand(m_command + 1, in);
    m_inputs.label = in.label;
    switch (result.outcome) {
    case CommandResult::Outcome::Line:
        break;
    case CommandResult::Outcome::NoButtons:
        m_ui.showWarning(orvelin::texts()[Msg::NoButtonsOnApplet]);
        return false;
    case CommandResult::Outcome::WrongParameters:
        m_ui.showWarning(result.error + wrongBoxLine(result.box),
                         orvelin::texts()[Msg::WrongParameters]);
        return false;
    case CommandResult::Outcome::Silent:
        return false;
    }
    m_code.push_back(std::move(result.line));
    refreshActionList();
    select(static_cast<int>(m_readable.size()) - 1);
    return true;
}

void ActionEditor::remove() {
    const int i = m_selection;
    if (i < 0 || i >= static_cast<int>(m_code.size()))
        return;
    m_code.erase(m_code.begin() + i);
    m_readable.erase(m_readable.begin() + i);
    m_source.erase(m_source.begin() + i);
    for (int& source : m_source) {
        if (source == i)
            source = -1;
        else if (source > i)
            --source;
    }
    select(i);
}

void ActionEditor::moveUp() {
    const int i = m_selection;
    if (i <= 0)
        return;
    swapLines(i, i - 1);
    refreshActionList();
    select(i - 1);
}

void ActionEditor::moveDown() {
    const int i = m_selection;
    if (i < 0 || i + 1 >= static_cast<int>(m_readable.size()))
        return;
    swapLines(i, i + 1);
    refreshActionList();
    select(i + 1);
}

void ActionEditor::moveLine(int from, int to) {
    const int count = static_cast<int>(m_readable.size());
    if (from < 0 || to < 0 || from >= count || to >= count || from == to)
        return;
    // Like Move Up and Move Down, the indices of the readable list name command lines.
    const auto first = m_code.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    refreshActionList();
    select(to);
}

void ActionEditor::copy() {
    m_buffer.text = storeProgram();
}

void ActionEditor::paste() {
    if (!m_buffer.text.empty())
        appendProgram(m_buffer.text);
}

bool ActionEditor::loadLine(int index) {
    if (index < 0 || index >= static_cast<int>(m_source.size()) ||
        m_source[static_cast<std::size_t>(index)] < 0)
        return false;
    const std::string& line =
        m_code[static_cast<std::size_t>(m_source[static_cast<std::size_t>(index)])];
    const int command = commandNumber(line);
    if (command == 0)
        return false;
    setCommand(command - 1);
    if (command <= static_cast<int>(ActionCommand::SetColor)) {
        const int b = entryIndex(GetWord(line, 2), m_buttonTexts.size());
        if (b >= 0)
            m_button = b;
    }
    switch (static_cast<ActionCommand>(command)) {
    case ActionCommand::Show:
    case ActionCommand::Hide:
        break;
    case ActionCommand::Move:
        m_inputs.x = moveBox(GetWord(line, 3));
        m_inputs.y = moveBox(GetWord(line, 4));
        m_inputs.width = moveBox(GetWord(line, 5));
        m_inputs.height = moveBox(GetWord(line, 6));
        break;
    case ActionCommand::SetLabel:
    case ActionCommand::SetColor: {
        const int s = entryIndex(GetWord(line, 3), m_stateTexts.size());
        if (s >= 0)
            m_state = s;
        m_inputs.label = command == static_cast<int>(ActionCommand::SetLabel)
                             ? DecodeLabel(GetWord(line, 4))
                             : GetWord(line, 4);
        break;
    }
    case ActionCommand::Wait:
        m_inputs.milliseconds = GetWord(line, 2);
        break;
    case ActionCommand::CallJavaScript:
        m_inputs.javaScript = DecodeLabel(GetWord(line, 3));
        break;
    }
    return true;
}

void ActionEditor::takeColor(std::int32_t colour) {
    m_inputs.label = colorToWeb(colour);
}

std::vector<int> ActionEditor::targetButtons(const std::vector<bool>& selected) const {
    std::vector<int> buttons;
    if (!isButtonProgramKind(m_kind))
        return buttons;
    // The program came from the current button alone; every selected button gets it.
    for (int i = 1; i <= m_model.ButtonCount && i < kButtonSlots; ++i)
        if (static_cast<std::size_t>(i - 1) < selected.size() &&
            selected[static_cast<std::size_t>(i - 1)])
            buttons.push_back(i);
    return buttons;
}

void ActionEditor::ok(const std::vector<bool>& selected) {
    const std::string program = storeProgram();
    DocumentChange change;
    if (isButtonProgramKind(m_kind)) {
        for (int i : targetButtons(selected)) {
            *m_model.programSlot(m_kind, i) = program;
            change.button(i);
        }
    } else {
        *m_model.programSlot(m_kind, 0) = program;
        // The applet frame shows which programs are attached.
        change.applet = true;
    }
    m_model.Saved = false;
    m_model.notices.announce(change);
}

void ActionEditor::appendProgram(std::string_view text) {
    for (std::string& line : splitProgram(text))
        m_code.push_back(std::move(line));
    refreshActionList();
}

std::string ActionEditor::storeProgram() const {
    return joinProgram(m_code);
}

void ActionEditor::refreshActionList() {
    ReadableTexts texts;
    texts.commands = m_commandTexts;
    texts.buttons = m_buttonTexts;
    texts.states = m_stateTexts;
    texts.widthCaption = m_widthCaption;
    texts.heightCaption = m_heightCaption;

    m_readable.clear();
    m_source.clear();
    m_selection = -1;
    for (std::size_t i = 0; i < m_code.size(); ++i) {
        if (std::optional<std::string> readable = readableLine(m_code[i], texts)) {
            m_readable.push_back(std::move(*readable));
            m_source.push_back(static_cast<int>(i));
        }
    }
}

void ActionEditor::swapLines(int a, int b) {
    std::swap(m_code[static_cast<std::size_t>(a)], m_code[static_cast<std::size_t>(b)]);
}

} // namespace orvelin
