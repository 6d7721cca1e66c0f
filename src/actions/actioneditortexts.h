#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace orvelin {

/**
 * The 22 texts of the action editor that a language file's "[frmSetAction]"
 * section replaces, with their English defaults. Position k of the section
 * (counted from 0) fills the k-th entry below; the order is fixed for good:
 *
 *   0 btnAdd caption          8 btnOk caption             15 command "Show"
 *   1 btnRemove caption       9 btnCancel caption         16 command "Hide"
 *   2 btnUP tool tip         10 lblWidth caption          17 command "Move"
 *   3 btnDown tool tip       11 lblHeight caption         18 command "Set Label"
 *   4 btnCopyProg caption    12 lblMiliseconds caption    19 command "Set Color"
 *   5 btnCopyProg tool tip   13 btnGetHexColor caption    20 command "Wait"
 *   6 btnPasteProg caption   14 btnGetHexColor tool tip   21 command "Call JavaScript"
 *   7 btnPasteProg tool tip
 */
struct ActionEditorTexts {
    static constexpr std::size_t kCount = 22;

    std::string add = "&Add";
    std::string remove = "&Remove";
    std::string moveUpTip = "Move Command Up";
    std::string moveDownTip = "Move Command Down";
    std::string copy = "Copy";
    std::string copyTip = "Copy Whole Program to Buffer";
    std::string paste = "Paste";
    std::string pasteTip = "Append Program from Buffer to Current Program";
    std::string ok = "&Ok";
    std::string cancel = "&Cancel";
    std::string widthCaption = "width:";
    std::string heightCaption = "height:";
    std::string milliseconds = "Time in miliseconds:";
    std::string colorButton = "...";
    std::string colorTip = "Select Color";
    std::array<std::string, 7> commands = {"Show",      "Hide", "Move",           "Set Label",
                                           "Set Color", "Wait", "Call JavaScript"};

    /// The text at section position `position`; throws std::out_of_range beyond 21.
    std::string& at(std::size_t position);
    const std::string& at(std::size_t position) const;

    /// The command list's entries as a list.
    std::vector<std::string> commandList() const;
};

/// The captions of the main editor's three state buttons, UP first.
std::array<std::string, 3> defaultStateCaptions();

} // namespace orvelin
