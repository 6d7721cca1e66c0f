#pragma once

#include <string>
#include <string_view>

/**
 * Builders of the seven command lines from what the user typed. They show
 * nothing: a refusal says which message (if any) the caller shows instead.
 */
namespace orvelin {

/// Command numbers, the 1-based positions of the editor's command list.
enum class ActionCommand { Show = 1, Hide, Move, SetLabel, SetColor, Wait, CallJavaScript };

struct CommandResult {
    enum class Outcome {
        Line,            ///< `line` holds the new command line
        Silent,          ///< nothing to add and nothing to say
        NoButtons,       ///< "No Buttons on the Applet"
        WrongParameters, ///< `error` holds the conversion's own text, titled "Wrong Parameters"
    };
    Outcome outcome = Outcome::Silent;
    std::string line;
    std::string error;
    /// With WrongParameters: which box of Move holds the wrong value (0 X, 1 Y, 2 width,
    /// 3 height), -1 for none.
    int box = -1;

    bool added() const { return outcome == Outcome::Line; }
};

/**
 * Inputs of one command. `button` and `state` are 1-based entry numbers of the
 * button and state lists; `haveButtons` is false when the button list is empty.
 * `label` is the label box itself: "Set Label" puts a blank into an empty box.
 */
struct CommandInputs {
    bool haveButtons = false;
    int button = 0;
    int state = 1;
    std::string x, y, width, height;
    std::string label;
    std::string milliseconds;
    std::string javaScript;
};

/// "Show" / "Hide": "c B".
CommandResult buildShowHide(ActionCommand command, const CommandInputs& in);
/// "Move": "3 B X Y W H", an empty box written as -999.
CommandResult buildMove(const CommandInputs& in);
/// "Set Label": "4 B S T"; may change `in.label`.
CommandResult buildSetLabel(CommandInputs& in);
/// "Set Color": "5 B S RGB" when the box holds exactly six characters.
CommandResult buildSetColor(const CommandInputs& in);
/// "Wait": "6 M"; needs no button.
CommandResult buildWait(const CommandInputs& in);
/// "Call JavaScript": "7 0 J"; needs no button.
CommandResult buildCallJavaScript(const CommandInputs& in);

/// Dispatches on the command number (1 to 7); anything else builds nothing.
CommandResult buildCommand(int command, CommandInputs& in);

} // namespace orvelin
