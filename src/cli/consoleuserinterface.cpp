#include "consoleuserinterface.h"

#include <ostream>

namespace orvelin::cli {

void ConsoleUserInterface::showMessage(const std::string& text, const std::string& title) {
    ++m_messages;
    if (!title.empty())
        m_err << title << ": ";
    // Message texts carry CR LF line breaks for the message box; a terminal wants LF.
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        m_err << text[i];
    }
    m_err << '\n';
}

UserInterface::Answer ConsoleUserInterface::askOkCancel(const std::string& text,
                                                        const std::string& title) {
    showMessage(text, title);
    return Answer::Ok;
}

} // namespace orvelin::cli
