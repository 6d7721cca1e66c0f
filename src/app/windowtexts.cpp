#include "windowtexts.h"

#include "languagefiles.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTabWidget>
#include <QTranslator>
#include <QWidget>

namespace orvelin {

namespace {

LanguageFiles* g_languages = nullptr;

QString fromStd(const std::string& text) {
    return QString::fromStdString(text);
}

// The caption-like text of one object: what a person reads on it.
void setMainText(QObject* object, const QString& text, const QWidget& window) {
    if (object == &window)
        static_cast<QWidget*>(object)->setWindowTitle(text);
    else if (auto* action = qobject_cast<QAction*>(object))
        action->setText(text);
    else if (auto* menu = qobject_cast<QMenu*>(object))
        menu->setTitle(text);
    else if (auto* button = qobject_cast<QAbstractButton*>(object))
        button->setText(text);
    else if (auto* label = qobject_cast<QLabel*>(object))
        label->setText(text);
    else if (auto* group = qobject_cast<QGroupBox*>(object))
        group->setTitle(text);
    else if (auto* edit = qobject_cast<QLineEdit*>(object))
        edit->setPlaceholderText(text);
    else if (auto* widget = qobject_cast<QWidget*>(object))
        widget->setWindowTitle(text);
}

void setItemText(QObject* object, int item, const QString& text) {
    if (auto* combo = qobject_cast<QComboBox*>(object)) {
        if (item < combo->count())
            combo->setItemText(item, text);
    } else if (auto* tabs = qobject_cast<QTabWidget*>(object)) {
        if (item < tabs->count())
            tabs->setTabText(item, text);
    }
}

void setText(QObject* object, const QString& property, const QString& text, const QWidget& window) {
    if (property.isEmpty()) {
        setMainText(object, text, window);
    } else if (property == QLatin1String("toolTip")) {
        if (auto* action = qobject_cast<QAction*>(object))
            action->setToolTip(text);
        else if (auto* widget = qobject_cast<QWidget*>(object))
            widget->setToolTip(text);
    } else if (property.startsWith(QLatin1String("item"))) {
        setItemText(object, property.mid(4).toInt(), text);
    }
}

} // namespace

QString uiText(std::string_view window, std::string_view control) {
    return fromStd(texts().text(window, control));
}

QString uiText(Msg id) {
    return fromStd(texts()[id]);
}

QStringList applyWindowTexts(QWidget& window) {
    QStringList missing;
    const std::string windowName = window.objectName().toStdString();
    const TextCatalogue& inForce = texts();
    for (const SectionInfo& info : textSections()) {
        for (std::size_t p = 0; p < info.entries.size(); ++p) {
            const TextEntry& entry = info.entries[p];
            // Messages, other windows' texts, and texts the code puts together itself.
            if (entry.isMessage() || entry.window != windowName || entry.control.starts_with('#'))
                continue;
            const QString control =
                QString::fromUtf8(entry.control.data(), qsizetype(entry.control.size()));
            const qsizetype dot = control.indexOf(QLatin1Char('.'));
            const QString name = dot < 0 ? control : control.left(dot);
            const QString property = dot < 0 ? QString() : control.mid(dot + 1);
            const QString text = fromStd(inForce.at(info.section, p));
            QList<QObject*> targets;
            if (name == window.objectName())
                targets << &window;
            else
                targets = window.findChildren<QObject*>(name);
            if (targets.isEmpty())
                missing << control;
            for (QObject* target : targets)
                setText(target, property, text, window);
        }
    }
    return missing;
}

void setWindowLanguage(LanguageFiles* languages) {
    g_languages = languages;
}

LanguageFiles* windowLanguage() {
    return g_languages;
}

LanguageInForce::LanguageInForce(const TextCatalogue& texts, LanguageFiles& languages) {
    useTexts(&texts);
    setWindowLanguage(&languages);
}

LanguageInForce::~LanguageInForce() {
    setWindowLanguage(nullptr);
    useTexts(nullptr);
}

void showWindowTexts(QWidget& window, std::initializer_list<TextSection> sections) {
    if (g_languages)
        g_languages->applyWindowInForce(sections);
    applyWindowTexts(window);
}

void applyLayoutDirection(const std::string& language) {
    QApplication::setLayoutDirection(isRightToLeft(language) ? Qt::RightToLeft : Qt::LeftToRight);
    // Qt's own dialogs (files, colours, fonts) speak the language too where Qt's
    // translations are installed; without them they stay English.
    static QTranslator* qtTexts = nullptr;
    if (qtTexts != nullptr) {
        QCoreApplication::removeTranslator(qtTexts);
        delete qtTexts;
        qtTexts = nullptr;
    }
    const QString locale = QString::fromStdString(localeOf(language));
    if (locale.isEmpty())
        return;
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(locale), QStringLiteral("qtbase"), QStringLiteral("_"),
                         QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
        QCoreApplication::installTranslator(translator))
        qtTexts = translator;
    else
        delete translator;
}

} // namespace orvelin
