#include "actioneditortexts.h"

#include <stdexcept>

namespace orvelin {

namespace {

using Field = std::string ActionEditorTexts::*;

// Section positions 0 to 14; the seven command texts follow them.
constexpr Field kFields[] = {
    &ActionEditorTexts::add,          &ActionEditorTexts::remove,
    &ActionEditorTexts::moveUpTip,    &ActionEditorTexts::moveDownTip,
    &ActionEditorTexts::copy,         &ActionEditorTexts::copyTip,
    &ActionEditorTexts::paste,        &ActionEditorTexts::pasteTip,
    &ActionEditorTexts::ok,           &ActionEditorTexts::cancel,
    &ActionEditorTexts::widthCaption, &ActionEditorTexts::heightCaption,
    &ActionEditorTexts::milliseconds, &ActionEditorTexts::colorButton,
    &ActionEditorTexts::colorTip,
};
constexpr std::size_t kFieldCount = sizeof(kFields) / sizeof(kFields[0]);
static_assert(kFieldCount + 7 == ActionEditorTexts::kCount);

} // namespace

std::string& ActionEditorTexts::at(std::size_t position) {
    if (position < kFieldCount)
        return this->*kFields[position];
    if (position < kCount)
        return commands[position - kFieldCount];
    throw std::out_of_range("action editor text position");
}

const std::string& ActionEditorTexts::at(std::size_t position) const {
    if (position < kFieldCount)
        return this->*kFields[position];
    if (position < kCount)
        return commands[position - kFieldCount];
    throw std::out_of_range("action editor text position");
}

std::vector<std::string> ActionEditorTexts::commandList() const {
    return {commands.begin(), commands.end()};
}

std::array<std::string, 3> defaultStateCaptions() {
    return {"Up State", "Mouse-Over", "Down State"};
}

} // namespace orvelin
