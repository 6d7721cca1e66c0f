#pragma once

#include "textcatalogue.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace orvelin {

class LanguageFiles;

/// A window's text in force, for the texts the code puts together itself.
QString uiText(std::string_view window, std::string_view control);
/// A message in force.
QString uiText(Msg id);

/**
 * Puts the texts in force into `window`: every catalogue entry whose window is
 * `window`'s objectName goes to the control of that name (its text, title or caption;
 * ".toolTip" its tool tip; ".item<N>" the N-th entry of a list or a tab's title), the
 * window's own name to its caption. Names that begin with "#" are texts the code puts
 * together itself (uiText). Gives back the controls it did not find.
 */
QStringList applyWindowTexts(QWidget& window);

/// The language operations the windows use; the designer sets them once at start.
void setWindowLanguage(LanguageFiles* languages);
LanguageFiles* windowLanguage();

/// For its lifetime, `texts` are the texts in force and `languages` the windows' language
/// operations: the designer holds one before it makes any window.
class LanguageInForce {
public:
    LanguageInForce(const TextCatalogue& texts, LanguageFiles& languages);
    ~LanguageInForce();
    LanguageInForce(const LanguageInForce&) = delete;
    LanguageInForce& operator=(const LanguageInForce&) = delete;
};

/**
 * What each window does as it is shown: reads its sections of the language in force
 * (nothing for English) and applies its texts.
 */
void showWindowTexts(QWidget& window, std::initializer_list<TextSection> sections);

/// Lays the program's windows out right to left for Hebrew, left to right otherwise.
void applyLayoutDirection(const std::string& language);

} // namespace orvelin
